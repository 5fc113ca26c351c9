#pragma once

// The closed forms behind the leap-week calendar's conversions, for whoever converts many dates.

#include <array>
#include <cstddef>
#include <cstdint>

#include "calendar/FloorDivision.h"

namespace calvoro::formula {

inline constexpr std::int64_t kWeeksInLeapWeekQuarter = 13;  // 5 + 4 + 4
inline constexpr std::int64_t kWeeksInLeapWeekYear = 4 * kWeeksInLeapWeekQuarter;

// Weeks before each month; before month 0 there is nothing to count either.
inline constexpr std::array<std::int16_t, 13> kWeeksBeforeMonth{0,  0,  5,  9,  13, 18, 22,
                                                                26, 31, 35, 39, 44, 48};
static_assert(kWeeksBeforeMonth[12] + 4 == kWeeksInLeapWeekYear);

/// The month of each week of a year, from week 1. The leap week is December's fifth.
inline constexpr std::array<std::uint8_t, 54> kMonthOfWeek = [] {
    std::array<std::uint8_t, 54> months{};
    for (std::size_t month = 1; month <= 12; ++month) {
        for (auto week = static_cast<std::size_t>(kWeeksBeforeMonth[month]) + 1; week < months.size();
             ++week) {
            months[week] = static_cast<std::uint8_t>(month);
        }
    }
    return months;
}();

/// Weeks from week 1 of year 1 to week 1 of a year: of the years 1 to n, floor((71 n + 203) / 400) are leap
/// years.
/// year  any 32-bit year
constexpr std::int64_t WeeksBeforeLeapWeekYear(std::int64_t year) {
    return kWeeksInLeapWeekYear * (year - 1) + FloorDivide(71 * (year - 1) + 203, 400);
}

}  // namespace calvoro::formula
