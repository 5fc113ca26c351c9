#include "windows/frmDisplayMonth.h"

#include <QCloseEvent>
#include <QShortcut>
#include <QSignalBlocker>
#include <utility>

#include "calendar/CheckedInt.h"
#include "platform/Twips.h"
#include "windows/Controls.h"
#include "windows/CrLfText.h"
#include "windows/MonthYear.h"
#include "windows/Placement.h"
#include "windows/QtText.h"
#include "windows/WindowActivation.h"

namespace calvoro {
namespace {

constexpr int kRightOfMainWindow = 4000;  // twips
constexpr int kBelowMainWindow = 1710;    // twips

constexpr std::int16_t kIsoHeadingText = 13;
constexpr std::int16_t kDisplayIsoText = 14;
constexpr std::int16_t kHideIsoText = 15;

}  // namespace

frmDisplayMonth::frmDisplayMonth(const Platform& platform, Texts& texts, QWidget& mainWindow,
                                 std::function<bool()> formReady)
    : boxes_(platform.boxes),
      clipboard_(platform.clipboard),
      texts_(texts),
      mainWindow_(mainWindow),
      formReady_(std::move(formReady)),
      ui_(*this) {
    setObjectName(QStringLiteral("frmDisplayMonth"));
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowIcon(mainWindow.windowIcon());

    ui_.FillMonths(texts);
    ui_.SetCaptions(texts);
    ui_.SetIsoCaption(ToQt(texts.Numbered(kDisplayIsoText)));
    ConnectControls();
    new WindowActivation(*this, [this] { OnActivated(); });
}

void frmDisplayMonth::ShowMonth(std::string_view year, std::int32_t month, CalendarNumber calendar) {
    ChooseMonth(month - 1);
    ui_.txbYear->setText(ToQt(year));
    Choose(*(calendar == CalendarNumber::JC ? ui_.optJulian : ui_.optCommonEra));

    if (!isVisible()) {
        if (!testAttribute(Qt::WA_Resized)) resize(ui_.FirstSize());
        const QPoint offset(TwipsToPixels(kRightOfMainWindow), TwipsToPixels(kBelowMainWindow));
        MoveKeptOnScreen(*this, mainWindow_.frameGeometry().topLeft() + offset, FrameSize(mainWindow_));
    }
    BringToFront(*this);
    UpdateIsoButton();
    HideIsoWhen(!IsoPossible());
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
    Choose(*(calendar == CalendarNumber::JC ? ui_.optJulian : ui_.optCommonEra));
    OnOptionsSet();
}

void frmDisplayMonth::SetLanguageDependentText() {
    ui_.SetCaptions(texts_);
}

void frmDisplayMonth::closeEvent(QCloseEvent* event) {
    OnClose();
    event->accept();
}

void frmDisplayMonth::ConnectControls() {
    connect(ui_.cmdDisplay, &QPushButton::clicked, this, &frmDisplayMonth::DisplayMonth);
    connect(ui_.cboMonths, &QComboBox::currentIndexChanged, this, &frmDisplayMonth::DisplayMonth);
    connect(ui_.txbYear, &QLineEdit::returnPressed, this, &frmDisplayMonth::DisplayMonth);

    // Only the option that becomes chosen acts.
    const auto whenChosen = [this](QRadioButton* option, std::function<void()> action) {
        connect(option, &QRadioButton::toggled, this, [action = std::move(action)](bool chosen) {
            if (chosen) action();
        });
    };
    whenChosen(ui_.optCommonEra, [this] {
        DisplayMonth();
        HideIsoWhen(ui_.optSunday->isChecked());
        UpdateIsoButton();
    });
    whenChosen(ui_.optJulian, [this] {
        DisplayMonth();
        HideIsoWhen(true);
        UpdateIsoButton();
    });
    whenChosen(ui_.optSunday, [this] {
        DisplayMonth();
        HideIsoWhen(true);
        UpdateIsoButton();
    });
    whenChosen(ui_.optMonday, [this] {
        // Deliberate: drawn twice, as this option always did; the second drawing repeats the first.
        DisplayMonth();
        DisplayMonth();
        HideIsoWhen(ui_.optJulian->isChecked());
        UpdateIsoButton();
    });

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
    onKey(Qt::CTRL | Qt::Key_PageUp, [this] { StepYear(-1); });
    onKey(Qt::CTRL | Qt::Key_PageDown, [this] { StepYear(1); });
    onKey(Qt::Key_Escape, [this] { close(); });
}

void frmDisplayMonth::OnActivated() {
    setWindowTitle(ToQt(texts_.Shown(TextId::DisplayMonth)));
    texts_.TextLanguage = texts_.InterfaceLanguage;
    ui_.FillMonths(texts_);
    // Deliberate: the column goes while its text and the button's caption stay as they are.
    ui_.SetIsoBoxShown(false);
    isoShown_ = false;
    UpdateIsoButton();
}

// Draws grid and, when it is shown, the ISO column.
// returns false, leaving the old ones, when there is no such year or it cannot be shown
bool frmDisplayMonth::Draw() {
    const std::optional<std::int32_t> year = ReadYear(ui_.txbYear->text().toStdString());
    if (!year) return false;
    const CalendarCode calendar = ui_.optJulian->isChecked() ? CalendarCode::J : CalendarCode::G;
    try {
        const MonthGrid grid = DrawMonth(*year, ui_.cboMonths->currentIndex() + 1, calendar, GetWeekStart(),
                                         ShownWeekdayNames(texts_.InterfaceLanguage));
        SetCrLfText(*ui_.txbMonth, grid.text);
        firstShownJdn_ = grid.firstShownJdn;
        weekRows_ = grid.weekRows;
    } catch (const ArithmeticOverflow&) {
        return false;
    }
    if (isoShown_) ShowIsoDates();
    return true;
}

void frmDisplayMonth::ShowIsoDates() {
    try {
        SetCrLfText(*ui_.txbISODates,
                    DrawIsoWeekDates(firstShownJdn_, weekRows_, ui_.chkWithYear->isChecked(),
                                     ShownWeekdayNames(texts_.InterfaceLanguage)));
    } catch (const ArithmeticOverflow&) {
        SetCrLfText(*ui_.txbISODates, "");
    }
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
    ui_.SetIsoCaption(ToQt(texts_.Numbered(isoShown_ ? kDisplayIsoText : kHideIsoText)));
    isoShown_ = !isoShown_;
    ui_.SetIsoBoxShown(isoShown_);
    if (isoShown_) ShowIsoDates();
}

void frmDisplayMonth::HideIsoWhen(bool condition) {
    if (isoShown_ && condition) OnShowHideISO();
}

// What options that were set, not clicked, need to agree with what is shown.
void frmDisplayMonth::OnOptionsSet() {
    if (isVisible()) Draw();
    HideIsoWhen(!IsoPossible());
    UpdateIsoButton();
}

void frmDisplayMonth::OnDisplayNextMonth(int index) {
    TrimYear();
    if (ui_.txbYear->text().isEmpty()) return;
    const int step = index == 0 ? 1 : -1;
    const int month = ui_.cboMonths->currentIndex() + step;
    if (month < 0 || month > 11) {
        const std::optional<std::string> year = SteppedYear(ui_.txbYear->text().toStdString(), step);
        if (!year) {
            PleaseSpecifyYear();
            return;
        }
        ui_.txbYear->setText(ToQt(*year));
    }
    ChooseMonth((month + 12) % 12);
    DisplayMonth();
}

// Sets the list without drawing.
void frmDisplayMonth::ChooseMonth(int index) {
    const QSignalBlocker blocker(ui_.cboMonths);
    ui_.cboMonths->setCurrentIndex(index);
}

void frmDisplayMonth::TrimYear() {
    ui_.txbYear->setText(ToQt(TrimmedBlanks(ui_.txbYear->text().toStdString())));
}

void frmDisplayMonth::StepYear(int years) {
    TrimYear();
    if (ui_.txbYear->text().isEmpty()) return;
    const std::optional<std::string> year = SteppedYear(ui_.txbYear->text().toStdString(), years);
    if (!year) {
        PleaseSpecifyYear();
        return;
    }
    ui_.txbYear->setText(ToQt(*year));
    DisplayMonth();
}

void frmDisplayMonth::PleaseSpecifyYear() {
    boxes_.Show(texts_.Shown(TextId::PleaseSpecifyYear), texts_.Shown(TextId::InvalidInput),
                MessageIcon::NoIcon);
}

void frmDisplayMonth::OnCopyToClipboard() {
    const TextId calendar = ui_.optJulian->isChecked() ? TextId::JulianCalendar : TextId::CommonEraCalendar;
    const std::string text = CopiedMonthText(
        ShownMonthName(texts_.InterfaceLanguage, ui_.cboMonths->currentIndex()),
        ui_.txbYear->text().toStdString(), texts_.Shown(calendar), CrLfText(*ui_.txbMonth),
        texts_.Numbered(kIsoHeadingText), isoShown_ ? CrLfText(*ui_.txbISODates) : std::string());
    clipboard_.Clear();
    clipboard_.SetText(text);
    ui_.cmdClose->setFocus();
}

void frmDisplayMonth::OnClose() {
    HideIsoWhen(true);
    if (mainWindow_.isVisible()) mainWindow_.activateWindow();
}

}  // namespace calvoro
