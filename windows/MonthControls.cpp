#include "windows/MonthControls.h"

#include <QHBoxLayout>
#include <QList>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "text/DateNames.h"
#include "windows/AccessibleSilence.h"
#include "windows/CaptionButton.h"
#include "windows/Controls.h"
#include "windows/GroupPage.h"
#include "windows/KeyLabel.h"
#include "windows/Mnemonics.h"
#include "windows/Placement.h"
#include "windows/QtText.h"

namespace calvoro {
namespace {

constexpr int kMonthColumns = 36;  // a blank and seven days of five characters
constexpr int kIsoColumns = 62;    // seven dates "0-W01-1", two blanks apart, under a heading one wider
constexpr int kLines = 7;          // heading and six weeks

}  // namespace

MonthControls::MonthControls(QWidget& window)
    : lblMonth(Named(new KeyLabel(&window), "lblMonth")),
      cboMonths(Named(new MonthList(&window), "cboMonths")),
      lblYear(Named(new KeyLabel(&window), "lblYear")),
      txbYear(Named(new LineBox(&window), "txbYear")),
      cmdDisplay(Named(new CaptionButton(&window), "cmdDisplay")),
      txbMonth(Named(new FixedPitchBox(kMonthColumns, kLines, &window), "txbMonth")),
      fraCalendar(Named(new QGroupBox(&window), "fraCalendar")),
      optCommonEra(Named(new QRadioButton(fraCalendar), "optCommonEra")),
      optJulian(Named(new QRadioButton(fraCalendar), "optJulian")),
      fraFirstDayOfWeek(Named(new QGroupBox(&window), "fraFirstDayOfWeek")),
      optSunday(Named(new QRadioButton(fraFirstDayOfWeek), "optSunday")),
      optMonday(Named(new QRadioButton(fraFirstDayOfWeek), "optMonday")),
      cmdDisplayNextMonth{Named(new CaptionButton(&window), "cmdDisplayNextMonth0"),
                          Named(new CaptionButton(&window), "cmdDisplayNextMonth1")},
      cmdCopyToClipboard(Named(new CaptionButton(&window), "cmdCopyToClipboard")),
      cmdShowHideISO(Named(new CaptionButton(&window), "cmdShowHideISO")),
      chkWithYear(Named(new QCheckBox(&window), "chkWithYear")),
      cmdClose(Named(new CaptionButton(&window), "cmdClose")),
      txbISODates(Named(new FixedPitchBox(kIsoColumns, kLines, &window), "txbISODates")),
      window_(window),
      page_(*new ScrollingPage(window)) {
    lblMonth->setBuddy(cboMonths);
    lblYear->setBuddy(txbYear);
    Choose(*optCommonEra);
    Choose(*optSunday);
    chkWithYear->setChecked(true);
    txbISODates->hide();
    Arrange();
}

void MonthControls::SetCaptions(const Texts& texts) {
    const auto shown = [&texts](TextId id) { return ToQt(texts.Shown(id)); };
    const auto weekdays = ShownWeekdayNames(texts.InterfaceLanguage);

    SetCaption(*lblMonth, shown(TextId::Month));
    SetCaption(*lblYear, shown(TextId::Year));
    SetCaption(*cmdDisplay, shown(TextId::DisplayMonth));
    fraCalendar->setTitle(shown(TextId::Calendar));
    SetCaption(*optCommonEra, shown(TextId::CommonEra));
    SetCaption(*optJulian, shown(TextId::Julian));
    fraFirstDayOfWeek->setTitle(shown(TextId::FirstDayOfWeek));
    SetCaption(*optSunday, ToQt(weekdays[0]));
    SetCaption(*optMonday, ToQt(weekdays[1]));
    SetCaption(*cmdDisplayNextMonth[0], shown(TextId::DisplayNextMonth));
    SetCaption(*cmdDisplayNextMonth[1], shown(TextId::DisplayPreviousMonth));
    SetCaption(*cmdCopyToClipboard, shown(TextId::CopyToClipboard));
    SetCaption(*chkWithYear, shown(TextId::WithFinalDigitOfYear));
    SetCaption(*cmdClose, shown(TextId::Close));
    UpdateMnemonics();

    cboMonths->setAccessibleName(shown(TextId::Month));
    txbYear->setAccessibleName(shown(TextId::Year));
    txbISODates->setAccessibleName(shown(TextId::ISOWeekDate));
}

void MonthControls::DescribeMonth(LanguageNumber language) {
    const AccessibleSilence silence;
    cboMonths->setAccessibleDescription(cboMonths->currentText() +
                                        (language == LanguageGerman
                                             ? QStringLiteral("; eine Pfeiltaste oeffnet die Liste")
                                             : QStringLiteral("; an arrow key opens the list")));
}

void MonthControls::FillMonths(const Texts& texts) {
    const QSignalBlocker blocker(cboMonths);
    const int chosen = std::max(0, cboMonths->currentIndex());
    cboMonths->clear();
    for (std::int32_t month = 0; month < 12; ++month) {
        cboMonths->addItem(ToQt(ShownMonthName(texts.InterfaceLanguage, month)));
    }
    cboMonths->setCurrentIndex(chosen);
}

void MonthControls::SetIsoCaption(const QString& caption) {
    SetCaption(*cmdShowHideISO, caption);
    UpdateMnemonics();
}

QSize MonthControls::FirstSize() const {
    const QMargins margins = page_.Page().layout()->contentsMargins();
    const int isoWidth = margins.left() + txbISODates->sizeHint().width() + margins.right();
    const QSize size = window_.sizeHint().expandedTo(QSize(isoWidth, 0));
    return size.boundedTo(RoomOnScreen(window_));
}

void MonthControls::SetIsoBoxShown(bool shown) {
    if (txbISODates->isHidden() != shown) return;
    const int boxHeight = shown ? txbISODates->sizeHint().height() : -txbISODates->height();
    const int spacing = page_.Page().layout()->spacing();
    const int wanted = window_.height() + boxHeight + (shown ? spacing : -spacing);

    txbISODates->setVisible(shown);
    // The window's least height follows at once.
    page_.Page().layout()->activate();
    page_.updateGeometry();
    window_.layout()->activate();
    window_.resize(window_.width(), std::min(wanted, RoomOnScreen(window_).height()));
    if (shown && window_.isVisible()) MoveKeptOnScreen(window_, window_.pos());
}

// From top to bottom: which month, how it is shown, the month beside its buttons, the ISO week dates.
void MonthControls::Arrange() {
    auto* heading = new QHBoxLayout;
    heading->addWidget(lblMonth);
    heading->addWidget(cboMonths);
    heading->addWidget(lblYear);
    heading->addWidget(txbYear, 1);
    heading->addWidget(cmdDisplay);

    const auto fill = [](QGroupBox* frame, QRadioButton* first, QRadioButton* second) {
        auto* row = new QHBoxLayout(GroupPage(*frame));
        row->setContentsMargins(0, 0, 0, 0);
        row->addWidget(first, 1);
        row->addWidget(second, 1);
    };
    fill(fraCalendar, optCommonEra, optJulian);
    fill(fraFirstDayOfWeek, optSunday, optMonday);
    auto* options = new QHBoxLayout;
    options->addWidget(fraCalendar, 1);
    options->addWidget(fraFirstDayOfWeek, 1);

    auto* buttons = new QVBoxLayout;
    for (QPushButton* button :
         {cmdDisplayNextMonth[1], cmdDisplayNextMonth[0], cmdCopyToClipboard, cmdClose}) {
        buttons->addWidget(button);
    }
    buttons->addStretch(1);
    auto* month = new QHBoxLayout;
    month->addWidget(txbMonth, 1);
    month->addLayout(buttons);

    auto* iso = new QHBoxLayout;
    iso->addWidget(cmdShowHideISO);
    iso->addWidget(chkWithYear);
    iso->addStretch(1);

    auto* rows = new QVBoxLayout(&page_.Page());
    rows->addLayout(heading);
    rows->addLayout(options);
    rows->addLayout(month);
    rows->addLayout(iso);
    rows->addWidget(txbISODates);

    // clang-format off
    const QList<QWidget*> readingOrder = {
        cboMonths, txbYear, cmdDisplay, optCommonEra, optJulian, optSunday, optMonday, txbMonth,
        cmdDisplayNextMonth[1], cmdDisplayNextMonth[0], cmdCopyToClipboard, cmdClose,
        cmdShowHideISO, chkWithYear, txbISODates};
    // clang-format on
    for (qsizetype i = 1; i < readingOrder.size(); ++i) {
        QWidget::setTabOrder(readingOrder[i - 1], readingOrder[i]);
    }
}

void MonthControls::UpdateMnemonics() {
    SetMnemonics({lblMonth, lblYear, cmdDisplay, optCommonEra, optJulian, optSunday, optMonday,
                  cmdDisplayNextMonth[1], cmdDisplayNextMonth[0], cmdCopyToClipboard, cmdShowHideISO,
                  chkWithYear, cmdClose});
}

}  // namespace calvoro
