#pragma once

// The windows that the main window opens. Each is made when it is first asked for, so that start-up does
// not wait for it, and lives as long as the main window.

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

#include "calendar/CalendarNumber.h"
#include "compute/ComputeWindow.h"
#include "mainwindow/MainState.h"
#include "mainwindow/settings/Settings.h"
#include "platform/Platform.h"
#include "windows/WebAddresses.h"

class QWidget;

namespace calvoro {

class frmClearOneTextBox;
class frmDisplayMonth;
class frmHelp;
class frmLargeDisplay;
class frmList;
class ListRowSource;
class frmPopUp;

class SecondaryWindows {
public:
    /// listRows  computes the rows of the list window; must outlive these windows
    SecondaryWindows(QWidget& mainWindow, const Platform& platform, const WebAddresses& addresses,
                     MainState& state, const ListRowSource& listRows);
    ~SecondaryWindows();

    SecondaryWindows(const SecondaryWindows&) = delete;
    SecondaryWindows& operator=(const SecondaryWindows&) = delete;

    /// The note that something was copied; returns when it is gone.
    void TellCopied();

    /// Shows the output, not empty and with CR LF line ends, in the enlarged window.
    void ShowEnlarged(std::string_view output);

    void ShowHelp();

    /// Shows a month.
    /// month     1 to 12
    /// calendar  CE or JC
    void ShowMonth(std::int32_t year, std::int32_t month, CalendarNumber calendar);

    /// The list window, which is not shown by this.
    frmList& List();

    /// Tells the list window, if there is one, that an option or a box has changed.
    void RefreshList();

    /// Asks which box to empty; nothing when the user cancels.
    std::optional<InputBox> AskWhichBoxToClear();

    /// The month window's options, also while there is no month window.
    void ApplyMonthOptions(const Settings& settings);
    void CollectMonthOptions(Settings& settings) const;

    /// The named texts of every window that there is, in the language of the interface.
    void SetLanguageDependentText();

private:
    QWidget& mainWindow_;
    const Platform& platform_;
    const WebAddresses& addresses_;
    MainState& state_;
    const ListRowSource& listRows_;

    // What the month window will start with.
    WeekStart monthWeekStart_ = Settings().monthWeekStart;
    CalendarNumber monthCalendar_ = Settings().monthCalendar;

    std::unique_ptr<frmClearOneTextBox> clearOne_;
    std::unique_ptr<frmDisplayMonth> month_;
    std::unique_ptr<frmHelp> help_;
    std::unique_ptr<frmLargeDisplay> large_;
    std::unique_ptr<frmList> list_;
    std::unique_ptr<frmPopUp> popUp_;
};

}  // namespace calvoro
