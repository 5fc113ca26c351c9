#pragma once

// A month as plain text: the grid of week lines, the column of ISO week dates, and the text that is copied.
// Lines are joined by CR LF.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "calendar/DateRecord.h"

namespace calvoro {

using WeekdayWords = std::array<std::string_view, 7>;  // Sunday first

/// The weekday of the first column.
enum class WeekStart { Sunday, Monday };

/// A month as it is drawn.
struct MonthGrid {
    std::string text;                // heading and week lines
    std::int16_t weekRows = 0;       // week lines drawn
    std::int32_t firstShownJdn = 0;  // first day of the first week line
};

/// Draws the grid of a month.
/// month     1 to 12
/// calendar  CalendarCode::J, or G for the Common Era
/// throws    ArithmeticOverflow for a year that cannot be shown
MonthGrid DrawMonth(std::int32_t year, std::int32_t month, CalendarCode calendar, WeekStart weekStart,
                    const WeekdayWords& weekdays);

/// The ISO week dates of a grid that was drawn for the Common Era with Monday first.
/// withYear  begins every date with the final digit of its ISO year
std::string DrawIsoWeekDates(std::int32_t firstShownJdn, std::int16_t weekRows, bool withYear,
                             const WeekdayWords& weekdays);

/// What is copied: "September 2024 (Common Era Calendar)", the grid and, when `isoDates` is not empty, its
/// heading and the ISO week dates, separated by empty lines.
std::string CopiedMonthText(std::string_view monthName, std::string_view year, std::string_view calendarName,
                            std::string_view grid, std::string_view isoHeading, std::string_view isoDates);

}  // namespace calvoro
