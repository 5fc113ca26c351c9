#pragma once

// The snapshot of the user's options that one Compute click works with.

#include <cstdint>

#include "calendar/CalendarNumber.h"
#include "datetext/TextOptions.h"
#include "text/Texts.h"

namespace calvoro {

/// What the middle box counts.
enum class DifferenceUnit : std::int16_t { Days = 0, Months = 1 };

/// What is chosen when a click begins; the first values are those of a new installation.
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
