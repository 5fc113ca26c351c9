#pragma once

// Calendars that know one thing only: which date follows a date. They share no code with the library, so
// that a walk with one of them beside it proves the library's closed forms.

#include <array>
#include <cstdint>

namespace calvoro::testing {

enum class LeapRule { CommonEra, Julian };

constexpr bool IsLeapByRule(std::int32_t year, LeapRule rule) {
    if (year % 4 != 0) return false;
    return rule == LeapRule::Julian || year % 100 != 0 || year % 400 == 0;
}

struct CivilStepper {
    LeapRule rule = LeapRule::CommonEra;
    std::int32_t year = 0;
    std::int32_t month = 1;
    std::int32_t day = 1;

    constexpr std::int32_t MonthLength() const {
        constexpr std::array<std::int32_t, 12> kLengths{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        if (month == 2 && IsLeapByRule(year, rule)) return 29;
        return kLengths[static_cast<std::size_t>(month - 1)];
    }
    constexpr void Next() {
        ++day;
        if (day <= 28 || day <= MonthLength()) return;
        day = 1;
        ++month;
        if (month <= 12) return;
        month = 1;
        ++year;
    }
    friend constexpr bool operator==(const CivilStepper&, const CivilStepper&) = default;
};

struct OrdinalStepper {
    std::int32_t year = 0;
    std::int32_t day = 1;

    constexpr void Next() {
        ++day;
        if (day <= 365 || (day == 366 && IsLeapByRule(year, LeapRule::CommonEra))) return;
        day = 1;
        ++year;
    }
    friend constexpr bool operator==(const OrdinalStepper&, const OrdinalStepper&) = default;
};

/// A year has 53 weeks when 1 January is a Thursday, or a Wednesday in a leap year: it then has 53 Thursdays.
struct IsoStepper {
    std::int32_t year = 1;
    std::int32_t week = 1;
    std::int32_t day = 1;
    std::int32_t newYearsDay = 1;  // the weekday of 1 January of the year, 1 Monday to 7 Sunday

    constexpr bool IsLeap() const { return IsLeapByRule(year, LeapRule::CommonEra); }
    constexpr bool IsLong() const { return newYearsDay == 4 || (newYearsDay == 3 && IsLeap()); }
    constexpr void Next() {
        ++day;
        if (day <= 7) return;
        day = 1;
        ++week;
        if (week <= 52 || (week == 53 && IsLong())) return;
        week = 1;
        newYearsDay += IsLeap() ? 2 : 1;
        if (newYearsDay > 7) newYearsDay -= 7;
        ++year;
    }
    friend constexpr bool operator==(const IsoStepper&, const IsoStepper&) = default;
};

/// Both forms of the leap-week calendar side by side.
struct LeapWeekStepper {
    std::int32_t year = 1;
    std::int32_t share =
        274;  // grows by 71 a year, modulo 400; below 71 in the years that have gained a week
    std::int32_t week = 1;
    std::int32_t weekday = 1;
    std::int32_t month = 1;
    std::int32_t day = 1;

    constexpr bool IsLeap() const { return share < 71; }
    constexpr std::int32_t MonthLength() const {
        if (month == 1 || month == 4 || month == 7 || month == 10) return 35;
        return month == 12 && IsLeap() ? 35 : 28;
    }
    constexpr void Next() {
        ++day;
        if (day > MonthLength()) {
            day = 1;
            ++month;
        }
        ++weekday;
        if (weekday <= 7) return;
        weekday = 1;
        ++week;
        if (month <= 12) return;
        week = 1;
        month = 1;
        share = (share + 71) % 400;
        ++year;
    }
    friend constexpr bool operator==(const LeapWeekStepper&, const LeapWeekStepper&) = default;
};

}  // namespace calvoro::testing
