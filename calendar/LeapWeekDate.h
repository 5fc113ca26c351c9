#pragma once

// The Vantorel Leap Week Calendar: years of whole weeks, 52 or 53, in a week form and a month form. The
// epoch is day 1721419, Monday 25 December 0000 Common Era, the first day of its year 1. 400 years are
// 146097 days.

#include <cstdint>

namespace calvoro {

/// Both forms of a date and its day number. The widths are those of the forms' fields; nothing is ever
/// truncated into them.
struct LeapWeekDate {
    std::int32_t year = 0;
    std::int16_t month = 0;    // 1 to 12
    std::int16_t day = 0;      // day of the month, 1 to 28 or 35
    std::int16_t week = 0;     // 1 to 52 or 53
    std::int16_t weekday = 0;  // 1 Monday to 7 Sunday
    std::int32_t jdn = 0;
    std::int16_t status = 0;  // kLeapWeekOk, kLeapWeekBadMonth or kLeapWeekBadDay

    friend constexpr bool operator==(const LeapWeekDate&, const LeapWeekDate&) = default;
};

inline constexpr std::int32_t kLeapWeekEpoch = 1'721'419;  // week 1, weekday 1 of year 1

// What the checks of a leap-week date answer, and leave in its status.
inline constexpr std::int16_t kLeapWeekOk = 0;
inline constexpr std::int16_t kLeapWeekBadMonth = -2;
inline constexpr std::int16_t kLeapWeekBadDay = -3;

/// Whether a year has 53 weeks: 71 years of every 400, spread evenly.
bool IsLeapWeekYear(std::int32_t year);

/// 4 or 5 weeks: every quarter has 5 + 4 + 4, and December has the leap week.
/// month  0 to 12 (a date with month 0 passes the checks and is counted as month 0)
std::int16_t WeeksInLeapWeekMonth(std::int16_t month, bool leap);

/// returns 0, or -3 for a weekday outside 0 to 7; stored in status too. Deliberate: the number of the week
///         is not checked.
std::int16_t ValidateWeekForm(LeapWeekDate& date);

/// Day number of year, week and weekday, stored in jdn too, or the negative code of ValidateWeekForm. A
/// negative day number is a day like any other: whether the date was accepted is in status.
/// throws  ArithmeticOverflow
std::int32_t WeekFormToJdn(LeapWeekDate& date);

/// Fills year, week and weekday from jdn. Exact for every 32-bit day number.
inline void JdnToWeekForm(LeapWeekDate& date) {
    // 20871 weeks are 400 years. These cycles bring every 32-bit day number above 0.
    constexpr std::int64_t kShiftCycles = 15'000;
    constexpr std::int64_t kShift = 146'097 * kShiftCycles - kLeapWeekEpoch;
    // The weeks before year n + 1 are floor((20871 n + 203) / 400). So week w, counted from 0, lies in year
    // floor((400 w + 196) / 20871) + 1, and what the division leaves, divided by 400, is its place there.
    const auto days = static_cast<std::uint64_t>(date.jdn + kShift);
    const std::uint64_t weeks = days / 7;
    const std::uint64_t scaledWeeks = 400 * weeks + 196;
    date.year =
        static_cast<std::int32_t>(static_cast<std::int64_t>(scaledWeeks / 20'871) + 1 - 400 * kShiftCycles);
    date.week = static_cast<std::int16_t>(scaledWeeks % 20'871 / 400 + 1);
    date.weekday = static_cast<std::int16_t>(days - 7 * weeks + 1);
}

/// Fills month and day from year, week and weekday.
/// returns false when ValidateWeekForm refuses the week form (its code is in status)
/// throws  ArithmeticOverflow when month or day does not fit 16 bits (weeks far beyond the year's last)
bool WeekFormToMonthForm(LeapWeekDate& date);

/// Fills week and weekday from year, month and day; month 0 and day 0 pass.
/// returns false with status -2 (month) or -3 (day) when it is out of bounds
bool MonthFormToWeekForm(LeapWeekDate& date);

/// Fills both forms from jdn.
void JdnToLpm(LeapWeekDate& date);

/// Day number of year, month and day; 0 when the month form is refused (its code is in status).
/// throws  ArithmeticOverflow
std::int32_t LpmToJdn(LeapWeekDate& date);

}  // namespace calvoro
