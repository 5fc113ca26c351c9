#pragma once

// ISO 8601 week dates to day numbers and back, and their differences.

#include <cstdint>

#include "calendar/EuroFormula.h"
#include "calendar/WeekFormula.h"

namespace calvoro {

/// A week date and its day number.
struct IsoWeekDate {
    std::int32_t year = 0;  // ISO week-numbering year
    std::int32_t week = 0;  // 1 to 53
    std::int32_t day = 0;   // 1 Monday to 7 Sunday
    std::int32_t jdn = 0;
    std::int32_t set = 0;  // 1 when filled from a typed text

    friend constexpr bool operator==(const IsoWeekDate&, const IsoWeekDate&) = default;
};
static_assert(sizeof(IsoWeekDate) == 20, "five 32-bit fields");

namespace formula {
/// The Monday that begins week 1 of an ISO year, which is the week of 4 January, not yet tested for 32 bits.
constexpr std::int64_t IsoWeekOneMonday(std::int32_t year) {
    // Monday 1 January 0001 is day 0 of the count. Whole weeks make every 32-bit year's count positive.
    constexpr std::int64_t kWholeWeeks = 7LL << 38;
    const std::int64_t january4 = DaysBeforeCommonEraYear(std::int64_t{year} - 1) + 3;
    return january4 - RemainderBy7(static_cast<std::uint64_t>(january4 + kWholeWeeks)) + kCommonEraJanuary;
}
}  // namespace formula

/// Day number of the Monday that begins week 1 of an ISO year.
/// year    any year whose result fits 32 bits
/// throws  ArithmeticOverflow
/// source  ISO 8601: week 1 is the week of the year's first Thursday
std::int32_t IsoWeekOneStart(std::int32_t year);

/// Fills year, week and day from the record's jdn. Exact for every 32-bit day number.
inline void JdnToIsoWeekDate(IsoWeekDate& date) {
    using namespace formula;
    static_assert(kDaysInCommonEraCycle % 7 == 0, "the shift keeps day 0 a Monday");
    const std::uint64_t days = ShiftedDays(date.jdn, kCommonEraJanuary, kDaysInCommonEraCycle);
    const std::uint32_t dayFromMonday = RemainderBy7(days);
    // A week belongs to the year of its Thursday, and is there as far on as the Thursday.
    const YearAndDay thursday = SplitCommonEra(days - dayFromMonday + 3);
    date.year = Unshifted(thursday.year, 1);
    date.week = static_cast<std::int32_t>(WholeWeeks(thursday.day) + 1);
    date.day = static_cast<std::int32_t>(dayFromMonday + 1);
}

/// Sets jdn from year, week and day, without validation.
/// throws  ArithmeticOverflow
void IsoWeekDateToJdn(IsoWeekDate& date);

/// Whether an ISO year has 53 weeks. Deliberate: never true below year 1, because the test takes the
/// remainder of a negative number.
bool HasWeek53(std::int32_t year);

/// Years, weeks and days from the first week date to the second.
/// status  0, or -1 when a value is negative (the second date lies before the first)
/// throws  ArithmeticOverflow
void IsoDifference(const IsoWeekDate& first, const IsoWeekDate& second, std::int32_t& years,
                   std::int16_t& weeks, std::int16_t& days, std::int32_t& status);

}  // namespace calvoro
