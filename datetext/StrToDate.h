#pragma once

// Splits a text of three numbers into year, month and day and checks them.

#include <cstdint>
#include <string_view>

#include "calendar/DateRecord.h"

namespace calvoro {

// What str_to_date answers where callers tell the cases apart.
inline constexpr std::int32_t kStrToDateOk = 0;
inline constexpr std::int32_t kStrToDateYearOutOfRange = -5;

/// Reads a date of three fields. A "-" directly in front of the year's digits, at the start of the text or
/// right after a separator, is the year's sign; every other "-" is a separator.
/// text        digits, "-" and at most one other kind of separator; any length
/// dateFormat  0 month-day-year, 1 day-month-year, 2 year-month-day
/// record      year, month, day and calendar are stored on success; untouched otherwise
/// calendar    the calendar code whose month lengths hold (J: Julian; else Common Era)
/// returns     0 when the date is valid; -5 when all fields are there and month (1 to 12) and day (1 to
///             31) are plausible but the year is beyond 5,800,000 either way; another non-zero value for
///             anything else
std::int32_t str_to_date(std::string_view text, std::int32_t dateFormat, DateRecord& record,
                         std::int32_t calendar);

}  // namespace calvoro
