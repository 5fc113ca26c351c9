#pragma once

// How a failed comparison shows the records.

#include <ostream>

#include "calendar/DateRecord.h"
#include "calendar/IsoWeekDate.h"
#include "calendar/LeapWeekDate.h"

namespace calvoro {

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
