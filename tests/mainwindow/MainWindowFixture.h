#pragma once

// A fresh main window with a stand-in for the outside world and a folder of its own for the settings, and
// the hands of a user: clicks and keys on controls found by name.

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>
#include <string>

#include "mainwindow/frmMain.h"
#include "mainwindow/settings/SettingsFile.h"
#include "tests/support/FakePlatform.h"
#include "text/Texts.h"
#include "windows/Mnemonics.h"

namespace calvoro {

using namespace Qt::StringLiterals;

class MainWindowFixture {
public:
    FakePlatform fake;
    Texts texts;
    QTemporaryDir folder;
    std::unique_ptr<frmMain> window;
    WebAddresses addresses = Addresses();

    MainWindowFixture() { fake.place.folder = folder.path().toStdString(); }

    static WebAddresses Addresses() {
        return {.homePage = "https://home.example/",
                .manualEnglish = "https://manual.example/en",
                .manualGerman = "https://manual.example/de",
                .calendarsArticle = "https://calendars.example/",
                .isoWeekArticle = "https://isoweek.example/",
                .leapWeekPage = "https://leapweek.example/"};
    }

    std::string SettingsPath() const { return fake.place.folder + "/Calvoro/calvoro.usr"; }

    /// Starts the window with the settings that a run before has left, if any.
    void Start() {
        window = std::make_unique<frmMain>(fake.platform, addresses, texts);
        window->Start();
        Activate();
    }

    /// Makes the window the active one, as a window manager does when another one closes.
    void Activate() {
        window->activateWindow();
        const auto isActive = [this] { return QApplication::activeWindow() == window.get(); };
        if (!QTest::qWaitFor(isActive)) qFatal("the window does not become active");
    }

    void StartWith(const Settings& settings) {
        SettingsFilePath(fake.place.folder, "Calvoro");  // makes the folder
        if (!WriteSettingsFile(SettingsPath(), settings, "")) qFatal("cannot write the settings");
        Start();
    }

    template <typename Control>
    Control& Get(const QString& name) const {
        auto* control = window->findChild<Control*>(name);
        if (control == nullptr) qFatal("no control %s", qPrintable(name));
        return *control;
    }

    QAbstractButton& Button(const QString& name) const { return Get<QAbstractButton>(name); }
    QString CaptionOf(const QString& name) const { return Caption(Get<QWidget>(name)); }
    QString Text(const QString& box) const { return Get<QLineEdit>(box).text(); }
    QString Output() const { return Get<QPlainTextEdit>(u"txbOutput"_s).toPlainText(); }

    /// Texts that stand in the boxes already, however they came there.
    void Fill(const QString& first, const QString& difference, const QString& second) {
        Get<QLineEdit>(u"txbFirstDate"_s).setText(first);
        Get<QLineEdit>(u"txbDateDiff"_s).setText(difference);
        Get<QLineEdit>(u"txbSecondDate"_s).setText(second);
    }

    QStringList Boxes() const {
        return {Text(u"txbFirstDate"_s), Text(u"txbDateDiff"_s), Text(u"txbSecondDate"_s)};
    }

    /// A press of a mouse button on the left part of a control, where options and check boxes listen.
    void Click(const QString& name, Qt::MouseButton button = Qt::LeftButton) {
        auto& control = Get<QWidget>(name);
        QTest::mouseClick(&control, button, Qt::NoModifier, {9, control.height() / 2});
    }

    /// Keys to whatever has the focus.
    static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    static void Type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }

    void Focus(const QString& name) { Get<QWidget>(name).setFocus(); }
    static QString Focused() {
        const QWidget* focused = QApplication::focusWidget();
        return focused == nullptr ? QString() : focused->objectName();
    }
    QString Selected(const QString& box) const { return Get<QLineEdit>(box).selectedText(); }

    /// The settings as they stand in the file.
    Settings Saved() const {
        const std::optional<Settings> settings = ReadSettingsFile(SettingsPath());
        if (!settings) qFatal("no settings in %s", SettingsPath().c_str());
        return *settings;
    }

    /// Saves as at the end of the program, without an event loop to end.
    void Quit() {
        window->QuitAndSave();
        window.reset();
        RunLoopThatEndsAtOnce();
    }

    /// Quits; whether the run has left behind what one without anything saved before leaves.
    bool LeavesFactorySettings() {
        Quit();
        return Saved() == Settings();
    }

    // After an exit no modal wait would begin until an event loop has run to its end.
    static void RunLoopThatEndsAtOnce() {
        QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(0); });
        QCoreApplication::exec();
    }

    std::vector<ShownMessage>& Shown() { return fake.boxes.shown; }
};

/// The window of a kind that the main window has opened so far; null when it has not.
template <typename Window>
Window* OpenedWindow() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* found = qobject_cast<Window*>(window)) return found;
    }
    return nullptr;
}

/// What the user does while a modal window waits; runs as soon as one has the focus.
template <typename Action>
void WhileModal(Action action) {
    constexpr int kMillisecondsBetweenLooks = 5;
    QTimer::singleShot(kMillisecondsBetweenLooks, qApp, [action] {
        QWidget* const modal = QApplication::activeModalWidget();
        if (modal == nullptr || QApplication::activeWindow() != modal) {
            WhileModal(action);
        } else {
            action(*modal);
        }
    });
}

/// The notations offered, with the tag that names their options.
struct OfferedCalendar {
    CalendarNumber number;
    const char* tag;
    const char* today;  // 2024-03-15, which is in reach of every notation, as factory settings write it
};
inline constexpr std::array<OfferedCalendar, 7> kOffered = {{
    {CalendarNumber::CE, "CE", "2024-03-15"},
    {CalendarNumber::JC, "JC", "2024-03-02"},
    {CalendarNumber::ISO, "ISO", "2024-W11-5"},
    {CalendarNumber::JDN, "JDN", "2,460,385"},
    {CalendarNumber::ORD, "ORD", "2024-075"},
    {CalendarNumber::LPM, "LPM", "2024-03-19"},
    {CalendarNumber::LPW, "LPW", "2024-12-5"},
}};
inline constexpr LocalDate kOfferedDay{2024, 3, 15};

inline const OfferedCalendar& Offered(int index) {
    return kOffered.at(static_cast<std::size_t>(index));
}
inline QString FirstOption(const OfferedCalendar& calendar) {
    return u"optFirstDateIs"_s + QLatin1String(calendar.tag);
}
inline QString SecondOption(const OfferedCalendar& calendar) {
    return u"optSecondDateIs"_s + QLatin1String(calendar.tag);
}

}  // namespace calvoro
