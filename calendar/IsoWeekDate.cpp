#include "calendar/IsoWeekDate.h"

#include "calendar/CheckedInt.h"
#include "calendar/EuroFormula.h"

namespace calvoro {

namespace {

/// The Monday that begins week 1, which is the week of 4 January, not yet tested for 32 bits.
std::int64_t WeekOneMonday(std::int32_t year) {
    using namespace formula;
    // Day 0 of this count is a Monday, 1 January 0001, whole cycles of 400 years back; a cycle is whole
    // weeks.
    static_assert(kDaysInCommonEraCycle % 7 == 0);
    const std::int64_t january4 =
        DaysBeforeCommonEraYear(static_cast<std::uint64_t>(year + kShiftYears - 1)) + 3;
    return january4 - january4 % 7 - kJanuaryShift;
}

/// Counts the years before a year that is not below 1 by their shift of the weekday; for other years the
/// number is negative.
std::int64_t WeekdayShift(std::int64_t year) {
    const auto floorDivide = [](std::int64_t a, std::int64_t b) { return a / b - (a % b < 0 ? 1 : 0); };
    return year + floorDivide(year, 4) - floorDivide(year, 100) + floorDivide(year, 400);
}

}  // namespace

std::int32_t IsoWeekOneStart(std::int32_t year) {
    return NarrowToInt32(WeekOneMonday(year));
}

void JdnToIsoWeekDate(IsoWeekDate& date) {
    using namespace formula;
    const auto days = static_cast<std::uint64_t>(date.jdn + kJanuaryShift);
    const std::uint64_t week = days / 7;
    // A week belongs to the year of its Thursday, and the Thursday's week of the year is the week's.
    const YearAndDay thursday = SplitCommonEra(7 * week + 3);
    date.year = static_cast<std::int32_t>(static_cast<std::int64_t>(thursday.year) + 1 - kShiftYears);
    date.week = static_cast<std::int32_t>(thursday.day / 7 + 1);
    date.day = static_cast<std::int32_t>(days - 7 * week + 1);
}

void IsoWeekDateToJdn(IsoWeekDate& date) {
    date.jdn = NarrowToInt32(WeekOneMonday(date.year) + 7 * (std::int64_t{date.week} - 1) + date.day - 1);
}

bool HasWeek53(std::int32_t year) {
    // Deliberate: the remainder takes the sign of the number, so it is never 4 or 3 for years below 1.
    return WeekdayShift(year) % 7 == 4 || WeekdayShift(std::int64_t{year} - 1) % 7 == 3;
}

void IsoDifference(const IsoWeekDate& first, const IsoWeekDate& second, std::int32_t& years,
                   std::int16_t& weeks, std::int16_t& days, std::int32_t& status) {
    CheckedInt yearCount = CheckedInt(second.year) - first.year;
    CheckedInt weekCount = CheckedInt(second.week) - first.week;
    CheckedInt dayCount = CheckedInt(second.day) - first.day;
    const CheckedInt weeksInFirstYear = HasWeek53(first.year) ? 53 : 52;

    if (dayCount < 0 && weekCount > 0) {
        weekCount -= 1;
        dayCount += 7;
    }
    if (dayCount < 0 && weekCount == 0) {
        // Deliberate: the year lent gives all its weeks although one of them is lent to the days.
        yearCount -= 1;
        weekCount = weeksInFirstYear;
        dayCount += 7;
    }
    if (weekCount < 0) {
        // Deliberate: the weeks are those of the first date's year, whichever year is the last whole one.
        yearCount -= 1;
        weekCount += weeksInFirstYear;
        if (dayCount < 0) {
            weekCount -= 1;
            dayCount += 7;
        }
    }
    years = yearCount.Value();
    weeks = NarrowToInt16(weekCount.Value());
    days = NarrowToInt16(dayCount.Value());
    status = yearCount < 0 || weekCount < 0 || dayCount < 0 ? -1 : 0;
}

}  // namespace calvoro
