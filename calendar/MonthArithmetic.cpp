#include "calendar/MonthArithmetic.h"

#include "calendar/CheckedInt.h"
#include "calendar/EuroDate.h"
#include "calendar/LeapWeekDate.h"
#include "calendar/YearsAndMonths.h"

namespace calvoro {

namespace {

std::int32_t LengthOfMonth(const DateRecord& date, bool leapWeekForm, std::int32_t& status) {
    if (leapWeekForm) {
        return 7 * WeeksInLeapWeekMonth(NarrowToInt16(date.month), IsLeapWeekYear(date.year));
    }
    return DaysInMonth(date, status);
}

std::int32_t DayNumberOfMonthForm(const DateRecord& date) {
    LeapWeekDate leapWeekDate{
        .year = date.year, .month = NarrowToInt16(date.month), .day = NarrowToInt16(date.day)};
    return LpmToJdn(leapWeekDate);
}

}  // namespace

void AddMonths(const DateRecord& source, std::int32_t months, DateRecord& result, bool leapWeekForm) {
    result = source;
    if (months == 0) return;

    CheckedInt year = source.year;
    CheckedInt month = source.month;
    if (months < 0) {
        month += months;
        if (month < 1) {
            // As many steps of twelve months as bring the month to 1 or above.
            const std::int32_t steps = NarrowToInt32((12 - std::int64_t{month.Value()}) / 12);
            month = NarrowToInt32(month.Value() + 12 * std::int64_t{steps});
            year -= steps;
        }
    } else {
        month += months % 12;
        year += months / 12;
        if (month > 12) {
            month -= 12;
            year += 1;
        }
    }
    result.year = year.Value();
    result.month = month.Value();

    std::int32_t status = 0;
    const std::int32_t length = LengthOfMonth(result, leapWeekForm, status);
    if (status != 0) {
        result = DateRecord();
        return;
    }
    if (result.day > length) result.day = length;

    if (leapWeekForm) {
        result.jdn = DayNumberOfMonthForm(result);
    } else {
        euro_date_to_jdn(result);
    }
}

void YearsMonthsDays(const DateRecord& first, const DateRecord& second, std::int32_t& years,
                     std::int16_t& months, std::int16_t& days, std::int32_t& status) {
    status = 0;
    const std::int32_t monthsInYear = first.calendar == CalendarCode::A ? 10 : 12;
    const bool dayIsBefore = second.day < first.day;

    CheckedInt yearCount = CheckedInt(second.year) - first.year;
    if (second.month < first.month || (second.month == first.month && dayIsBefore)) yearCount -= 1;

    CheckedInt monthCount = CheckedInt(second.month) - first.month;
    if (dayIsBefore) monthCount -= 1;
    if (monthCount < 0) monthCount += monthsInYear;

    CheckedInt dayCount = CheckedInt(second.day) - first.day;
    if (dayCount < 0) {
        DateRecord monthBefore = second;
        monthBefore.month = (CheckedInt(second.month) - 1).Value();
        if (monthBefore.month < 1) {
            monthBefore.month = monthsInYear;
            monthBefore.year = (CheckedInt(second.year) - 1).Value();
        }
        // Deliberate: added once. A first day beyond the length of this month leaves a negative count.
        dayCount += DaysInMonth(monthBefore, status);
    }
    years = yearCount.Value();
    months = NarrowToInt16(monthCount.Value());
    days = NarrowToInt16(dayCount.Value());
}

}  // namespace calvoro
