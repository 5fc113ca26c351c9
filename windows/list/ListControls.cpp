#include "windows/list/ListControls.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>

#include "windows/CaptionButton.h"
#include "windows/Controls.h"
#include "windows/GroupPage.h"
#include "windows/Mnemonics.h"
#include "windows/QtText.h"

namespace calvoro {

ListControls::ListControls(QWidget& window) : page_(new ScrollingPage(window)) {
    QWidget* const page = &page_->Page();
    const auto button = [page](const char* name) { return Named(new CaptionButton(page), name); };
    lblState = Named(new QLabel(page), "lblState");
    lblState->setWordWrap(true);
    lblState->setTextFormat(Qt::PlainText);
    fraLinesAre = Named(new QGroupBox(page), "fraLinesAre");
    optLinesAreFirst = Named(new QRadioButton(fraLinesAre), "optLinesAreFirst");
    optLinesAreSecond = Named(new QRadioButton(fraLinesAre), "optLinesAreSecond");
    cmdPaste = button("cmdPaste");
    cmdOpen = button("cmdOpen");
    tblList = Named(new ListTable(page), "tblList");
    cmdEarlier = button("cmdEarlier");
    cmdLater = button("cmdLater");
    prgJob = Named(new QProgressBar(page), "prgJob");
    prgJob->setTextVisible(false);
    cmdStop = button("cmdStop");
    chkRefusalsOnly = Named(new QCheckBox(page), "chkRefusalsOnly");
    chkByDay = Named(new QCheckBox(page), "chkByDay");
    cmdNextRefusal = button("cmdNextRefusal");
    chkWithGiven = Named(new QCheckBox(page), "chkWithGiven");
    cmdCopySelected = button("cmdCopySelected");
    cmdCopyAll = button("cmdCopyAll");
    cmdSaveAs = button("cmdSaveAs");
    cmdClose = button("cmdClose");

    chkWithGiven->setChecked(true);
    cmdEarlier->hide();
    cmdLater->hide();
    Arrange();
    HideProgress();
}

void ListControls::Arrange() {
    const auto row = [](std::initializer_list<QWidget*> left, std::initializer_list<QWidget*> right) {
        auto* line = new QHBoxLayout;
        for (QWidget* control : left) line->addWidget(control);
        line->addStretch();
        for (QWidget* control : right) line->addWidget(control);
        return line;
    };
    QHBoxLayout* options = row({optLinesAreFirst, optLinesAreSecond}, {});
    options->setContentsMargins(0, 0, 0, 0);
    GroupPage(*fraLinesAre)->setLayout(options);
    auto* progress = new QHBoxLayout;
    progress->addWidget(prgJob, 1);
    progress->addWidget(cmdStop);
    // The rest stays in its place when a job becomes slow.
    for (QWidget* control : {static_cast<QWidget*>(prgJob), static_cast<QWidget*>(cmdStop)}) {
        QSizePolicy policy = control->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        control->setSizePolicy(policy);
    }

    auto* column = new QVBoxLayout(&page_->Page());
    column->addWidget(lblState);
    column->addLayout(row({fraLinesAre}, {cmdPaste, cmdOpen}));
    column->addWidget(tblList, 1);
    column->addLayout(row({cmdEarlier, cmdLater}, {}));
    column->addLayout(row({chkRefusalsOnly, chkByDay}, {cmdNextRefusal}));
    column->addLayout(progress);
    column->addLayout(row({chkWithGiven}, {cmdCopySelected, cmdCopyAll, cmdSaveAs, cmdClose}));
}

void ListControls::SetCaptions(const Texts& texts) {
    const ListWords& words = WordsOfList(texts.InterfaceLanguage);
    fraLinesAre->setTitle(ToQt(words.linesAre));
    SetCaption(*optLinesAreFirst, ToQt(texts.Shown(TextId::FirstDate)));
    SetCaption(*optLinesAreSecond, ToQt(texts.Shown(TextId::SecondDate)));
    SetCaption(*cmdPaste, ToQt(words.paste));
    SetCaption(*cmdOpen, ToQt(words.open));
    SetCaption(*cmdEarlier, ToQt(words.earlier));
    SetCaption(*cmdLater, ToQt(words.later));
    SetCaption(*cmdStop, ToQt(words.stop));
    SetCaption(*chkRefusalsOnly, ToQt(words.refusalsOnly));
    SetCaption(*chkByDay, ToQt(words.byDay));
    SetCaption(*cmdNextRefusal, ToQt(words.nextRefusal));
    SetCaption(*chkWithGiven, ToQt(words.withGiven));
    SetCaption(*cmdCopySelected, ToQt(words.copySelected));
    SetCaption(*cmdCopyAll, ToQt(words.copyAll));
    SetCaption(*cmdSaveAs, ToQt(words.saveAs));
    SetCaption(*cmdClose, ToQt(texts.Shown(TextId::Close)));
    SetMnemonics({cmdPaste, cmdOpen, cmdSaveAs, cmdCopyAll, cmdCopySelected, cmdNextRefusal, cmdStop,
                  cmdClose, chkRefusalsOnly, chkByDay, chkWithGiven, optLinesAreFirst, optLinesAreSecond,
                  cmdEarlier, cmdLater});
    tblList->setAccessibleName(ToQt(words.table));
    tblList->setAccessibleDescription(ToQt(words.chooseColumn));
    prgJob->setAccessibleName(ToQt(words.progress));
}

void ListControls::SetHeads(ListModel& model, ListSide side, const Texts& texts) {
    const ListWords& words = WordsOfList(texts.InterfaceLanguage);
    const TextId date = side == ListSide::FirstDates ? TextId::FirstDate : TextId::SecondDate;
    model.SetCaptions({.date = ToQt(texts.Shown(date)),
                       .column = ToQt(words.column),
                       .reading = ToQt(words.reading),
                       .result = ToQt(words.result),
                       .weekday = ToQt(words.weekday),
                       .reason = ToQt(words.reason)});
    for (int column = 0; column < model.columnCount(); ++column) {
        const bool isWeekday = column == model.Column(ComputedColumn::Weekday);
        tblList->setColumnHidden(column, isWeekday && !model.Sheet().maker->HasWeekdays());
    }
}

void ListControls::FollowRows(const ListModel& model) {
    for (QPushButton* control : {cmdCopyAll, cmdSaveAs, cmdNextRefusal}) {
        control->setEnabled(model.Places() > 0);
    }
    for (QCheckBox* box : {chkRefusalsOnly, chkByDay}) box->setEnabled(model.Sheet().lines->Count() > 0);
    cmdCopySelected->setEnabled(tblList->selectionModel()->hasSelection());
    const bool hasParts = model.Places() > ListModel::kRowsInPart;
    cmdEarlier->setVisible(hasParts);
    cmdLater->setVisible(hasParts);
    cmdEarlier->setEnabled(model.PartBegin() > 0);
    cmdLater->setEnabled(model.Places() - model.PartBegin() > ListModel::kRowsInPart);
}

void ListControls::SetColumnWidths(const ListModel& model) {
    constexpr int kDateCharacters = 24;
    constexpr int kOtherCharacters = 14;
    constexpr int kReasonCharacters = 75;
    const int character = tblList->fontMetrics().averageCharWidth();
    const auto set = [&](int column, int characters) {
        tblList->setColumnWidth(
            column, qMax(characters * character, tblList->horizontalHeader()->sectionSizeHint(column)));
    };
    for (int column = 0; column < model.GivenColumns(); ++column) {
        set(column, model.GivenColumns() == 1 ? kDateCharacters : kOtherCharacters);
    }
    set(model.Column(ComputedColumn::Reading), kOtherCharacters);
    set(model.Column(ComputedColumn::Result), kDateCharacters);
    set(model.Column(ComputedColumn::Weekday), kOtherCharacters);
    set(model.Column(ComputedColumn::Reason), kReasonCharacters);
}

void ListControls::ShowProgress(double done) {
    constexpr int kSteps = 1000;
    prgJob->setRange(0, kSteps);
    prgJob->setValue(static_cast<int>(done * kSteps));
    prgJob->show();
    cmdStop->show();
}

void ListControls::HideProgress() {
    prgJob->hide();
    cmdStop->hide();
}

}  // namespace calvoro
