#pragma once

// The options as the controls hold them, read in the forms in which the rest of the program wants them,
// and put back into the controls.

#include <string>

#include "compute/ComputeOptions.h"
#include "compute/ComputeWindow.h"
#include "mainwindow/MainControls.h"
#include "mainwindow/settings/Settings.h"

namespace calvoro {

class WindowOptions {
public:
    /// digitGrouping  the system's own grouping of digits
    WindowOptions(const MainControls& controls, std::string digitGrouping);

    DateFormat UsersDateFormat() const;

    /// The calendar chosen for a date box.
    /// box  FirstDate or SecondDate
    CalendarNumber GetCal(InputBox box) const;

    TextOptions ReadTextOptions() const;
    ComputeOptions ReadComputeOptions(const Texts& texts) const;

    /// Puts the options of the settings into the controls, without any handler of theirs.
    void Apply(const Settings& settings);

    /// Switches the two check boxes that only days have on or off, as the unit wants it.
    void FollowUnit();

    /// Fills in what the controls hold; the rest of the settings is left alone.
    void Collect(Settings& settings) const;

private:
    const MainControls& controls_;
    std::string digitGrouping_;
};

}  // namespace calvoro
