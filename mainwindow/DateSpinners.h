#pragma once

// The arrows beside the date boxes, which Up and Down in a date box work too: one press is one day.

#include "mainwindow/InputBoxes.h"
#include "mainwindow/MainComputeWindow.h"

namespace calvoro {

class DateSpinners {
public:
    DateSpinners(const MainControls& controls, InputBoxes& boxes, MainComputeWindow& window);

    /// Steps the date in a box, empties the difference and selects the date.
    /// box    FirstDate or SecondDate
    /// value  days to go; 0 does nothing
    void VScroll(InputBox box, int value);

    /// Focuses a date box and selects its text.
    /// box  FirstDate or SecondDate
    void SelectDateBox(InputBox box);

private:
    const MainControls& controls_;
    InputBoxes& boxes_;
    MainComputeWindow& window_;
    bool stepping_ = false;
};

}  // namespace calvoro
