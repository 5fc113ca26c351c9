#pragma once

// The arrows beside the date boxes, which Up and Down in a date box work too: one press is one day.

#include "mainwindow/InputBoxes.h"
#include "mainwindow/MainComputeWindow.h"

namespace calvoro {

class DateSpinners {
public:
    DateSpinners(const MainControls& controls, InputBoxes& boxes, MainComputeWindow& window);

    /// Steps the date in a box, empties the difference and selects the date.
    /// index  0 for the first box, 1 for the second
    /// value  days to go; 0 does nothing
    void VScroll(int index, int value);

    /// Focuses a date box and selects its text.
    /// n  1 for the first box, 2 for the second
    void SelectDateBox(int n);

private:
    const MainControls& controls_;
    InputBoxes& boxes_;
    MainComputeWindow& window_;
    bool stepping_ = false;
};

}  // namespace calvoro
