#include "calendar/Today.h"

#include "calendar/CheckedInt.h"
#include "calendar/DateRecord.h"
#include "calendar/EuroDate.h"

namespace calvoro {

std::int32_t TodayJdn(const LocalDate& today) {
    DateRecord record{
        .year = today.year, .month = today.month, .day = today.day, .calendar = CalendarCode::G};
    return euro_date_to_jdn(record);
}

std::int32_t CurrentMonthBounds(const LocalDate& today, std::int32_t& firstDay, std::int32_t& lastDay) {
    DateRecord record{.calendar = CalendarCode::G, .jdn = TodayJdn(today)};
    jdn_to_euro_date(record);
    const std::int32_t month = record.month;
    record.day = 1;
    firstDay = euro_date_to_jdn(record);
    if (record.month == 12) {
        record.month = 1;
        record.year += 1;
    } else {
        record.month += 1;
    }
    lastDay = (CheckedInt(euro_date_to_jdn(record)) - 1).Value();
    return month;
}

}  // namespace calvoro
