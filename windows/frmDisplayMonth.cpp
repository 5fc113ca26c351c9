#include "windows/frmDisplayMonth.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "calendar/CheckedInt.h"
#include "platform/Twips.h"
#include "windows/CrLfText.h"
#include "windows/Mnemonics.h"
#include "windows/MonthYear.h"
#include "windows/Placement.h"
#include "windows/WindowActivation.h"

namespace calvoro {
namespace {

constexpr int kMonthColumns = 36;  // a blank and seven days of five characters
constexpr int kIsoColumns = 61;    // seven dates "0-W01-1", two blanks apart
constexpr int kLines = 7;          // heading and six weeks

constexpr int kRightOfMainWindow = 4000;  // twips
constexpr int kBelowMainWindow = 1710;    // twips

constexpr std::int16_t kIsoHeadingText = 13;
constexpr std::int16_t kDisplayIsoText = 14;
constexpr std::int16_t kHideIsoText = 15;

QString Shown(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

template <typename Control>
Control* Named(Control* control, const char* name) {
    control->setObjectName(QLatin1String(name));
    return control;
}

QPushButton* NewButton(const char* name, QWidget* parent) {
    auto* button = Named(new QPushButton(parent), name);
    button->setAutoDefault(true);  // Enter presses it
    return button;
}

void Choose(QRadioButton* option) {
    const QSignalBlocker blocker(option);
    option->setChecked(true);
}

}  // namespace

frmDisplayMonth::frmDisplayMonth(const Platform& platform, Texts& texts, QWidget& mainWindow,
                                 std::function<bool()> formReady)
    : boxes_(platform.boxes),
      clipboard_(platform.clipboard),
      texts_(texts),
      mainWindow_(mainWindow),
      formReady_(std::move(formReady)),
      lblMonth(Named(new QLabel(this), "lblMonth")),
      cboMonths(Named(new QComboBox(this), "cboMonths")),
      lblYear(Named(new QLabel(this), "lblYear")),
      txbYear(Named(new QLineEdit(this), "txbYear")),
      cmdDisplay(NewButton("cmdDisplay", this)),
      txbMonth(Named(new FixedPitchBox(kMonthColumns, kLines, this), "txbMonth")),
      fraCalendar(Named(new QGroupBox(this), "fraCalendar")),
      optCommonEra(Named(new QRadioButton(fraCalendar), "optCommonEra")),
      optJulian(Named(new QRadioButton(fraCalendar), "optJulian")),
      fraFirstDayOfWeek(Named(new QGroupBox(this), "fraFirstDayOfWeek")),
      optSunday(Named(new QRadioButton(fraFirstDayOfWeek), "optSunday")),
      optMonday(Named(new QRadioButton(fraFirstDayOfWeek), "optMonday")),
      cmdDisplayNextMonth{NewButton("cmdDisplayNextMonth0", this), NewButton("cmdDisplayNextMonth1", this)},
      cmdCopyToClipboard(NewButton("cmdCopyToClipboard", this)),
      cmdShowHideISO(NewButton("cmdShowHideISO", this)),
      chkWithYear(Named(new QCheckBox(this), "chkWithYear")),
      cmdClose(NewButton("cmdClose", this)),
      txbISODates(Named(new FixedPitchBox(kIsoColumns, kLines, this), "txbISODates")) {
    setObjectName(QStringLiteral("frmDisplayMonth"));
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowIcon(mainWindow.windowIcon());

    lblMonth->setBuddy(cboMonths);
    lblYear->setBuddy(txbYear);
    FillMonths();
    cboMonths->setCurrentIndex(0);
    optCommonEra->setChecked(true);
    optSunday->setChecked(true);
    chkWithYear->setChecked(true);
    txbISODates->hide();
    SetLanguageDependentText();
    SetCaption(*cmdShowHideISO, Shown(texts_.Numbered(kDisplayIsoText)));
    UpdateMnemonics();

    BuildLayout();
    ConnectControls();
    new WindowActivation(*this, [this] { OnActivated(); });
}

void frmDisplayMonth::ShowMonth(std::string_view year, std::int32_t month, CalendarNumber calendar) {
    {
        const QSignalBlocker months(cboMonths);
        cboMonths->setCurrentIndex(month - 1);
    }
    txbYear->setText(Shown(year));
    Choose(calendar == CalendarNumber::JC ? optJulian : optCommonEra);

    if (!isVisible()) {
        if (!testAttribute(Qt::WA_Resized)) resize(sizeHint().boundedTo(screen()->availableSize()));
        MoveKeptOnScreen(*this,
                         mainWindow_.frameGeometry().topLeft() +
                             QPoint(TwipsToPixels(kRightOfMainWindow), TwipsToPixels(kBelowMainWindow)));
    }
    if (isMinimized()) {
        showNormal();
    } else {
        show();
    }
    raise();
    activateWindow();
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
    cmdClose->setFocus();
}

WeekStart frmDisplayMonth::GetWeekStart() const {
    return optSunday->isChecked() ? WeekStart::Sunday : WeekStart::Monday;
}

void frmDisplayMonth::SetWeekStart(WeekStart weekStart) {
    Choose(weekStart == WeekStart::Sunday ? optSunday : optMonday);
    OnOptionsSet();
}

CalendarNumber frmDisplayMonth::GetCalendar() const {
    return optJulian->isChecked() ? CalendarNumber::JC : CalendarNumber::CE;
}

void frmDisplayMonth::SetCalendar(CalendarNumber calendar) {
    Choose(calendar == CalendarNumber::JC ? optJulian : optCommonEra);
    OnOptionsSet();
}

void frmDisplayMonth::SetLanguageDependentText() {
    const auto weekdays = ShownWeekdayNames(texts_.InterfaceLanguage);
    SetCaption(*lblMonth, Shown(texts_.Shown(TextId::Month)));
    SetCaption(*lblYear, Shown(texts_.Shown(TextId::Year)));
    SetCaption(*cmdDisplay, Shown(texts_.Shown(TextId::DisplayMonth)));
    fraCalendar->setTitle(Shown(texts_.Shown(TextId::Calendar)));
    SetCaption(*optCommonEra, Shown(texts_.Shown(TextId::CommonEra)));
    SetCaption(*optJulian, Shown(texts_.Shown(TextId::Julian)));
    fraFirstDayOfWeek->setTitle(Shown(texts_.Shown(TextId::FirstDayOfWeek)));
    SetCaption(*optSunday, Shown(weekdays[0]));
    SetCaption(*optMonday, Shown(weekdays[1]));
    SetCaption(*cmdDisplayNextMonth[0], Shown(texts_.Shown(TextId::DisplayNextMonth)));
    SetCaption(*cmdDisplayNextMonth[1], Shown(texts_.Shown(TextId::DisplayPreviousMonth)));
    SetCaption(*cmdCopyToClipboard, Shown(texts_.Shown(TextId::CopyToClipboard)));
    SetCaption(*cmdShowHideISO, Shown(texts_.Shown(TextId::DisplayISOWeekDates)));
    SetCaption(*chkWithYear, Shown(texts_.Shown(TextId::WithFinalDigitOfYear)));
    SetCaption(*cmdClose, Shown(texts_.Shown(TextId::Close)));
    UpdateMnemonics();

    cboMonths->setAccessibleName(Shown(texts_.Shown(TextId::Month)));
    txbYear->setAccessibleName(Shown(texts_.Shown(TextId::Year)));
    txbMonth->setAccessibleName(Shown(texts_.Shown(TextId::Calendar)));
    txbISODates->setAccessibleName(Shown(texts_.Shown(TextId::ISOWeekDate)));
}

void frmDisplayMonth::closeEvent(QCloseEvent* event) {
    OnClose();
    event->accept();
}

void frmDisplayMonth::BuildLayout() {
    auto* heading = new QHBoxLayout;
    heading->addWidget(lblMonth);
    heading->addWidget(cboMonths);
    heading->addSpacing(TwipsToPixels(150));
    heading->addWidget(lblYear);
    heading->addWidget(txbYear, 1);
    heading->addWidget(cmdDisplay);

    auto* calendars = new QVBoxLayout(fraCalendar);
    calendars->addWidget(optCommonEra);
    calendars->addWidget(optJulian);
    auto* weekStarts = new QVBoxLayout(fraFirstDayOfWeek);
    weekStarts->addWidget(optSunday);
    weekStarts->addWidget(optMonday);
    auto* options = new QVBoxLayout;
    options->addWidget(fraCalendar);
    options->addWidget(fraFirstDayOfWeek);
    options->addStretch(1);

    auto* steps = new QHBoxLayout;
    steps->addWidget(cmdDisplayNextMonth[1]);
    steps->addWidget(cmdDisplayNextMonth[0]);
    steps->addStretch(1);
    auto* iso = new QHBoxLayout;
    iso->addWidget(cmdShowHideISO);
    iso->addWidget(chkWithYear);
    iso->addStretch(1);

    auto* grid = new QGridLayout(this);
    grid->addLayout(heading, 0, 0, 1, 2);
    grid->addWidget(txbMonth, 1, 0);
    grid->addLayout(options, 1, 1);
    grid->addLayout(steps, 2, 0);
    grid->addWidget(cmdCopyToClipboard, 2, 1);
    grid->addLayout(iso, 3, 0);
    grid->addWidget(cmdClose, 3, 1);
    grid->addWidget(txbISODates, 4, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(1, 1);
    grid->setRowStretch(4, 1);

    const std::array<QWidget*, 14> readingOrder = {cboMonths,
                                                   txbYear,
                                                   cmdDisplay,
                                                   txbMonth,
                                                   optCommonEra,
                                                   optJulian,
                                                   optSunday,
                                                   optMonday,
                                                   cmdDisplayNextMonth[1],
                                                   cmdDisplayNextMonth[0],
                                                   cmdCopyToClipboard,
                                                   cmdShowHideISO,
                                                   chkWithYear,
                                                   cmdClose};
    for (std::size_t i = 1; i < readingOrder.size(); ++i) setTabOrder(readingOrder[i - 1], readingOrder[i]);
    setTabOrder(cmdClose, txbISODates);
}

void frmDisplayMonth::ConnectControls() {
    connect(cmdDisplay, &QPushButton::clicked, this, &frmDisplayMonth::DisplayMonth);
    connect(cboMonths, &QComboBox::currentIndexChanged, this, &frmDisplayMonth::DisplayMonth);
    connect(txbYear, &QLineEdit::returnPressed, this, &frmDisplayMonth::DisplayMonth);

    // Only the option that becomes chosen acts.
    const auto whenChosen = [this](QRadioButton* option, std::function<void()> action) {
        connect(option, &QRadioButton::toggled, this, [action = std::move(action)](bool chosen) {
            if (chosen) action();
        });
    };
    whenChosen(optCommonEra, [this] {
        DisplayMonth();
        HideIsoWhen(optSunday->isChecked());
        UpdateIsoButton();
    });
    whenChosen(optJulian, [this] {
        DisplayMonth();
        HideIsoWhen(true);
        UpdateIsoButton();
    });
    whenChosen(optSunday, [this] {
        DisplayMonth();
        HideIsoWhen(true);
        UpdateIsoButton();
    });
    whenChosen(optMonday, [this] {
        // Deliberate: drawn twice, as this option always did; the second drawing repeats the first.
        DisplayMonth();
        DisplayMonth();
        HideIsoWhen(optJulian->isChecked());
        UpdateIsoButton();
    });

    for (int index : {0, 1}) {
        connect(cmdDisplayNextMonth[static_cast<std::size_t>(index)], &QPushButton::clicked, this,
                [this, index] { OnDisplayNextMonth(index); });
    }
    connect(cmdShowHideISO, &QPushButton::clicked, this, &frmDisplayMonth::OnShowHideISO);
    connect(chkWithYear, &QCheckBox::toggled, this, [this] {
        if (isoShown_) ShowIsoDates();
    });
    connect(cmdCopyToClipboard, &QPushButton::clicked, this, &frmDisplayMonth::OnCopyToClipboard);
    connect(cmdClose, &QPushButton::clicked, this, &QWidget::close);

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
    setWindowTitle(Shown(texts_.Shown(TextId::DisplayMonth)));
    texts_.TextLanguage = texts_.InterfaceLanguage;
    FillMonths();
    if (!optSunday->isChecked()) Choose(optMonday);
    if (!optJulian->isChecked()) Choose(optCommonEra);
    // Deliberate: the column goes while its text and the button's caption stay as they are.
    SetIsoBoxShown(false);
    isoShown_ = false;
    UpdateIsoButton();
}

void frmDisplayMonth::FillMonths() {
    const QSignalBlocker blocker(cboMonths);
    const int index = cboMonths->currentIndex();
    cboMonths->clear();
    for (std::int32_t month = 0; month < 12; ++month) {
        cboMonths->addItem(Shown(ShownMonthName(texts_.InterfaceLanguage, month)));
    }
    cboMonths->setCurrentIndex(index);
}

void frmDisplayMonth::UpdateMnemonics() {
    SetMnemonics({lblMonth, lblYear, cmdDisplay, optCommonEra, optJulian, optSunday, optMonday,
                  cmdDisplayNextMonth[1], cmdDisplayNextMonth[0], cmdCopyToClipboard, cmdShowHideISO,
                  chkWithYear, cmdClose});
}

// Draws grid and, when it is shown, the ISO column.
// returns false, leaving the old ones, when there is no such year or it cannot be shown
bool frmDisplayMonth::Draw() {
    const std::optional<std::int32_t> year = ReadYear(txbYear->text().toStdString());
    if (!year) return false;
    try {
        const CalendarCode calendar = optJulian->isChecked() ? CalendarCode::J : CalendarCode::G;
        const MonthGrid grid = DrawMonth(*year, cboMonths->currentIndex() + 1, calendar, GetWeekStart(),
                                         ShownWeekdayNames(texts_.InterfaceLanguage));
        SetCrLfText(*txbMonth, grid.text);
        firstShownJdn_ = grid.firstShownJdn;
        weekRows_ = grid.weekRows;
        if (isoShown_) ShowIsoDates();
    } catch (const ArithmeticOverflow&) {
        return false;
    }
    return true;
}

void frmDisplayMonth::ShowIsoDates() {
    SetCrLfText(*txbISODates, DrawIsoWeekDates(firstShownJdn_, weekRows_, chkWithYear->isChecked(),
                                               ShownWeekdayNames(texts_.InterfaceLanguage)));
}

bool frmDisplayMonth::IsoPossible() const {
    return optCommonEra->isChecked() && optMonday->isChecked();
}

void frmDisplayMonth::UpdateIsoButton() {
    if (!formReady_()) return;
    cmdShowHideISO->setEnabled(IsoPossible());
    chkWithYear->setEnabled(cmdShowHideISO->isEnabled());
}

void frmDisplayMonth::OnShowHideISO() {
    SetCaption(*cmdShowHideISO, Shown(texts_.Numbered(isoShown_ ? kDisplayIsoText : kHideIsoText)));
    UpdateMnemonics();
    isoShown_ = !isoShown_;
    SetIsoBoxShown(isoShown_);
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

// The window grows and shrinks by the ISO box, so that the rest of it keeps its size.
void frmDisplayMonth::SetIsoBoxShown(bool shown) {
    if (txbISODates->isHidden() != shown) return;
    const int spacing = layout()->spacing();
    const int change =
        shown ? txbISODates->sizeHint().height() + spacing : -(txbISODates->height() + spacing);
    txbISODates->setVisible(shown);
    layout()->activate();
    resize(width(), std::min(height() + change, screen()->availableSize().height()));
    if (shown && isVisible()) MoveKeptOnScreen(*this, pos());
}

void frmDisplayMonth::OnDisplayNextMonth(int index) {
    TrimYear();
    if (txbYear->text().isEmpty()) return;
    const int step = index == 0 ? 1 : -1;
    const int month = cboMonths->currentIndex() + step;
    if (month < 0 || month > 11) {
        const std::optional<std::string> year = SteppedYear(txbYear->text().toStdString(), step);
        if (!year) {
            PleaseSpecifyYear();
            return;
        }
        txbYear->setText(Shown(*year));
    }
    const QSignalBlocker blocker(cboMonths);
    cboMonths->setCurrentIndex((month + 12) % 12);
    DisplayMonth();
}

void frmDisplayMonth::TrimYear() {
    txbYear->setText(Shown(TrimmedBlanks(txbYear->text().toStdString())));
}

void frmDisplayMonth::StepYear(int years) {
    TrimYear();
    if (txbYear->text().isEmpty()) return;
    const std::optional<std::string> year = SteppedYear(txbYear->text().toStdString(), years);
    if (!year) {
        PleaseSpecifyYear();
        return;
    }
    txbYear->setText(Shown(*year));
    DisplayMonth();
}

void frmDisplayMonth::PleaseSpecifyYear() {
    boxes_.Show(texts_.Shown(TextId::PleaseSpecifyYear), texts_.Shown(TextId::InvalidInput),
                MessageIcon::NoIcon);
}

void frmDisplayMonth::OnCopyToClipboard() {
    const TextId calendar = optJulian->isChecked() ? TextId::JulianCalendar : TextId::CommonEraCalendar;
    const std::string text =
        CopiedMonthText(ShownMonthName(texts_.InterfaceLanguage, cboMonths->currentIndex()),
                        txbYear->text().toStdString(), texts_.Shown(calendar), CrLfText(*txbMonth),
                        texts_.Numbered(kIsoHeadingText), isoShown_ ? CrLfText(*txbISODates) : std::string());
    clipboard_.Clear();
    clipboard_.SetText(text);
    cmdClose->setFocus();
}

void frmDisplayMonth::OnClose() {
    HideIsoWhen(true);
    if (mainWindow_.isVisible()) mainWindow_.activateWindow();
}

}  // namespace calvoro
