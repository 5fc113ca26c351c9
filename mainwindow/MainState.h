#pragma once

// What the main window knows beside what its controls hold.

#include <array>

#include "calendar/CalendarNumber.h"
#include "compute/ComputeState.h"
#include "text/Texts.h"

namespace calvoro {

struct MainState {
    Texts texts;
    ComputeState compute;

    // False until the end of start-up: until then the focus stays, and today is not shown.
    bool FormReady = false;

    // Of lblTodaysDate, which is the one that is saved, and of lblWeekFromToday.
    std::array<CalendarNumber, 2> labelCalendars = {CalendarNumber::CE, CalendarNumber::CE};

    // The notation each date box's text is in: the one chosen before a click on a calendar option.
    CalendarNumber firstBoxCalendar = CalendarNumber::CE;
    CalendarNumber secondBoxCalendar = CalendarNumber::CE;
};

}  // namespace calvoro
