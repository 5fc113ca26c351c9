#include "mainwindow/frmMain.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLibraryInfo>
#include <QShortcut>
#include <utility>

#include "calendar/EuroDate.h"
#include "compute/ComputeClick.h"
#include "datetext/AnyNotation.h"
#include "mainwindow/Captions.h"
#include "mainwindow/ControlTables.h"
#include "mainwindow/MainLayout.h"
#include "mainwindow/settings/SettingsFile.h"
#include "text/NumberedTexts.h"
#include "windows/AccessibleRole.h"
#include "windows/EnterKey.h"
#include "windows/ManualAddress.h"
#include "windows/Mnemonics.h"
#include "windows/Placement.h"
#include "windows/QtText.h"
#include "windows/WebLink.h"

namespace calvoro {
namespace {

const QString kTitle = QStringLiteral("Calvoro");
const QString kVersionInTitle = QStringLiteral(" " CALVORO_VERSION_IN_TITLE);

}  // namespace

frmMain::frmMain(const Platform& platform, WebAddresses addresses, const Texts& texts)
    : platform_(platform),
      addresses_(std::move(addresses)),
      settingsFilePath_(
          SettingsFilePath(platform_.place.BaseFolder(), texts.GetProgramText(kSettingsFolderText))),
      controls_(this),
      state_(texts),
      options_(controls_, platform_.digitGrouping),
      listRows_(boxes_, options_, state_),
      windows_(*this, platform_, addresses_, state_, listRows_),
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
      inputKeys_(this, controls_, options_),
      reading_(this, controls_, options_, state_),
      listWays_(this, controls_, windows_),
      toolkitWords_(QLibraryInfo::path(QLibraryInfo::TranslationsPath)),
      announcer_(new Announcer(this)) {
    setObjectName(QStringLiteral("frmMain"));
    SetAccessibleRole(*this, QAccessible::Window);
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
    connect(&inputKeys_, &InputKeys::EnterPressed, this, &frmMain::OnCompute);
    connect(&inputKeys_, &InputKeys::StepPressed, this,
            [this](InputBox box, int value) { spinners_.VScroll(box, value); });
    for (const InputBox box : {InputBox::FirstDate, InputBox::SecondDate}) {
        connect(controls_.Spinner(box), &SpinArrows::Stepped, this,
                [this, box](int value) { spinners_.VScroll(box, value); });
        connect(controls_.Today(box), &QPushButton::clicked, this,
                [this, box] { boxes_.FillWithToday(box); });
    }
    for (const InputBox box : {InputBox::FirstDate, InputBox::Difference, InputBox::SecondDate}) {
        connect(controls_.Clear(box), &QPushButton::clicked, this, [this, box] { boxes_.Clear(box); });
    }
    connect(controls_.cmdMoveSecondDateToFirst, &QPushButton::clicked, this,
            [this] { boxes_.MoveSecondDateToFirst(); });
}

void frmMain::ConnectOptions() {
    OnChoice(controls_.firstCalendars, [this](int index) {
        calendarChange_.ChangeFirstDateCalendar(ValueAt(kCalendarOptions, index));
    });
    OnChoice(controls_.secondCalendars, [this](int index) {
        calendarChange_.ChangeSecondDateCalendar(ValueAt(kCalendarOptions, index));
    });
    OnChoice(controls_.dateFormats, [this](int) { OnDateFormat(); });
    OnChoice(controls_.dateSeparators, [this](int) { OnDateFormat(); });
    OnChoice(controls_.thousandsSeparators, [this](int) { OnThousandsSeparator(); });
    OnChoice(controls_.units, [this](int) { OnUnit(); });
    OnChoice(controls_.languages, [this](int index) { OnLanguage(index); });
    for (HandCheckBox* box : {controls_.chkIncludeFirstDate, controls_.chkIncludeWeekends,
                              controls_.chkVerbose, controls_.chkSaveOutput}) {
        connect(box, &QCheckBox::toggled, this, [this, box] { OnCheckBox(*box); });
    }
    connect(controls_.chkHyphen, &QCheckBox::toggled, this, &frmMain::OnHyphen);
    connect(controls_.lblHyphen, &ClickableLabel::Pressed, controls_.chkHyphen, &QCheckBox::click);
}

// The step to the next control belongs to a choice made by hand.
void frmMain::OnChoice(const OptionGroup* options, std::function<void(int)> action) {
    connect(options, &OptionGroup::ChosenByUser, this,
            [this, action = std::move(action)](int index, bool byHand) {
                const auto hold = boxes_.HoldFocus(!byHand);
                action(index);
            });
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
    const auto onKey = [this](const QKeySequence& key, const QPushButton* button) {
        connect(new QShortcut(key, this), &QShortcut::activated, button, &QPushButton::click);
    };
    onKey(Qt::Key_F1, controls_.cmdHelp);
    onKey(Qt::CTRL | Qt::Key_M, controls_.cmdDisplayMonth);
    onKey(Qt::CTRL | Qt::Key_Q, controls_.cmdQuit);
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
    return sizeHint().expandedTo({width, 0}).boundedTo(RoomOnScreen(*this));
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
    listWays_.SetLanguageDependentText(state_.texts.InterfaceLanguage);
    toolkitWords_.Follow(state_.texts.InterfaceLanguage);
    reading_.Refresh();
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
    if (IsEnterKey(event->key())) {
        if (!event->isAutoRepeat()) OnCompute();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void frmMain::OnCompute() {
    // While anything is asked or told, a screen reader can still press the button behind it.
    if (QApplication::activeModalWidget() != nullptr) return;
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

// Deliberate: the boxes keep their texts, which are read under every thousands separator.
void frmMain::OnThousandsSeparator() {
    todayLine_.Refresh();
    SetTheFocus();
}

void frmMain::OnUnit() {
    options_.FollowUnit();
    SetTheFocus();
}

// The value is read when it is needed.
void frmMain::OnCheckBox(HandCheckBox& box) {
    if (!box.UnderHand()) {
        box.setFocus();
        return;
    }
    SetTheFocus();
    // The focus leaves the box before a reader has told its new state.
    const bool german = state_.texts.InterfaceLanguage == LanguageGerman;
    const char* const state = box.isChecked() ? (german ? "ein" : "on") : (german ? "aus" : "off");
    if (!box.hasFocus()) announcer_->Announce(FromQt(Caption(box)) + ": " + state);
}

void frmMain::OnHyphen() {
    if (!controls_.chkHyphen->UnderHand()) controls_.chkHyphen->setFocus();
    SetOrdinalCaptions(controls_, state_.texts, controls_.chkHyphen->isChecked());
    boxes_.RewriteHyphens();
    todayLine_.Refresh();
}

void frmMain::OnLanguage(int index) {
    state_.texts.InterfaceLanguage = ValueAt(kLanguageOptions, index);
    SetLanguageDependentText();
    todayLine_.Refresh();
    SetTheFocus();
}

void frmMain::OnDisplayMonth() {
    const CalendarNumber calendar = options_.GetCal(InputBox::FirstDate);
    const bool hasMonth =
        calendar == CalendarNumber::CE || calendar == CalendarNumber::JC || calendar == CalendarNumber::JDN;
    DateRecord shown;
    const ParseStatus status =
        ReadDate(calendar, boxes_.Text(InputBox::FirstDate), options_.ReadTextOptions(), shown);
    if (!hasMonth || status != ParseStatus::Valid) {
        const LocalDate today = platform_.clock.Today();
        windows_.ShowMonth(today.year, today.month, CalendarNumber::CE);
        return;
    }
    if (calendar == CalendarNumber::JDN) jdn_to_euro_date(shown);
    windows_.ShowMonth(shown.year, shown.month,
                       calendar == CalendarNumber::JC ? CalendarNumber::JC : CalendarNumber::CE);
}

void frmMain::OnReset() {
    const Texts& texts = state_.texts;
    const std::string question = texts.GetProgramText(kResetDeletesText) + "\r\n" +
                                 texts.GetProgramText(kResetRestoresText) + "\r\n" +
                                 texts.GetProgramText(kResetQuestionText);
    if (platform_.boxes.AskYesNo(question, texts.Shown(TextId::Reset))) {
        DeleteSettingsFile(settingsFilePath_);
        ApplyDefaultSettings();
    }
    SetTheFocus();
}

void frmMain::OnOnlineDocumentation() {
    OpenWebPage(platform_.web, platform_.boxes, ManualAddress(addresses_, state_.texts.InterfaceLanguage));
}

void frmMain::ReadSettings() {
    if (std::optional<Settings> settings = ReadSettingsFile(settingsFilePath_)) {
        ApplySettings(*settings);
        startOutput_ = std::move(settings->output);
    } else {
        ApplyDefaultSettings();
    }
}

void frmMain::WriteSettings() {
    Settings settings;
    settings.interfaceLanguage = state_.texts.InterfaceLanguage;
    settings.todayCalendar = todayLine_.TodayCalendar();
    options_.Collect(settings);
    windows_.CollectMonthOptions(settings);
    settings.firstDate = boxes_.Text(InputBox::FirstDate);
    settings.dateDiff = boxes_.Text(InputBox::Difference);
    settings.secondDate = boxes_.Text(InputBox::SecondDate);
    settings.output = output_.Text();
    // A failure to write is not reported: the program ends all the same.
    WriteSettingsFile(settingsFilePath_, settings, startOutput_);
}

void frmMain::ApplyDefaultSettings() {
    ApplySettings(Settings());
}

// Everything that a user's clicks on these options would do, but for emptying the boxes: their texts come
// last, and they were written under these very options.
void frmMain::ApplySettings(const Settings& settings) {
    state_.texts.InterfaceLanguage = settings.interfaceLanguage;
    todayLine_.SetTodayCalendar(settings.todayCalendar);
    calendarChange_.Remember(settings.firstCalendar, settings.secondCalendar);
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
