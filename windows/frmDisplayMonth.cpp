#include "windows/frmDisplayMonth.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QShortcut>
#include <QSignalBlocker>
#include <utility>

#include "calendar/StaysIn32Bits.h"
#include "datetext/Blanks.h"
#include "text/DateNames.h"
#include "text/NumberedTexts.h"
#include "windows/AccessibleRole.h"
#include "windows/Controls.h"
#include "windows/CrLfText.h"
#include "windows/MonthYear.h"
#include "windows/Placement.h"
#include "windows/QtText.h"
#include "windows/Twips.h"
#include "windows/WindowActivation.h"

namespace calvoro {
namespace {

constexpr int kRightOfMainWindow = 4000;  // twips
constexpr int kBelowMainWindow = 1710;    // twips

}  // namespace

frmDisplayMonth::frmDisplayMonth(const Platform& platform, Texts& texts, QWidget& mainWindow,
                                 std::function<bool()> formReady)
    : boxes_(platform.boxes),
      clipboard_(platform.clipboard),
      texts_(texts),
      mainWindow_(mainWindow),
      formReady_(std::move(formReady)),
      ui_(*this),
      announcer_(new Announcer(this)) {
    setObjectName(QStringLiteral("frmDisplayMonth"));
    setAttribute(Qt::WA_QuitOnClose, false);
    SetAccessibleRole(*this, QAccessible::Window);
    setWindowIcon(mainWindow.windowIcon());

    ui_.FillMonths(texts);
    ui_.SetIsoCaption(ToQt(texts.GetProgramText(kDisplayIsoText)));
    SetCaptions();
    whenIdle_.setSingleShot(true);
    connect(&whenIdle_, &QTimer::timeout, this, [this] { announcer_->Announce(announced_); });
    ConnectControls();
    new WindowActivation(*this, [this] { OnActivated(); });
}

void frmDisplayMonth::ShowMonth(std::string_view year, std::int32_t month, CalendarNumber calendar) {
    ChooseMonth(month - 1);
    ui_.txbYear->setText(ToQt(year));
    ChooseCalendar(calendar);

    if (!isVisible()) {
        if (!testAttribute(Qt::WA_Resized)) resize(ui_.FirstSize());
        const QPoint offset(TwipsToPixels(kRightOfMainWindow), TwipsToPixels(kBelowMainWindow));
        MoveKeptOnScreen(*this, mainWindow_.frameGeometry().topLeft() + offset, FrameSize(mainWindow_));
    }
    BringToFront(*this);
    FollowIsoPossible();
    DisplayMonth();
}

void frmDisplayMonth::DisplayMonth() {
    // Options may be set before the window is shown.
    if (!isVisible()) return;
    if (!Draw()) {
        PleaseSpecifyYear();
        return;
    }
    ui_.cmdClose->setFocus();
    AnnounceHeading();
}

WeekStart frmDisplayMonth::GetWeekStart() const {
    return ui_.optSunday->isChecked() ? WeekStart::Sunday : WeekStart::Monday;
}

void frmDisplayMonth::SetWeekStart(WeekStart weekStart) {
    Choose(*(weekStart == WeekStart::Sunday ? ui_.optSunday : ui_.optMonday));
    OnOptionsSet();
}

CalendarNumber frmDisplayMonth::GetCalendar() const {
    return ui_.optJulian->isChecked() ? CalendarNumber::JC : CalendarNumber::CE;
}

void frmDisplayMonth::SetCalendar(CalendarNumber calendar) {
    ChooseCalendar(calendar);
    OnOptionsSet();
}

void frmDisplayMonth::SetLanguageDependentText() {
    SetCaptions();
    ui_.FillMonths(texts_);
    if (isVisible()) Draw();
}

void frmDisplayMonth::closeEvent(QCloseEvent* event) {
    OnClose();
    event->accept();
}

// Esc as a key, not as a shortcut of the window, which would reach into the open list of months.
void frmDisplayMonth::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void frmDisplayMonth::ConnectControls() {
    connect(ui_.cmdDisplay, &QPushButton::clicked, this, &frmDisplayMonth::DisplayMonth);
    connect(ui_.cboMonths, &QComboBox::currentIndexChanged, this, &frmDisplayMonth::DisplayMonth);
    connect(ui_.txbYear, &QLineEdit::returnPressed, this, &frmDisplayMonth::DisplayMonth);

    for (QRadioButton* option : {ui_.optCommonEra, ui_.optJulian, ui_.optSunday, ui_.optMonday}) {
        connect(option, &QRadioButton::toggled, this, [this, option](bool chosen) {
            // Only the option that becomes chosen acts.
            if (!chosen) return;
            DisplayMonth();
            // Deliberate: drawn twice; the second drawing repeats the first, with a bad year its message too.
            if (option == ui_.optMonday) DisplayMonth();
            FollowIsoPossible();
        });
    }

    for (int index : {0, 1}) {
        connect(ui_.cmdDisplayNextMonth[static_cast<std::size_t>(index)], &QPushButton::clicked, this,
                [this, index] { OnDisplayNextMonth(index); });
    }
    connect(ui_.cmdShowHideISO, &QPushButton::clicked, this, &frmDisplayMonth::OnShowHideISO);
    connect(ui_.chkWithYear, &QCheckBox::toggled, this, [this] {
        if (isoShown_) ShowIsoDates();
    });
    connect(ui_.cmdCopyToClipboard, &QPushButton::clicked, this, &frmDisplayMonth::OnCopyToClipboard);
    connect(ui_.cmdClose, &QPushButton::clicked, this, &QWidget::close);

    const auto onKey = [this](const QKeySequence& key, std::function<void()> action) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, std::move(action));
    };
    onKey(Qt::Key_PageUp, [this] { OnDisplayNextMonth(1); });
    onKey(Qt::Key_PageDown, [this] { OnDisplayNextMonth(0); });
    onKey(Qt::CTRL | Qt::Key_PageUp, [this] {
        if (ChangeYear(-1)) DisplayMonth();
    });
    onKey(Qt::CTRL | Qt::Key_PageDown, [this] {
        if (ChangeYear(1)) DisplayMonth();
    });
}

void frmDisplayMonth::OnActivated() {
    SetTitle();
    texts_.TextLanguage = texts_.InterfaceLanguage;
    ui_.FillMonths(texts_);
    // Deliberate: the column goes while its text and the button's caption stay as they are.
    ui_.SetIsoBoxShown(false);
    isoShown_ = false;
    UpdateIsoButton();
}

// The button for the ISO dates tells with a numbered text that they are shown.
void frmDisplayMonth::SetCaptions() {
    SetTitle();
    ui_.SetCaptions(texts_);
    if (!isoShown_) ui_.SetIsoCaption(ToQt(texts_.Shown(TextId::DisplayISOWeekDates)));
}

void frmDisplayMonth::SetTitle() {
    setWindowTitle(ToQt(texts_.Shown(TextId::DisplayMonth)));
}

// Draws grid and, when it is shown, the ISO column.
// returns false, leaving the old ones, when there is no such year or it cannot be shown
bool frmDisplayMonth::Draw() {
    ui_.DescribeMonth(texts_.InterfaceLanguage);
    const std::optional<std::int32_t> year = ReadYear(ui_.txbYear->text().toStdString());
    if (!year) return false;
    const CalendarCode calendar = ui_.optJulian->isChecked() ? CalendarCode::J : CalendarCode::G;
    MonthGrid grid;
    if (!StaysIn32Bits([&] {
            grid = DrawMonth(*year, ui_.cboMonths->currentIndex() + 1, calendar, GetWeekStart(),
                             ShownWeekdayNames(texts_.InterfaceLanguage));
        })) {
        return false;
    }
    SetCrLfText(*ui_.txbMonth, grid.text);
    firstShownJdn_ = grid.firstShownJdn;
    weekRows_ = grid.weekRows;
    ui_.txbMonth->setAccessibleName(ToQt(Heading()));
    if (isoShown_) ShowIsoDates();
    return true;
}

// "September 2024 (Common Era Calendar)"
std::string frmDisplayMonth::Heading() const {
    std::string heading(ShownMonthName(texts_.InterfaceLanguage, ui_.cboMonths->currentIndex()));
    heading.append(" ").append(TrimBlanks(ui_.txbYear->text().toStdString()));
    return heading.append(" (").append(CalendarName()).append(")");
}

std::string_view frmDisplayMonth::CalendarName() const {
    return texts_.Shown(ui_.optJulian->isChecked() ? TextId::JulianCalendar : TextId::CommonEraCalendar);
}

// Once for each month that comes up, however often it is drawn.
void frmDisplayMonth::AnnounceHeading() {
    const std::string heading = Heading();
    if (heading == announced_) return;
    announced_ = heading;
    if (isActiveWindow()) {
        announcer_->Announce(heading);
    } else {
        announceWhenActive_ = true;
    }
}

// A reader tells first which window it is in.
void frmDisplayMonth::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isActiveWindow()) return;
    if (std::exchange(announceWhenActive_, false)) whenIdle_.start();
}

void frmDisplayMonth::ShowIsoDates() {
    std::string dates;  // none where their week has no year
    StaysIn32Bits([&] {
        dates = DrawIsoWeekDates(firstShownJdn_, weekRows_, ui_.chkWithYear->isChecked(),
                                 ShownWeekdayNames(texts_.InterfaceLanguage));
    });
    SetCrLfText(*ui_.txbISODates, dates);
}

bool frmDisplayMonth::IsoPossible() const {
    return ui_.optCommonEra->isChecked() && ui_.optMonday->isChecked();
}

void frmDisplayMonth::UpdateIsoButton() {
    if (!formReady_()) return;
    ui_.cmdShowHideISO->setEnabled(IsoPossible());
    ui_.chkWithYear->setEnabled(ui_.cmdShowHideISO->isEnabled());
}

void frmDisplayMonth::OnShowHideISO() {
    ui_.SetIsoCaption(ToQt(texts_.GetProgramText(isoShown_ ? kDisplayIsoText : kHideIsoText)));
    isoShown_ = !isoShown_;
    ui_.SetIsoBoxShown(isoShown_);
    if (isoShown_) ShowIsoDates();
}

void frmDisplayMonth::HideIso() {
    if (isoShown_) OnShowHideISO();
}

// Shows the ISO dates of Common Era weeks from Monday only.
void frmDisplayMonth::FollowIsoPossible() {
    if (!IsoPossible()) HideIso();
    UpdateIsoButton();
}

// What options that were set, not clicked, need to agree with what is shown.
void frmDisplayMonth::OnOptionsSet() {
    if (isVisible()) Draw();
    FollowIsoPossible();
}

void frmDisplayMonth::OnDisplayNextMonth(int index) {
    const int step = index == 0 ? 1 : -1;
    const int month = ui_.cboMonths->currentIndex() + step;
    if (!ChangeYear(month < 0 || month > 11 ? step : 0)) return;
    ChooseMonth((month + 12) % 12);
    DisplayMonth();
}

// Sets the list without drawing.
void frmDisplayMonth::ChooseMonth(int index) {
    const QSignalBlocker blocker(ui_.cboMonths);
    ui_.cboMonths->setCurrentIndex(index);
}

// Sets the box for the year without drawing.
// years    0 leaves it as it is, but for blanks at its ends
// returns  false when it is empty or, after a message, holds no year to step from
bool frmDisplayMonth::ChangeYear(int years) {
    const std::string text = ui_.txbYear->text().toStdString();
    const std::string_view trimmed = TrimBlanks(text);
    ui_.txbYear->setText(ToQt(trimmed));
    if (trimmed.empty()) return false;
    if (years == 0) return true;
    const std::optional<std::string> year = SteppedYear(trimmed, years);
    if (year) {
        ui_.txbYear->setText(ToQt(*year));
    } else {
        PleaseSpecifyYear();
    }
    return year.has_value();
}

void frmDisplayMonth::ChooseCalendar(CalendarNumber calendar) {
    Choose(*(calendar == CalendarNumber::JC ? ui_.optJulian : ui_.optCommonEra));
}

void frmDisplayMonth::PleaseSpecifyYear() {
    boxes_.Show(texts_.Shown(TextId::PleaseSpecifyYear), texts_.Shown(TextId::InvalidInput),
                MessageIcon::NoIcon);
}

void frmDisplayMonth::OnCopyToClipboard() {
    const std::string text = CopiedMonthText(
        ShownMonthName(texts_.InterfaceLanguage, ui_.cboMonths->currentIndex()),
        ui_.txbYear->text().toStdString(), CalendarName(), CrLfText(*ui_.txbMonth),
        texts_.GetProgramText(kIsoHeadingText), isoShown_ ? CrLfText(*ui_.txbISODates) : std::string());
    clipboard_.Clear();
    clipboard_.SetText(text);
    ui_.cmdClose->setFocus();
}

void frmDisplayMonth::OnClose() {
    announced_.clear();
    HideIso();
    if (mainWindow_.isVisible()) mainWindow_.activateWindow();
}

}  // namespace calvoro
