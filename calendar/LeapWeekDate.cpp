#include "calendar/LeapWeekDate.h"

#include <cstddef>

#include "calendar/CheckedInt.h"
#include "calendar/LeapWeekFormula.h"

namespace calvoro {

namespace {

using namespace formula;

struct WeekOfMonth {
    std::int64_t month = 1;
    std::int64_t week = 1;  // of the month
};

/// The month of a week of an ordinary year. A week after the last one goes on in a month 13, which is as
/// long as January, and so on; a week before the first one is counted back from January.
WeekOfMonth MonthOfWeek(std::int64_t week) {
    if (week < 1) return {1, week};
    const std::int64_t quarter = (week - 1) / kWeeksInLeapWeekQuarter;
    const std::int64_t weekOfQuarter = week - quarter * kWeeksInLeapWeekQuarter;
    const std::int64_t monthOfQuarter = weekOfQuarter > 9 ? 3 : weekOfQuarter > 5 ? 2 : 1;
    return {3 * quarter + monthOfQuarter,
            weekOfQuarter - kWeeksBeforeMonth[static_cast<std::size_t>(monthOfQuarter)]};
}

}  // namespace

bool IsLeapWeekYear(std::int32_t year) {
    std::int64_t remainder = (71 * std::int64_t{year} + 203) % 400;
    if (remainder < 0) remainder += 400;
    return remainder < 71;
}

std::int16_t WeeksInLeapWeekMonth(std::int16_t month, bool leap) {
    return month % 3 == 1 || (month == 12 && leap) ? 5 : 4;
}

std::int16_t ValidateWeekForm(LeapWeekDate& date) {
    // Deliberate: the week is not compared with the weeks of the year, and weekday 0 passes.
    date.status = date.weekday < 0 || date.weekday > 7 ? kLeapWeekBadDay : kLeapWeekOk;
    return date.status;
}

std::int32_t WeekFormToJdn(LeapWeekDate& date) {
    if (ValidateWeekForm(date) < 0) return date.status;
    const std::int64_t weeksBefore = WeeksBeforeLeapWeekYear(date.year) + date.week - 1;
    date.jdn = NarrowToInt32(kLeapWeekEpoch + 7 * weeksBefore + date.weekday - 1);
    return date.jdn;
}

bool WeekFormToMonthForm(LeapWeekDate& date) {
    if (ValidateWeekForm(date) < 0) return false;
    WeekOfMonth place = MonthOfWeek(date.week);
    if (date.week > kWeeksInLeapWeekYear && IsLeapWeekYear(date.year)) {
        // The leap week is December's fifth; whatever follows it comes a week later than in other years.
        place = date.week == kWeeksInLeapWeekYear + 1 ? WeekOfMonth{12, 5} : MonthOfWeek(date.week - 1);
    }
    date.month = NarrowToInt16(place.month);
    date.day = NarrowToInt16(7 * (place.week - 1) + date.weekday);
    return true;
}

bool MonthFormToWeekForm(LeapWeekDate& date) {
    // Deliberate: month 0 and day 0 pass.
    if (date.month < 0 || date.month > 12) {
        date.status = kLeapWeekBadMonth;
        return false;
    }
    if (date.day < 0 || date.day > 7 * WeeksInLeapWeekMonth(date.month, IsLeapWeekYear(date.year))) {
        date.status = kLeapWeekBadDay;
        return false;
    }
    // Day 0 counts as weekday 0 of the month's first week: both divisions round towards zero.
    const std::int32_t dayFromZero = date.day - 1;
    const std::int32_t weeksBefore = kWeeksBeforeMonth[static_cast<std::size_t>(date.month)];
    date.week = static_cast<std::int16_t>(weeksBefore + dayFromZero / 7 + 1);
    date.weekday = static_cast<std::int16_t>(dayFromZero % 7 + 1);
    date.status = kLeapWeekOk;
    return true;
}

void JdnToLpm(LeapWeekDate& date) {
    JdnToWeekForm(date);
    WeekFormToMonthForm(date);
}

std::int32_t LpmToJdn(LeapWeekDate& date) {
    return MonthFormToWeekForm(date) ? WeekFormToJdn(date) : 0;
}

}  // namespace calvoro
