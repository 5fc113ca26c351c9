#include "calendar/IsoWeekDate.h"

#include "calendar/CheckedInt.h"
#include "calendar/FloorDivision.h"

namespace calvoro {

namespace {

/// A number that grows with the year as the weekday of 31 December moves on: divided by 7 it leaves 4 for a
/// Thursday, and so for the year before it 3 for a Wednesday. Negative below year 0.
std::int64_t WeekdayOfLastDay(std::int64_t year) {
    return year + FloorDivide(year, 4) - FloorDivide(year, 100) + FloorDivide(year, 400);
}

}  // namespace

std::int32_t IsoWeekOneStart(std::int32_t year) {
    return NarrowToInt32(formula::IsoWeekOneMonday(year));
}

void IsoWeekDateToJdn(IsoWeekDate& date) {
    date.jdn = NarrowToInt32(formula::IsoWeekOneMonday(date.year) + 7 * (std::int64_t{date.week} - 1) +
                             date.day - 1);
}

bool HasWeek53(std::int32_t year) {
    // Deliberate: the remainder takes the sign of the number, so no year below 1 passes.
    return WeekdayOfLastDay(year) % 7 == 4 || WeekdayOfLastDay(std::int64_t{year} - 1) % 7 == 3;
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
