#pragma once

// Today and the current month as day numbers. Asking the clock is the platform's affair: the local date
// comes in as an argument.

#include <cstdint>

namespace calvoro {

/// A date of the local civil calendar, as a clock tells it.
struct LocalDate {
    std::int32_t year = 1970;
    std::int32_t month = 1;  // 1 to 12
    std::int32_t day = 1;    // 1 to 31

    friend constexpr bool operator==(const LocalDate&, const LocalDate&) = default;
};

/// Day number of a local date, read in the Common Era calendar.
/// throws  ArithmeticOverflow when the day number does not fit 32 bits
std::int32_t TodayJdn(const LocalDate& today);

/// Day numbers of the first and the last day of today's Common Era month.
/// returns the month, 1 to 12
/// throws  ArithmeticOverflow when a day number does not fit 32 bits
std::int32_t CurrentMonthBounds(const LocalDate& today, std::int32_t& firstDay, std::int32_t& lastDay);

}  // namespace calvoro
