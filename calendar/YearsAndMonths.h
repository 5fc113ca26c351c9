#pragma once

// Leap years, lengths of months and years, days of the year.

#include <cstdint>
#include <string_view>

#include "calendar/DateRecord.h"

namespace calvoro {

/// Day of the year, 1 to 366, in the record's own calendar. Refreshes the record's jdn.
/// returns 0, leaving the record as it is, when its calendar has no day numbers
/// throws  ArithmeticOverflow
std::int16_t DayOfYear(DateRecord& record);

/// 365 or 366, always by the Common Era rule.
/// status  as days_elapsed sets it
/// throws  ArithmeticOverflow
std::int16_t DaysInYear(std::int32_t year, std::int32_t& status);

/// Length of the record's month in the record's calendar, from its year and month alone.
/// status  as days_elapsed sets it
/// throws  ArithmeticOverflow
std::int16_t DaysInMonth(const DateRecord& record, std::int32_t& status);

/// Whole years and remaining days from the first date to the second, with one correction only: for dates
/// in different calendars the result is what these steps give. Refreshes the jdn of both records.
/// status  0, or as days_elapsed sets it; years and days are 0 when a record cannot be converted
/// throws  ArithmeticOverflow
void YearsAndDays(DateRecord& first, DateRecord& second, std::int32_t& years, std::int16_t& days,
                  std::int32_t& status);

/// Whether the year is a leap year in the calendar whose text begins with J (Julian) or anything else
/// (Common Era), in any case of the letter.
bool IsLeapYear(std::int32_t year, std::string_view calendar);

}  // namespace calvoro
