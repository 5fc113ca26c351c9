#pragma once

// The limits of day numbers and years that every notation shares. A day number is the chronological Julian
// day number: it counts civil days, midnight to midnight; day 0 is Monday, 1 January -4712 of the Julian
// Calendar.

#include <cstdint>

namespace calvoro {

inline constexpr std::int32_t kFirstFourDigitDay = 1721426;    // 1 January 0001, Common Era
inline constexpr std::int32_t kLastFourDigitDay = 5373484;     // 31 December 9999, Common Era
inline constexpr std::int32_t kMaxDayNumber = 2'100'000'000;   // largest typed or computed
inline constexpr std::int32_t kMinDayNumber = -2'100'000'000;  // smallest typed or computed
inline constexpr std::int32_t kMaxYearMagnitude = 5'800'000;   // largest year read, either sign

/// Whether a computed day number may be shown as a result.
constexpr bool IsWithinDayLimits(std::int32_t jdn) {
    return jdn >= kMinDayNumber && jdn <= kMaxDayNumber;
}

/// Whether a day can be written as an ordinal date, which has four-digit years only.
constexpr bool IsWithinOrdinalLimits(std::int32_t jdn) {
    return jdn >= kFirstFourDigitDay && jdn <= kLastFourDigitDay;
}

}  // namespace calvoro
