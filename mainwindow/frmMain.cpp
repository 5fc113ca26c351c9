#include "mainwindow/frmMain.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QShortcut>
#include <utility>

#include "calendar/EuroDate.h"
#include "compute/ComputeClick.h"
#include "mainwindow/BoxDate.h"
#include "mainwindow/Captions.h"
#include "mainwindow/ControlTables.h"
#include "mainwindow/MainLayout.h"
#include "mainwindow/QtText.h"
#include "mainwindow/SettingsFile.h"
#include "windows/WebLink.h"

namespace calvoro {
namespace {

const QString kTitle = QStringLiteral("Calvoro");
const QString kVersionInTitle = QStringLiteral(" 13.0");
constexpr std::int16_t kSettingsFolderText = 310;

}  // namespace

frmMain::frmMain(const Platform& platform, WebAddresses addresses)
    : platform_(platform),
      addresses_(std::move(addresses)),
      settingsFilePath_(SettingsFilePath(platform_.place.BaseFolder(),
                                         GetProgramText(kSettingsFolderText, LanguageEnglish))),
      controls_(this),
      options_(controls_, platform_.digitGrouping),
      windows_(*this, platform_, addresses_, state_),
      boxes_(controls_, options_, state_, platform_),
      todayLine_(controls_, options_, state_, platform_.clock),
      output_(controls_, state_, platform_, boxes_, windows_),
      computeWindow_(
          boxes_, options_, state_, output_, platform_, [this] { return AskWhichBoxToClear(); },
          [this] {
              controls_.units->Choose(RowOf(kUnitOptions, DifferenceUnit::Days));
              OnUnit();
          }),
      calendarChange_(controls_, options_, state_, platform_, boxes_, todayLine_),
      spinners_(controls_, boxes_, computeWindow_),
      inputKeys_(new InputKeys(this, controls_, options_)),
      announcer_(new ResultAnnouncer(this)) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(kTitle);
    ArrangeControls(this, controls_);
    options_.Apply(Settings());
    ConnectInputs();
    ConnectOptions();
    ConnectOutput();
    ConnectWindows();
}

void frmMain::ConnectInputs() {
    connect(controls_.cmdCompute, &QPushButton::clicked, this, &frmMain::OnCompute);
    connect(inputKeys_, &InputKeys::EnterPressed, this, &frmMain::OnCompute);
    connect(inputKeys_, &InputKeys::StepPressed, this, [this](InputBox box, int value) {
        spinners_.VScroll(box == InputBox::FirstDate ? 0 : 1, value);
    });
    connect(controls_.VScroll0, &SpinArrows::Stepped, this,
            [this](int value) { spinners_.VScroll(0, value); });
    connect(controls_.VScroll1, &SpinArrows::Stepped, this,
            [this](int value) { spinners_.VScroll(1, value); });
    connect(controls_.cmdToday0, &QPushButton::clicked, this, [this] { cmdToday_Click(0); });
    connect(controls_.cmdToday1, &QPushButton::clicked, this, [this] { cmdToday_Click(1); });
    connect(controls_.cmdClearFirstDate, &QPushButton::clicked, this,
            [this] { boxes_.Clear(InputBox::FirstDate); });
    connect(controls_.cmdClearDateDiff, &QPushButton::clicked, this,
            [this] { boxes_.Clear(InputBox::Difference); });
    connect(controls_.cmdClearSecondDate, &QPushButton::clicked, this,
            [this] { boxes_.Clear(InputBox::SecondDate); });
    connect(controls_.cmdMoveSecondDateToFirst, &QPushButton::clicked, this,
            [this] { boxes_.MoveSecondDateToFirst(); });
}

void frmMain::ConnectOptions() {
    connect(controls_.firstCalendars, &OptionGroup::ChosenByUser, this,
            [this](int index) { calendarChange_.ChangeFirstDateCalendar(ValueAt(kCalendarOptions, index)); });
    connect(controls_.secondCalendars, &OptionGroup::ChosenByUser, this, [this](int index) {
        calendarChange_.ChangeSecondDateCalendar(ValueAt(kCalendarOptions, index));
    });
    connect(controls_.dateFormats, &OptionGroup::ChosenByUser, this, &frmMain::OnDateFormat);
    connect(controls_.dateSeparators, &OptionGroup::ChosenByUser, this, &frmMain::OnDateFormat);
    connect(controls_.thousandsSeparators, &OptionGroup::ChosenByUser, this, &frmMain::SetTheFocus);
    connect(controls_.units, &OptionGroup::ChosenByUser, this, &frmMain::OnUnit);
    connect(controls_.languages, &OptionGroup::ChosenByUser, this, &frmMain::OnLanguage);
    for (QCheckBox* box : {controls_.chkIncludeFirstDate, controls_.chkIncludeWeekends, controls_.chkVerbose,
                           controls_.chkSaveOutput}) {
        connect(box, &QCheckBox::clicked, this, &frmMain::SetTheFocus);
    }
    connect(controls_.chkHyphen, &QCheckBox::clicked, this, &frmMain::OnHyphen);
    connect(controls_.lblHyphen, &ClickableLabel::Pressed, controls_.chkHyphen, &QCheckBox::click);
}

void frmMain::ConnectOutput() {
    connect(controls_.Clock, &QTimer::timeout, this, [this] { output_.FollowLength(); });
    connect(controls_.cmdClearOutputWindow, &QPushButton::clicked, this, [this] { output_.Clear(); });
    connect(controls_.cmdCopyToClipboard, &QPushButton::clicked, this, [this] { output_.CopyToClipboard(); });
    connect(controls_.cmdEnlarge, &QPushButton::clicked, this, [this] { output_.Enlarge(); });
}

void frmMain::ConnectWindows() {
    connect(controls_.cmdDisplayMonth, &QPushButton::clicked, this, &frmMain::OnDisplayMonth);
    connect(controls_.cmdHelp, &QPushButton::clicked, this, [this] { windows_.ShowHelp(); });
    connect(controls_.cmdReset, &QPushButton::clicked, this, &frmMain::OnReset);
    connect(controls_.cmdQuit, &QPushButton::clicked, this, &frmMain::QuitAndSave);
    connect(controls_.lblOnlineDocumentation, &ClickableLabel::Pressed, this,
            &frmMain::OnOnlineDocumentation);
    connect(controls_.lblVantorelSystems, &ClickableLabel::Pressed, this,
            [this] { OpenWebPage(platform_.web, platform_.boxes, addresses_.homePage); });
    connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, controls_.cmdHelp,
            &QPushButton::click);
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q), this), &QShortcut::activated, this,
            &frmMain::QuitAndSave);
}

void frmMain::Start() {
    SetLanguageDependentText();
    output_.DisableButtons();
    setWindowTitle(windowTitle() + kVersionInTitle);
    resize(FirstSize());
    show();
    controls_.txbFirstDate->setFocus();
    ReadSettings();
    controls_.Clock->start();
    boxes_.Select(InputBox::FirstDate);
    controls_.chkSaveOutput->setEnabled(true);
    state_.FormReady = true;
    todayLine_.Refresh();
    state_.texts.TextLanguage = LanguageEnglish;
}

// Wide enough for a result line with its breakdown, and no larger than the screen.
QSize frmMain::FirstSize() const {
    constexpr int kCharactersInResultLine = 140;
    const int width = fontMetrics().averageCharWidth() * kCharactersInResultLine;
    const QSize screenSize = screen()->availableSize();
    return sizeHint().expandedTo({width, 0}).boundedTo(screenSize);
}

void frmMain::QuitAndSave() {
    if (!saved_) WriteSettings();
    saved_ = true;
    // exit, not quit: quit first asks every open window to close, and a window may refuse.
    QCoreApplication::exit(0);
}

void frmMain::SetLanguageDependentText() {
    SetCaptions(controls_, state_.texts);
    SetExampleCaptions(controls_, state_.texts, options_.ReadTextOptions());
    windows_.SetLanguageDependentText();
}

void frmMain::SetTheFocus() {
    boxes_.SetTheFocus();
}

DateFormat frmMain::UsersDateFormat() const {
    return options_.UsersDateFormat();
}

CalendarNumber frmMain::GetCal(int which) const {
    return options_.GetCal(which == 1 ? InputBox::FirstDate : InputBox::SecondDate);
}

void frmMain::cmdToday_Click(int index) {
    boxes_.FillWithToday(index == 0 ? InputBox::FirstDate : InputBox::SecondDate);
}

void frmMain::closeEvent(QCloseEvent* event) {
    event->accept();
    QuitAndSave();
}

void frmMain::keyPressEvent(QKeyEvent* event) {
    // Enter on a control that makes nothing of it, such as an option.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        OnCompute();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void frmMain::OnCompute() {
    const ClickOutcome outcome = cmdCompute_Click(computeWindow_, state_.compute);
    const std::string appended = computeWindow_.TakeAppended();
    if (outcome == ClickOutcome::Result) announcer_->Announce(appended);
}

bool frmMain::AskWhichBoxToClear() {
    const std::optional<InputBox> box = windows_.AskWhichBoxToClear();
    if (box) controls_.Box(*box)->clear();
    return box.has_value();
}

// The boxes' texts would not read any more, or read as other dates.
void frmMain::OnDateFormat() {
    SetSeparatorCaptions(controls_, options_.UsersDateFormat());
    boxes_.ClearInputBoxes();
    todayLine_.Refresh();
}

void frmMain::OnUnit() {
    options_.FollowUnit();
    SetTheFocus();
}

void frmMain::OnHyphen() {
    SetOrdinalCaptions(controls_, state_.texts, controls_.chkHyphen->isChecked());
    boxes_.RewriteHyphens();
}

void frmMain::OnLanguage(int index) {
    state_.texts.InterfaceLanguage = ValueAt(kLanguageOptions, index);
    SetLanguageDependentText();
    todayLine_.Refresh();
    SetTheFocus();
}

void frmMain::OnDisplayMonth() {
    const CalendarNumber calendar = GetCal(1);
    const bool hasMonth =
        calendar == CalendarNumber::CE || calendar == CalendarNumber::JC || calendar == CalendarNumber::JDN;
    const BoxDate first = ReadBoxDate(calendar, boxes_.Text(InputBox::FirstDate), options_.ReadTextOptions());
    if (!hasMonth || first.status != ParseStatus::Valid) {
        const LocalDate today = platform_.clock.Today();
        windows_.ShowMonth(today.year, today.month, CalendarNumber::CE);
        return;
    }
    DateRecord shown = first.record;
    if (calendar == CalendarNumber::JDN) jdn_to_euro_date(shown);
    windows_.ShowMonth(shown.year, shown.month,
                       calendar == CalendarNumber::JC ? CalendarNumber::JC : CalendarNumber::CE);
}

void frmMain::OnReset() {
    const Texts& texts = state_.texts;
    const std::string question =
        texts.Numbered(18) + "\r\n" + texts.Numbered(19) + "\r\n" + texts.Numbered(20);
    if (platform_.boxes.AskYesNo(question, texts.Shown(TextId::Reset))) {
        DeleteSettingsFile(settingsFilePath_);
        ApplyDefaultSettings();
    }
    SetTheFocus();
}

void frmMain::OnOnlineDocumentation() {
    OpenWebPage(platform_.web, platform_.boxes,
                state_.texts.InterfaceLanguage == LanguageGerman ? addresses_.manualGerman
                                                                 : addresses_.manualEnglish);
}

void frmMain::ReadSettings() {
    if (const std::optional<Settings> settings = ReadSettingsFile(settingsFilePath_)) {
        ApplySettings(*settings);
    } else {
        ApplyDefaultSettings();
    }
}

void frmMain::WriteSettings() {
    Settings settings;
    settings.interfaceLanguage = state_.texts.InterfaceLanguage;
    settings.todayCalendar = state_.labelCalendars[0];
    options_.Collect(settings);
    windows_.CollectMonthOptions(settings);
    settings.firstDate = boxes_.Text(InputBox::FirstDate);
    settings.dateDiff = boxes_.Text(InputBox::Difference);
    settings.secondDate = boxes_.Text(InputBox::SecondDate);
    settings.output = output_.Text();
    // A failure to write is not reported: the program ends all the same.
    WriteSettingsFile(settingsFilePath_, settings);
}

void frmMain::ApplyDefaultSettings() {
    ApplySettings(Settings());
}

// Everything that a user's clicks on these options would do, but for emptying the boxes: their texts come
// last, and they were written under these very options.
void frmMain::ApplySettings(const Settings& settings) {
    state_.texts.InterfaceLanguage = settings.interfaceLanguage;
    state_.labelCalendars.fill(settings.todayCalendar);
    state_.firstBoxCalendar = settings.firstCalendar;
    state_.secondBoxCalendar = settings.secondCalendar;
    options_.Apply(settings);
    windows_.ApplyMonthOptions(settings);
    SetLanguageDependentText();
    todayLine_.Refresh();

    boxes_.SetText(InputBox::FirstDate, settings.firstDate);
    boxes_.SetText(InputBox::Difference, settings.dateDiff);
    boxes_.SetText(InputBox::SecondDate, settings.secondDate);
    output_.SetText(settings.output);
    output_.ScrollToEnd();
}

}  // namespace calvoro
