#include "calendar/LeapWeekDate.h"

#include <array>

#include "calendar/CheckedInt.h"

namespace calvoro {

namespace {

// 400 years are 20871 weeks; this many cycles bring every 32-bit year above 0.
constexpr std::int64_t kShiftCycles = 5'400'000;
constexpr std::int64_t kShiftYears = 400 * kShiftCycles;
constexpr std::int64_t kEpoch = 1'721'419;
constexpr std::int64_t kShift = 146'097 * kShiftCycles - kEpoch;

constexpr std::int64_t kWeeksInQuarter = 13;  // 5 + 4 + 4
constexpr std::int64_t kWeeksInYear = 4 * kWeeksInQuarter;

// Weeks before each month; month 0 stands for the month before January, of which nothing is counted.
constexpr std::array<std::int16_t, 13> kWeeksBeforeMonth{0, 0, 5, 9, 13, 18, 22, 26, 31, 35, 39, 44, 48};
static_assert(kWeeksBeforeMonth[12] + 4 == kWeeksInYear);

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
    // The leap years among the years 1 to n are floor((71 n + 203) / 400).
    const std::int64_t yearsBefore = date.year + kShiftYears - 1;
    const std::int64_t weeksBefore =
        kWeeksInYear * yearsBefore + (71 * yearsBefore + 203) / 400 + date.week - 1;
    date.jdn = NarrowToInt32(7 * weeksBefore + date.weekday - 1 - kShift);
    return date.jdn;
}

void JdnToWeekForm(LeapWeekDate& date) {
    // The weeks before year n + 1 are floor((20871 n + 203) / 400); week w, counted from the epoch, then
    // lies in year floor((400 w + 196) / 20871) + 1, and the remainder holds its place in the year.
    const auto days = static_cast<std::uint64_t>(date.jdn + kShift);
    const std::uint64_t scaled = 400 * (days / 7) + 196;
    date.year = static_cast<std::int32_t>(static_cast<std::int64_t>(scaled / 20'871) + 1 - kShiftYears);
    date.week = static_cast<std::int16_t>(scaled % 20'871 / 400 + 1);
    date.weekday = static_cast<std::int16_t>(days % 7 + 1);
}

bool WeekFormToMonthForm(LeapWeekDate& date) {
    if (ValidateWeekForm(date) < 0) return false;
    std::int64_t week = date.week - 1;  // from 0; negative weeks count back from January
    std::int64_t leapWeek = 0;
    if (week >= kWeeksInYear && IsLeapWeekYear(date.year)) {
        // From the leap week on, everything is one week later than in an ordinary year.
        leapWeek = week == kWeeksInYear ? 4 : 0;
        week -= 1;
    }
    std::int64_t quarter = week < 0 ? 0 : week / kWeeksInQuarter;
    std::int64_t weekOfQuarter = week - quarter * kWeeksInQuarter;
    const std::int64_t monthOfQuarter = weekOfQuarter < 5 ? 0 : weekOfQuarter < 9 ? 1 : 2;
    std::int64_t weekOfMonth =
        weekOfQuarter - kWeeksBeforeMonth[static_cast<std::size_t>(monthOfQuarter + 1)];
    if (leapWeek != 0) weekOfMonth = leapWeek;
    date.month = NarrowToInt16(3 * quarter + monthOfQuarter + 1);
    date.day = NarrowToInt16(7 * weekOfMonth + date.weekday);
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
    const int dayFromZero = date.day - 1;
    date.week = static_cast<std::int16_t>(kWeeksBeforeMonth[static_cast<std::size_t>(date.month)] +
                                          dayFromZero / 7 + 1);
    date.weekday = static_cast<std::int16_t>(dayFromZero % 7 + 1);
    date.status = kLeapWeekOk;
    return true;
}

void JdnToLpm(LeapWeekDate& date) {
    JdnToWeekForm(date);
    WeekFormToMonthForm(date);
}

std::int32_t LpmToJdn(LeapWeekDate& date) {
    if (!MonthFormToWeekForm(date)) return 0;
    return WeekFormToJdn(date);
}

}  // namespace calvoro
