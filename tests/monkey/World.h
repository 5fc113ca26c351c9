#pragma once

// What the monkey plays with: the real windows of one program, with a stand-in for the outside world, a
// folder with its settings and some files, and what one can see of the windows from outside.

#include <QList>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "tests/mainwindow/MainWindowFixture.h"
#include "tests/monkey/Dice.h"

namespace calvoro::monkey {

class World {
public:
    World();

    MainWindowFixture main;

    /// What the event at hand does, in words: told before it is done, so that a crash can be told from it.
    QString doing;

    /// The boxes that the user writes into in the event at hand; the program writes into all others.
    QSet<const QWidget*> typedInto;

    /// Whether the window is another one than before the event: the program has been ended and started.
    bool startedAnew = false;

    /// Whether the settings were put back to the factory's.
    bool wasReset = false;

    /// What an event itself finds wrong, and which invariant that is.
    std::string brokenInvariant;
    std::string fault;

    /// A lie for the test of the monkey: the settings come back from memory with another field.
    bool readsBackWrong = false;

    /// What the toolkit or the program has told on the way, but for the toolkit's own lines.
    std::vector<std::string> told;

    /// The settings with which the program was started.
    Settings startedWith;

    /// The month window's options while there is no month window.
    WeekStart weekStart = WeekStart::Sunday;
    CalendarNumber monthCalendar = CalendarNumber::CE;

    void Start(const Settings& settings);

    /// Starts with what stands in the settings file, whatever that is.
    void StartWithFile();

    /// Ends the program, which saves.
    void End();

    /// Lets everything happen that is due, and sees to it that a window is active, as a window manager does.
    void Settle();

    /// Before an event.
    void Forget();

    /// Begins the words of an event.
    void Do(const QString& what) { doing = what; }

    /// The control of the main window with this name.
    template <typename Control>
    Control& Get(const char* name) const {
        return main.Get<Control>(QLatin1String(name));
    }
    bool IsChecked(const char* name) const { return Get<QAbstractButton>(name).isChecked(); }

    /// The window that gets the user's keys and clicks: a list that is dropped down, a question, or the
    /// active one.
    QWidget* Active() const;

    /// The windows of the program that are open.
    QList<QWidget*> OpenWindows() const;

    /// An open window of a kind; null when there is none.
    template <typename Window>
    Window* Open() const {
        for (QWidget* window : OpenWindows()) {
            if (auto* found = qobject_cast<Window*>(window)) return found;
        }
        return nullptr;
    }

    /// A file or folder that can be opened or dropped.
    QString PathOf(const char* name) const { return files_.path() + QLatin1Char('/') + QLatin1String(name); }

private:
    void MakeFiles() const;
    void Prepare();

    bool quitWasClicked_ = false;
    QTemporaryDir files_;
};

/// "frmMain.cmdCompute"
QString NameOf(const QWidget& control);

}  // namespace calvoro::monkey
