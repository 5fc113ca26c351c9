#pragma once

// Days of the week.

#include <cstdint>

namespace calvoro {

/// Weekday of a day number: 0 Sunday, 1 Monday ... 6 Saturday. Right for negative day numbers too.
std::int32_t euro_day_of_week(std::int32_t jdn);

/// Whether the day is one of Monday to Friday.
bool IsWeekday(std::int32_t jdn);

}  // namespace calvoro
