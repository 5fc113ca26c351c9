#pragma once

// Adding months to a date, and the distance of two dates in years, months and days. Both work on the
// fields year, month and day.

#include <cstdint>

#include "calendar/DateRecord.h"

namespace calvoro {

/// The date `months` months after (before, when negative) the source; a day beyond the end of the
/// resulting month becomes its last day.
/// months        0 copies the source as it is, its day number included, and never fails
/// result        a copy of the source with year, month, day and jdn set; zeroed when the source's calendar
///               has no day numbers
/// leapWeekForm  the record holds a leap-week date in its month form
/// throws        ArithmeticOverflow, unless months is 0
void AddMonths(const DateRecord& source, std::int32_t months, DateRecord& result, bool leapWeekForm);

/// Years, months and days from the first date to the second. The caller orders the two dates; a negative
/// count of days, where the first date's day exceeds the length of the month before the second date's, is
/// left as it is.
/// status  set to 0 first, then as DaysInMonth sets it
/// throws  ArithmeticOverflow
void YearsMonthsDays(const DateRecord& first, const DateRecord& second, std::int32_t& years,
                     std::int16_t& months, std::int16_t& days, std::int32_t& status);

}  // namespace calvoro
