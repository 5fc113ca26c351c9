#pragma once

// Dates of the Vantorel Leap Week Calendar as text: year-week-weekday (LPW) and year-month-day (LPM). The
// separator is always "-".

#include <string>
#include <string_view>

#include "calendar/LeapWeekDate.h"
#include "datetext/ParseStatus.h"

namespace calvoro {

/// Reads the week form. Characters other than digits and "-" are dropped silently.
/// date     year, week, weekday, jdn and status are filled; a negative date.status means that the date is
///          not valid although the text reads (weekday 8)
/// returns  NotValid also for day number 0, which the conversion cannot tell from a failure
/// throws   ArithmeticOverflow when the day number does not fit 32 bits
ParseStatus ParseLpwText(std::string_view text, LeapWeekDate& date);

/// Reads the month form; as ParseLpwText with month and day.
ParseStatus ParseLpmText(std::string_view text, LeapWeekDate& date);

/// Writes year, week and weekday of the record.
/// withSuffix     appends " LPW"
/// digitGrouping  the system's grouping of years from 10000 up, in threes; UTF-8, may be empty
std::string FormatLpwText(const LeapWeekDate& date, bool withSuffix, std::string_view digitGrouping);

/// Writes year, month and day of the record; withSuffix appends " LPM".
std::string FormatLpmText(const LeapWeekDate& date, bool withSuffix, std::string_view digitGrouping);

}  // namespace calvoro
