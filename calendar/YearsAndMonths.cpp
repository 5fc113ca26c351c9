#include "calendar/YearsAndMonths.h"

#include "calendar/CheckedInt.h"
#include "calendar/EuroDate.h"

namespace calvoro {

std::int16_t DayOfYear(DateRecord& record) {
    if (!HasDayNumbers(record.calendar)) return 0;
    const CheckedInt day = euro_date_to_jdn(record);
    DateRecord newYear = record;
    newYear.month = 1;
    newYear.day = 1;
    return NarrowToInt16((day - euro_date_to_jdn(newYear) + 1).Value());
}

std::int16_t DaysInYear(std::int32_t year, std::int32_t& status) {
    // Deliberate: the calendar is left unset, so the Common Era rule counts whatever calendar the caller is
    // in.
    const DateRecord newYear{.year = year, .month = 1, .day = 1};
    const DateRecord nextNewYear{.year = (CheckedInt(year) + 1).Value(), .month = 1, .day = 1};
    return NarrowToInt16(days_elapsed(nextNewYear, newYear, status));
}

std::int16_t DaysInMonth(const DateRecord& record, std::int32_t& status) {
    const std::int32_t lastMonth = record.calendar == CalendarCode::A ? 10 : 12;
    const DateRecord thisMonth{
        .year = record.year, .month = record.month, .day = 1, .calendar = record.calendar};
    DateRecord nextMonth = thisMonth;
    nextMonth.month = (CheckedInt(record.month) + 1).Value();
    if (nextMonth.month > lastMonth) {
        nextMonth.month = 1;
        nextMonth.year = (CheckedInt(record.year) + 1).Value();
    }
    return NarrowToInt16(days_elapsed(nextMonth, thisMonth, status));
}

void YearsAndDays(DateRecord& first, DateRecord& second, std::int32_t& years, std::int16_t& days,
                  std::int32_t& status) {
    status = HasDayNumbers(first.calendar) && HasDayNumbers(second.calendar) ? 0 : kCannotBeConverted;
    years = 0;
    days = 0;
    if (status != 0) return;
    const std::int16_t firstDay = DayOfYear(first);
    const std::int16_t secondDay = DayOfYear(second);
    CheckedInt yearCount = CheckedInt(second.year) - first.year;
    CheckedInt dayCount = CheckedInt(secondDay) - firstDay;
    if (dayCount < 0) {
        // Deliberate: one correction only, with the length of a Common Era year, so that a distance in or
        // between other calendars may come out a day short.
        yearCount -= 1;
        dayCount += DaysInYear((CheckedInt(second.year) - 1).Value(), status);
    }
    years = yearCount.Value();
    days = NarrowToInt16(dayCount.Value());
}

bool IsLeapYear(std::int32_t year, std::string_view calendar) {
    // Deliberate: the first letter decides, so a text such as "JDN" counts as Julian.
    const bool julian = !calendar.empty() && (calendar.front() == 'J' || calendar.front() == 'j');
    return year % 4 == 0 && (julian || year % 100 != 0 || year % 400 == 0);
}

}  // namespace calvoro
