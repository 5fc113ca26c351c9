#pragma once

// Records of dates in rows of tests, and how a failed comparison shows them.

#include <ostream>

#include "calendar/DateRecord.h"
#include "calendar/IsoWeekDate.h"
#include "calendar/LeapWeekDate.h"

namespace calvoro {

constexpr DateRecord On(CalendarCode calendar, std::int32_t year, std::int32_t month, std::int32_t day,
                        std::int32_t jdn = 0) {
    return {.year = year, .month = month, .day = day, .calendar = calendar, .jdn = jdn};
}

inline void PrintTo(const DateRecord& record, std::ostream* out) {
    *out << record.year << '-' << record.month << '-' << record.day << " code "
         << static_cast<std::int32_t>(record.calendar) << " day " << record.jdn;
}

inline void PrintTo(const IsoWeekDate& date, std::ostream* out) {
    *out << date.year << "-W" << date.week << '-' << date.day << " day " << date.jdn << " set " << date.set;
}

inline void PrintTo(const LeapWeekDate& date, std::ostream* out) {
    *out << date.year << ": month " << date.month << " day " << date.day << ", week " << date.week
         << " weekday " << date.weekday << ", day " << date.jdn << " status " << date.status;
}

}  // namespace calvoro
