#pragma once

// The snapshot of the user's options that one Compute click works with.

#include <cstdint>

#include "calendar/CalendarNumber.h"
#include "datetext/TextOptions.h"
#include "text/Texts.h"

namespace calvoro {

enum class DifferenceUnit : std::int16_t { Days = 0, Months = 1 };

struct ComputeOptions {
    TextOptions text;
    CalendarNumber firstCalendar = CalendarNumber::CE;
    CalendarNumber secondCalendar = CalendarNumber::CE;
    bool includeFirstDate = false;
    bool countWeekendDays = true;
    bool verbose = true;
    DifferenceUnit unit = DifferenceUnit::Days;
    Texts texts;  // the two languages
};

}  // namespace calvoro
