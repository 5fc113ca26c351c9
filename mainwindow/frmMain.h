#pragma once

// The main window: three input boxes, the options, the output. It owns the state of the whole program and
// wires its controls to the small classes that do the jobs; the computation is behind cmdCompute_Click.

#include <QWidget>
#include <functional>
#include <string>

#include "mainwindow/CalendarChange.h"
#include "mainwindow/DateSpinners.h"
#include "mainwindow/InputBoxes.h"
#include "mainwindow/InputKeys.h"
#include "mainwindow/ListRows.h"
#include "mainwindow/ListWays.h"
#include "mainwindow/MainComputeWindow.h"
#include "mainwindow/MainControls.h"
#include "mainwindow/MainState.h"
#include "mainwindow/OutputBox.h"
#include "mainwindow/ReadingLine.h"
#include "mainwindow/SecondaryWindows.h"
#include "mainwindow/TodayLine.h"
#include "mainwindow/WindowOptions.h"
#include "platform/Platform.h"
#include "windows/Announcer.h"
#include "windows/ToolkitWords.h"
#include "windows/WebAddresses.h"

namespace calvoro {

class frmMain : public QWidget {
    Q_OBJECT

public:
    /// Builds the window without showing it.
    /// platform  what it refers to must outlive the window
    frmMain(const Platform& platform, WebAddresses addresses, const Texts& texts);

    /// Captions, title, showing, settings, clock and today's date, in the order in which they depend on
    /// each other. Called once.
    void Start();

    /// Writes the settings, once however often it is called, and ends the program's event loop.
    void QuitAndSave();

    /// Sets every caption from the texts in the language of the interface.
    void SetLanguageDependentText();

    /// Puts the focus where the next step is; the last step of nearly every click.
    void SetTheFocus();

    DateFormat UsersDateFormat() const;

    /// The calendar chosen for a date.
    /// which  1 first date, 2 second date
    CalendarNumber GetCal(int which) const;

    /// Fills a date box with today.
    /// index  0 first date, 1 second date
    void cmdToday_Click(int index);

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QSize FirstSize() const;
    void ConnectInputs();
    void ConnectOptions();
    void OnChoice(const OptionGroup* options, std::function<void(int)> action);
    void ConnectOutput();
    void ConnectWindows();

    void OnCompute();
    bool AskWhichBoxToClear();
    void OnDateFormat();
    void OnThousandsSeparator();
    void OnUnit();
    void OnCheckBox(HandCheckBox& box);
    void OnHyphen();
    void OnLanguage(int index);
    void OnDisplayMonth();
    void OnReset();
    void OnOnlineDocumentation();

    void ReadSettings();
    void WriteSettings();
    void ApplyDefaultSettings();
    void ApplySettings(const Settings& settings);

    Platform platform_;
    WebAddresses addresses_;
    std::string settingsFilePath_;
    std::string startOutput_;  // what the settings file brought, to tell what other programs add to it
    bool saved_ = false;

    MainControls controls_;
    MainState state_;
    WindowOptions options_;
    ListRows listRows_;
    SecondaryWindows windows_;
    InputBoxes boxes_;
    TodayLine todayLine_;
    OutputBox output_;
    MainComputeWindow computeWindow_;
    CalendarChange calendarChange_;
    DateSpinners spinners_;
    // Members, not children: children are deleted when the controls are no longer known.
    InputKeys inputKeys_;
    ReadingLine reading_;
    ListWays listWays_;
    ToolkitWords toolkitWords_;
    Announcer* announcer_;
};

}  // namespace calvoro
