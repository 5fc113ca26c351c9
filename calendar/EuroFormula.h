#pragma once

// The closed forms behind the Common Era and Julian conversions. A year is taken to begin in March, so that
// the leap day is the last day of its year; everything is shifted by whole cycles, so that all divisions
// are plain divisions of unsigned numbers.
//
// source  the technique of affine month and year functions: C. Neri, L. Schneider, Euclidean affine functions
//         and their application to calendar algorithms, Software: Practice and Experience 53 (2023)

#include <cstdint>

namespace calvoro {

/// A date as the closed forms give it; wide enough for every day number.
struct YearMonthDay {
    std::int32_t year = 0;
    std::int32_t month = 0;  // 1 to 12
    std::int32_t day = 0;    // 1 to 31

    friend constexpr bool operator==(const YearMonthDay&, const YearMonthDay&) = default;
};

namespace formula {

// Both calendars have whole cycles of 400 years; this many of them bring every 32-bit year above 0.
inline constexpr std::int64_t kShiftCycles = 5'400'000;
inline constexpr std::int64_t kShiftYears = 400 * kShiftCycles;
inline constexpr std::int64_t kDaysInCommonEraCycle = 146'097;
inline constexpr std::int64_t kDaysInJulianCycle = 146'100;

// Day number of 1 March 0000, and what turns a day number into days since that day, shifted.
inline constexpr std::int64_t kCommonEraMarch0 = 1'721'120;
inline constexpr std::int64_t kJulianMarch0 = 1'721'118;
inline constexpr std::int64_t kCommonEraShift = kDaysInCommonEraCycle * kShiftCycles - kCommonEraMarch0;
inline constexpr std::int64_t kJulianShift = kDaysInJulianCycle * kShiftCycles - kJulianMarch0;

/// Days since 1 January 0001 Common Era, shifted: the count for years that begin in January.
inline constexpr std::int64_t kJanuary1 = 1'721'426;
inline constexpr std::int64_t kJanuaryShift = kDaysInCommonEraCycle * kShiftCycles - kJanuary1;

/// A year counted from the start of the shifted count, and the day in it.
struct YearAndDay {
    std::uint64_t year = 0;
    std::uint32_t day = 0;  // [0, 365]
};

/// Splits four times a count of days, plus 3, in a calendar that has a leap day every fourth year.
constexpr YearAndDay SplitFourYearCalendar(std::uint64_t fourTimesDaysPlus3) {
    return {fourTimesDaysPlus3 / 1461, static_cast<std::uint32_t>(fourTimesDaysPlus3 % 1461) / 4};
}

/// Splits a shifted count of days in a calendar whose leap day is the last day of the year and which leaves
/// it out in three of four century years. The missing leap days are put back, which leaves the plain
/// four-year calendar.
constexpr YearAndDay SplitCommonEra(std::uint64_t days) {
    const std::uint64_t century = (4 * days + 3) / kDaysInCommonEraCycle;
    return SplitFourYearCalendar(4 * (days + century - century / 4) + 3);
}

/// Days before a shifted year of the Common Era.
constexpr std::int64_t DaysBeforeCommonEraYear(std::uint64_t year) {
    const std::uint64_t century = year / 100;
    return static_cast<std::int64_t>(365 * year + year / 4 - century + century / 4);
}

/// Days before a shifted year of the Julian Calendar.
constexpr std::int64_t DaysBeforeJulianYear(std::uint64_t year) {
    return static_cast<std::int64_t>(365 * year + year / 4);
}

/// Month and day of a day of the March year; January and February are its 11th and 12th month and belong
/// to the civil year after it.
constexpr YearMonthDay FromMarchYear(YearAndDay date) {
    const std::uint32_t afterDecember = (date.day + 718) >> 10;  // 1 from day 306 on
    const std::uint32_t scaled = 2141 * date.day + 197'913 - 786'432 * afterDecember;
    return {static_cast<std::int32_t>(static_cast<std::int64_t>(date.year + afterDecember) - kShiftYears),
            static_cast<std::int32_t>(scaled >> 16), static_cast<std::int32_t>((scaled & 65'535) / 2141 + 1)};
}

/// The shifted March year that a month belongs to.
constexpr std::uint64_t MarchYear(std::int32_t year, std::int32_t month) {
    return static_cast<std::uint64_t>(year + kShiftYears - (month <= 2 ? 1 : 0));
}

/// Days from 1 March to a day of the same March year. Any month and day give a number, never a fault: the
/// months outside 1 to 12 go on at the average length.
constexpr std::int64_t DayOfMarchYear(std::int32_t month, std::int32_t day) {
    const std::int64_t marchMonth = std::int64_t{month} + (month <= 2 ? 12 : 0);
    return ((979 * marchMonth - 2919) >> 5) + day - 1;
}

}  // namespace formula

/// Common Era date of a day number. Exact for every 32-bit day number.
constexpr YearMonthDay CommonEraDate(std::int32_t jdn) {
    using namespace formula;
    return FromMarchYear(SplitCommonEra(static_cast<std::uint64_t>(jdn + kCommonEraShift)));
}

/// Julian date of a day number. Exact for every 32-bit day number.
constexpr YearMonthDay JulianDate(std::int32_t jdn) {
    using namespace formula;
    return FromMarchYear(SplitFourYearCalendar(static_cast<std::uint64_t>(4 * (jdn + kJulianShift) + 3)));
}

/// Day number of a Common Era date, not yet tested for 32 bits.
constexpr std::int64_t CommonEraDayNumber(std::int32_t year, std::int32_t month, std::int32_t day) {
    using namespace formula;
    return DaysBeforeCommonEraYear(MarchYear(year, month)) + DayOfMarchYear(month, day) - kCommonEraShift;
}

/// Day number of a Julian date, not yet tested for 32 bits.
constexpr std::int64_t JulianDayNumber(std::int32_t year, std::int32_t month, std::int32_t day) {
    using namespace formula;
    return DaysBeforeJulianYear(MarchYear(year, month)) + DayOfMarchYear(month, day) - kJulianShift;
}

}  // namespace calvoro
