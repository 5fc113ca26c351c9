#pragma once

// Common Era and Julian dates to day numbers and back. Nothing is validated here: the readers do that
// before a date arrives. A month outside 1 to 12 gives some day number or ArithmeticOverflow, no worse.

#include <cstdint>

#include "calendar/CheckedInt.h"
#include "calendar/DateRecord.h"
#include "calendar/EuroFormula.h"

namespace calvoro {

/// Day number of the record's year, month and day in its calendar (J: Julian; any other code: Common Era),
/// stored in the record's jdn as well.
/// record  month 1 to 12, day from 1; any year whose day number fits 32 bits
/// throws  ArithmeticOverflow when the day number does not fit
inline std::int32_t euro_date_to_jdn(DateRecord& record) {
    record.jdn = NarrowToInt32(record.calendar == CalendarCode::J
                                   ? formula::JulianDayNumber(record.year, record.month, record.day)
                                   : formula::CommonEraDayNumber(record.year, record.month, record.day));
    return record.jdn;
}

/// Fills year, month and day of the record's day number in the record's calendar (J: Julian; any other
/// code: Common Era). Exact for every 32-bit day number.
inline void jdn_to_euro_date(DateRecord& record) {
    const formula::YearMonthDay date = record.calendar == CalendarCode::J
                                           ? formula::JulianDate(record.jdn)
                                           : formula::CommonEraDate(record.jdn);
    record.year = date.year;
    record.month = date.month;
    record.day = date.day;
}

/// Day number of `later` minus day number of `earlier`, each computed from year, month, day and calendar.
/// status  set to 1 when a record cannot be converted (codes A, V, I, R; the result is then 0), to 2 when
///         the arithmetic overflows; otherwise left alone
/// throws  ArithmeticOverflow, after setting status 2
std::int32_t days_elapsed(const DateRecord& later, const DateRecord& earlier, std::int32_t& status);

/// Fills year, month and day from the record's day number, by the Annus Novus routine for code A and by
/// jdn_to_euro_date for every other code.
void DayNumberToDate(DateRecord& record);

}  // namespace calvoro
