#include "windows/frmList.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QItemSelectionModel>
#include <QShortcut>
#include <QSignalBlocker>
#include <algorithm>
#include <new>
#include <utility>

#include "windows/AccessibleRole.h"
#include "windows/Placement.h"
#include "windows/QtText.h"
#include "windows/Twips.h"
#include "windows/list/FileQuestions.h"
#include "windows/list/lines/ListFile.h"
#include "windows/list/lines/ListSearch.h"
#include "windows/list/lines/ListToFile.h"

namespace calvoro {
namespace {

constexpr int kInsideLeft = 425;  // twips
constexpr int kInsideTop = 1710;  // twips

// More than any spreadsheet takes; the clipboard holds a text several times.
constexpr std::size_t kMostOnClipboard = 500'000'000;  // bytes

}  // namespace

frmList::frmList(const Platform& platform, const Texts& texts, const ListRowSource& rows, QWidget& mainWindow)
    : platform_(platform),
      texts_(texts),
      mainWindow_(mainWindow),
      ui_(*this),
      contents_(new ListContents(rows, this)),
      runner_(new JobRunner(this)),
      announcer_(new Announcer(this)) {
    setObjectName(QStringLiteral("frmList"));
    setAttribute(Qt::WA_QuitOnClose, false);
    setAcceptDrops(true);
    SetAccessibleRole(*this, QAccessible::Window);
    setWindowIcon(mainWindow.windowIcon());
    ui_.tblList->setModel(&contents_->Model());
    ConnectControls();
    AddKeys();
    SetLanguageDependentText();
    ui_.SetColumnWidths(contents_->Model());
    ui_.FollowRows(contents_->Model());
    resize(sizeHint().boundedTo(RoomOnScreen(*this)));
}

void frmList::ConnectControls() {
    connect(contents_, &ListContents::Surveyed, this, &frmList::ShowState);
    connect(runner_, &JobRunner::Slow, this, [this] { ui_.ShowProgress(runner_->Done()); });
    connect(runner_, &JobRunner::Progressed, this, [this] {
        if (ui_.prgJob->isVisibleTo(this)) ui_.ShowProgress(runner_->Done());
    });
    connect(runner_, &JobRunner::Ended, this, &frmList::OnEnded);
    connect(this, &frmList::RearrangeWanted, this, &frmList::Rearrange, Qt::QueuedConnection);
    connect(runner_, &JobRunner::OutOfMemory, this, [this] { Tell(Words().outOfMemory); });

    connect(ui_.optLinesAreFirst, &QRadioButton::toggled, this, [this](bool first) {
        contents_->SetSide(first ? ListSide::FirstDates : ListSide::SecondDates);
        ShowAnew();
    });
    connect(ui_.tblList, &ListTable::ColumnChosen, this, &frmList::OnColumnChosen);
    connect(ui_.tblList->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { ui_.cmdCopySelected->setEnabled(ui_.tblList->selectionModel()->hasSelection()); });
    for (QCheckBox* box : {ui_.chkRefusalsOnly, ui_.chkByDay}) {
        connect(box, &QCheckBox::toggled, this, &frmList::Rearrange);
    }
    connect(ui_.cmdPaste, &QPushButton::clicked, this, [this] { ShowClipboard(contents_->Side()); });
    connect(ui_.cmdOpen, &QPushButton::clicked, this, [this] { ShowChosenFile(contents_->Side()); });
    connect(ui_.cmdEarlier, &QPushButton::clicked, this, [this] { OnOtherPart(false); });
    connect(ui_.cmdLater, &QPushButton::clicked, this, [this] { OnOtherPart(true); });
    connect(ui_.cmdStop, &QPushButton::clicked, this, &frmList::OnStop);
    connect(ui_.cmdNextRefusal, &QPushButton::clicked, this, &frmList::OnNextRefusal);
    connect(ui_.cmdCopySelected, &QPushButton::clicked, this,
            [this] { OnCopy(SelectedPlaces(*ui_.tblList, contents_->Model())); });
    connect(ui_.cmdCopyAll, &QPushButton::clicked, this, [this] { OnCopy(AllPlaces(contents_->Model())); });
    connect(ui_.cmdSaveAs, &QPushButton::clicked, this, &frmList::OnSaveAs);
    connect(ui_.cmdClose, &QPushButton::clicked, this, &QWidget::close);
}

void frmList::AddKeys() {
    const auto onKey = [this](const QKeySequence& key, QPushButton* button) {
        connect(new QShortcut(key, this), &QShortcut::activated, button, &QPushButton::click);
    };
    onKey(QKeySequence::Paste, ui_.cmdPaste);
    onKey(QKeySequence::Copy, ui_.cmdCopySelected);
    onKey(Qt::CTRL | Qt::Key_O, ui_.cmdOpen);
    onKey(Qt::CTRL | Qt::Key_S, ui_.cmdSaveAs);
    onKey(Qt::Key_F3, ui_.cmdNextRefusal);
    onKey(Qt::Key_Escape, ui_.cmdClose);
}

void frmList::ShowList(ListSide side) {
    if (contents_->IsEmpty()) {
        (side == ListSide::FirstDates ? ui_.optLinesAreFirst : ui_.optLinesAreSecond)->setChecked(true);
    }
    BringUp();
}

void frmList::BringUp() {
    if (!placed_) {
        const QPoint inside(TwipsToPixels(kInsideLeft), TwipsToPixels(kInsideTop));
        MoveKeptOnScreen(*this, mainWindow_.frameGeometry().topLeft() + inside, FrameSize(mainWindow_));
        placed_ = true;
        ui_.tblList->setFocus();
    }
    BringToFront(*this);
}

void frmList::Show(const GivenList& given, ListSide side) {
    BringUp();
    if (!given.path.isEmpty()) {
        const std::string path = FromQt(given.path);
        BeginLoading(std::make_shared<ListFile>(path), path, side);
        return;
    }
    try {
        BeginLoading(std::make_shared<LinesBuilder>(given.text.toStdString(), false), {}, side);
    } catch (const std::bad_alloc&) {
        Tell(Words().outOfMemory);
    }
}

void frmList::ShowClipboard(ListSide side) {
    const std::optional<GivenList> given = GivenListOf(QGuiApplication::clipboard()->mimeData());
    if (given) {
        Show(*given, side);
        return;
    }
    BringUp();
    Tell(Words().noText);
}

void frmList::ShowChosenFile(ListSide side) {
    BringUp();
    const std::optional<std::string> path = AskWhatToOpen(*this, Words());
    if (path) Show({QString(), ToQt(*path)}, side);
}

void frmList::Refresh() {
    contents_->Refresh();
    ShowAnew();
}

// What stands beside the lines is another.
void frmList::ShowAnew() {
    ui_.SetHeads(contents_->Model(), contents_->Side(), texts_);
    Rearrange();
    ShowState();
}

void frmList::SetLanguageDependentText() {
    setWindowTitle(ToQt(Words().title));
    ui_.SetCaptions(texts_);
    ui_.SetHeads(contents_->Model(), contents_->Side(), texts_);
    ShowState();
}

void frmList::closeEvent(QCloseEvent* event) {
    OnStop();
    if (mainWindow_.isVisible()) mainWindow_.activateWindow();
    event->accept();
}

void frmList::dragEnterEvent(QDragEnterEvent* event) {
    if (GivenListOf(event->mimeData())) event->acceptProposedAction();
}

void frmList::dropEvent(QDropEvent* event) {
    const std::optional<GivenList> given = GivenListOf(event->mimeData());
    if (!given) return;
    event->acceptProposedAction();
    Show(*given, contents_->Side());
}

void frmList::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    contents_->SetActive(true);
}

void frmList::hideEvent(QHideEvent* event) {
    contents_->SetActive(false);
    QWidget::hideEvent(event);
}

// Does nothing but to tell it when something else is still going on that must not be dropped.
void frmList::Begin(std::shared_ptr<SlicedJob> job, std::function<void()> done, Doing doing) {
    if (doing_ == Doing::LoadingOrWriting) {
        Tell(Words().busy);
        return;
    }
    note_.clear();
    runner_->Stop();
    doing_ = doing;
    runner_->Start(std::move(job), std::move(done));
}

void frmList::OnEnded() {
    doing_ = Doing::Nothing;
    ui_.HideProgress();
    if (std::exchange(rearrangeLater_, false)) Q_EMIT RearrangeWanted();
}

template <typename Load>
void frmList::BeginLoading(std::shared_ptr<Load> load, const std::string& path, ListSide side) {
    Begin(
        load,
        [this, load, path, side] {
            const ListRefusal refusal = load->Refusal();
            if (refusal.fault == ListFault::None) {
                ShowLines(load->Take(), side);
            } else {
                Tell(RefusalMessage(refusal, path, Words()));
            }
        },
        Doing::LoadingOrWriting);
}

void frmList::ShowLines(std::shared_ptr<const ListLines> lines, ListSide side) {
    UncheckArrangement();
    const QSignalBlocker noSide(ui_.optLinesAreFirst);
    (side == ListSide::FirstDates ? ui_.optLinesAreFirst : ui_.optLinesAreSecond)->setChecked(true);

    contents_->Show(std::move(lines), side);
    ui_.SetHeads(contents_->Model(), contents_->Side(), texts_);
    ui_.SetColumnWidths(contents_->Model());
    ui_.FollowRows(contents_->Model());
    ui_.tblList->setFocus();
    GoTo(0);
    ShowState();
    announcer_->Announce(StateText(*contents_->Survey(), Words()));
}

// The rows that are shown depend on the options, but for a plain arrangement.
void frmList::Rearrange() {
    if (doing_ == Doing::LoadingOrWriting) {
        rearrangeLater_ = true;
        return;
    }
    if (doing_ == Doing::Arranging) runner_->Stop();
    const Arrangement arrangement{ui_.chkRefusalsOnly->isChecked(), ui_.chkByDay->isChecked()};
    if (const std::shared_ptr<OrderRows> job = contents_->Arrange(arrangement)) {
        Begin(
            job, [this, job] { ShowOrder(job->Take()); }, Doing::Arranging);
    } else if (contents_->Model().Order()) {
        ShowOrder({});
    }
}

void frmList::UncheckArrangement() {
    for (QCheckBox* box : {ui_.chkRefusalsOnly, ui_.chkByDay}) {
        const QSignalBlocker blocker(box);
        box->setChecked(false);
    }
}

void frmList::ShowOrder(RowOrder order) {
    ListModel& model = contents_->Model();
    // The current line stays the current one where it is still shown.
    const bool hasRow = model.Places() > 0;
    const std::uint32_t row = hasRow ? RowAt(model.Order(), CurrentPlace()) : 0;
    std::uint32_t place = row;
    if (order) {
        const auto found = std::find(order->begin(), order->end(), row);
        place = found == order->end() ? 0 : static_cast<std::uint32_t>(found - order->begin());
    }
    model.SetOrder(std::move(order));
    ui_.FollowRows(contents_->Model());
    if (model.Places() > 0) GoTo(place);
    ShowState();
}

void frmList::OnColumnChosen(int column) {
    const ListModel& model = contents_->Model();
    const auto chosen = static_cast<std::size_t>(column);
    if (column >= model.GivenColumns() || chosen == model.Sheet().dateColumn) return;
    contents_->SetDateColumn(chosen);
    ShowAnew();
}

void frmList::OnNextRefusal() {
    const std::uint32_t places = contents_->Model().Places();
    if (places == 0) return;
    const auto search =
        std::make_shared<ListSearch>(contents_->Sheet(), contents_->Survey(), contents_->Model().Order(),
                                     places, (CurrentPlace() + 1) % places);
    const auto done = [this, search] {
        if (search->Found()) {
            GoTo(*search->Found());
        } else {
            Note(Words().noRefusal);
        }
    };
    Begin(search, done, Doing::Searching);
}

void frmList::OnCopy(std::vector<PlaceRange> ranges) {
    if (ranges.empty()) return;
    const OutputForm form{.csv = false, .withGiven = ui_.chkWithGiven->isChecked()};
    const auto copy = std::make_shared<ListToText>(contents_->Sheet(),
                                                   ChosenRows{contents_->Model().Order(), std::move(ranges)},
                                                   form, kMostOnClipboard);
    const auto done = [this, copy] {
        if (copy->IsTooLong()) {
            Tell(Words().tooMuchForClipboard);
            return;
        }
        platform_.clipboard.Clear();
        platform_.clipboard.SetText(copy->Text());
        Note(DoneText(Words().copied, copy->Written()));
    };
    Begin(copy, done, Doing::LoadingOrWriting);
}

void frmList::OnSaveAs() {
    if (contents_->Model().Places() == 0) return;
    const std::optional<std::string> path = AskWhereToSave(*this, Words());
    if (path) Save(*path);
}

void frmList::Save(const std::string& path) {
    const OutputForm form{.csv = IsCsvName(path), .withGiven = ui_.chkWithGiven->isChecked()};
    const auto save = std::make_shared<ListToFile>(
        contents_->Sheet(), ChosenRows{contents_->Model().Order(), AllPlaces(contents_->Model())}, form,
        path);
    const auto done = [this, save, path] {
        if (save->Error() != 0) {
            Tell(NotSavedMessage(path, save->Error(), Words()));
        } else {
            Note(DoneText(Words().saved, save->Written()));
        }
    };
    Begin(save, done, Doing::LoadingOrWriting);
}

void frmList::OnStop() {
    if (doing_ == Doing::Nothing) return;
    const bool wasArranging = doing_ == Doing::Arranging;
    runner_->Stop();
    if (wasArranging) {
        UncheckArrangement();
        Rearrange();
    }
    Note(Words().stopped);
}

void frmList::OnOtherPart(bool later) {
    ListModel& model = contents_->Model();
    GoTo(later ? model.PartBegin() + ListModel::kRowsInPart : model.PartBegin() - ListModel::kRowsInPart);
    ui_.FollowRows(contents_->Model());
}

std::uint32_t frmList::CurrentPlace() const {
    const int row = qMax(0, ui_.tblList->currentIndex().row());
    return contents_->Model().PartBegin() + static_cast<std::uint32_t>(row);
}

// place  below the number of places
void frmList::GoTo(std::uint32_t place) {
    ListModel& model = contents_->Model();
    model.ShowPartWith(place);
    const int column = qMax(0, ui_.tblList->currentIndex().column());
    const QModelIndex index = model.index(static_cast<int>(place - model.PartBegin()), column);
    ui_.tblList->setCurrentIndex(index);
    ui_.tblList->scrollTo(index);
}

void frmList::ShowState() {
    std::string text = StateText(*contents_->Survey(), Words());
    if (!note_.empty()) text.append(" - ").append(note_);
    ui_.lblState->setText(ToQt(text));
}

std::string frmList::DoneText(std::string_view what, std::uint64_t rows) const {
    return std::string(what) + ": " + Counted(rows, Words().line, Words().lines, Words());
}

void frmList::Note(std::string_view note) {
    note_ = note;
    ShowState();
    announcer_->Announce(note);
}

void frmList::Tell(std::string_view message) {
    platform_.boxes.Show(message, Words().title, MessageIcon::Exclamation);
}

}  // namespace calvoro
