#pragma once

// Counting and adding for whole columns, by the routines that a Compute click uses.

#include <cstdint>

#include "compute/ComputeState.h"

namespace calvoro {

/// One way of counting, made ready for many dates.
class Reckoning {
public:
    /// notation  of the dates that months are added to: CE, JC or LPM; any other counts days only
    Reckoning(CalendarNumber notation, bool includeFirstDate, bool countWeekendDays);

    /// Number of days from the first date to the second.
    /// returns  false when the count leaves 32 bits
    bool DaysBetween(std::int32_t first, std::int32_t second, std::int32_t& days);

    /// The day a number of days after a date.
    /// returns  false when it lies beyond the days that can be computed
    bool AddDays(std::int32_t date, std::int32_t days, std::int32_t& found);

    /// The day a number of months after a date; a day beyond the end of a month becomes its last.
    /// returns  false when it lies beyond the days that can be computed
    bool AddMonthsTo(std::int32_t date, std::int32_t months, std::int32_t& found);

private:
    ComputeState state_;
};

}  // namespace calvoro
