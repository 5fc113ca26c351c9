#pragma once

// The closed forms behind the conversions of Common Era and Julian dates. They are here, and the conversions
// built on them are inline, because a call would cost as much as the work.
//
// A year is taken to begin in March where months count, so that the leap day is the last day of its year.
// From day to date everything is shifted by whole cycles, so that all divisions are plain divisions of
// unsigned numbers; from date to day the divisions are shifts to the right, which round down for negative
// numbers too.
//
// source  affine month and year functions: C. Neri, L. Schneider, Euclidean affine functions and their
//         application to calendar algorithms, Software: Practice and Experience 53 (2023)

#include <array>
#include <cstddef>
#include <cstdint>

namespace calvoro::formula {

/// A date as the closed forms give it.
struct YearMonthDay {
    std::int32_t year = 0;
    std::int32_t month = 0;  // 1 to 12
    std::int32_t day = 0;    // 1 to 31

    friend constexpr bool operator==(const YearMonthDay&, const YearMonthDay&) = default;
};

/// A year counted from the first year of a shifted count, and the day in it.
struct YearAndDay {
    std::uint64_t year = 0;
    std::uint32_t day = 0;  // [0, 365]
};

// Day numbers of 1 March 0000 in both calendars and of 1 January 0001 of the Common Era.
inline constexpr std::int64_t kCommonEraMarch = 1'721'120;
inline constexpr std::int64_t kJulianMarch = 1'721'118;
inline constexpr std::int64_t kCommonEraJanuary = 1'721'426;

// Both calendars repeat after 400 years. This many cycles bring every 32-bit day number above 0.
inline constexpr std::int64_t kShiftCycles = 15'000;
inline constexpr std::int64_t kShiftYears = 400 * kShiftCycles;
inline constexpr std::int64_t kDaysInCommonEraCycle = 146'097;
inline constexpr std::int64_t kDaysInJulianCycle = 146'100;
static_assert(kDaysInCommonEraCycle * kShiftCycles - kCommonEraJanuary > 2'147'483'648);

/// Days from `epoch`, shifted. epoch is one of the day numbers above.
constexpr std::uint64_t ShiftedDays(std::int32_t jdn, std::int64_t epoch, std::int64_t daysInCycle) {
    return static_cast<std::uint64_t>(jdn + (daysInCycle * kShiftCycles - epoch));
}

/// Splits a count of days in the plain calendar that has a leap day at the end of every fourth year.
/// scaledDays  four times the days, plus 3
constexpr YearAndDay SplitFourYearCalendar(std::uint64_t scaledDays) {
    return {scaledDays / 1461, static_cast<std::uint32_t>(scaledDays % 1461) / 4};
}

/// Splits a count of Common Era days in years whose leap day is their last day. The leap days that three of
/// four centuries leave out are put back first, which makes it the plain four-year calendar.
constexpr YearAndDay SplitCommonEra(std::uint64_t days) {
    const std::uint64_t scaledDays = 4 * days + 3;
    const std::uint64_t century = scaledDays / kDaysInCommonEraCycle;
    const std::uint64_t leapCentury = century & ~std::uint64_t{3};  // 4 (century / 4): the last leap one
    return SplitFourYearCalendar(scaledDays + 4 * century - leapCentury);
}

/// The year of a shifted count as it is numbered, where the count began with year `first`.
constexpr std::int32_t Unshifted(std::uint64_t year, std::int32_t first) {
    return static_cast<std::int32_t>(static_cast<std::int64_t>(year) + first - kShiftYears);
}

/// Month and day of a day of a year that began in March. January and February belong to the next year.
constexpr YearMonthDay FromMarchYear(YearAndDay date) {
    const std::uint32_t afterDecember = (date.day + 718) >> 10;  // 1 from day 306 on, without a branch
    const std::uint32_t scaledMonth = 2141 * date.day + 197'913 - 786'432 * afterDecember;
    return {Unshifted(date.year + afterDecember, 0), static_cast<std::int32_t>(scaledMonth >> 16),
            static_cast<std::int32_t>((scaledMonth & 65'535) / 2141 + 1)};
}

/// Days from the first day of year 0 to the first day of a year, in the plain four-year calendar.
constexpr std::int64_t DaysBeforeFourYearCalendarYear(std::int64_t year) {
    return 1461 * year >> 2;
}

/// Days from the first day of year 0 to the first day of a year of the Common Era, where the leap day is the
/// last day of its year.
/// year  any 32-bit year, and the one before it
constexpr std::int64_t DaysBeforeCommonEraYear(std::int64_t year) {
    // The year, plus a half, divided by 100: 1374389535 / 2^37 exceeds 1/100 by so little that, for 32-bit
    // years, the product stays within the half. A division would need another one for every 400 years.
    const std::int64_t century = (year * 1'374'389'535 + 687'194'767) >> 37;
    return DaysBeforeFourYearCalendarYear(year) - century + (century >> 2);
}

/// The year, begun in March, that a month belongs to.
constexpr std::int64_t MarchYear(std::int64_t year, std::int32_t month) {
    return year - (static_cast<std::uint32_t>(month) < 3 ? 1 : 0);  // unsigned: a subtraction with borrow
}

// Days from 1 March to the first day of each month. The rows that are no month keep any month number inside
// the table.
inline constexpr std::array<std::int16_t, 16> kDaysFromMarch{275, 306, 337, 0,   31,  61,  92,  122,
                                                             153, 184, 214, 245, 275, 306, 337, 0};

/// Days from 1 March to a day of the same March year.
constexpr std::int64_t DayOfMarchYear(std::int32_t month, std::int32_t day) {
    return kDaysFromMarch[static_cast<std::uint32_t>(month) % kDaysFromMarch.size()] + std::int64_t{day} - 1;
}

/// Common Era date of a day number. Exact for every 32-bit day number.
constexpr YearMonthDay CommonEraDate(std::int32_t jdn) {
    return FromMarchYear(SplitCommonEra(ShiftedDays(jdn, kCommonEraMarch, kDaysInCommonEraCycle)));
}

/// Julian date of a day number. Exact for every 32-bit day number.
constexpr YearMonthDay JulianDate(std::int32_t jdn) {
    return FromMarchYear(SplitFourYearCalendar(4 * ShiftedDays(jdn, kJulianMarch, kDaysInJulianCycle) + 3));
}

/// Day number of a Common Era date, not yet tested for 32 bits.
constexpr std::int64_t CommonEraDayNumber(std::int32_t year, std::int32_t month, std::int32_t day) {
    return DaysBeforeCommonEraYear(MarchYear(year, month)) + DayOfMarchYear(month, day) + kCommonEraMarch;
}

/// Day number of a Julian date, not yet tested for 32 bits.
constexpr std::int64_t JulianDayNumber(std::int32_t year, std::int32_t month, std::int32_t day) {
    return DaysBeforeFourYearCalendarYear(MarchYear(year, month)) + DayOfMarchYear(month, day) + kJulianMarch;
}

}  // namespace calvoro::formula
