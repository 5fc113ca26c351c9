#pragma once

// Common Era and Julian dates to day numbers and back. Nothing is validated here: the readers do that
// before a date arrives. A month outside 1 to 12 gives some day number or ArithmeticOverflow, no worse.

#include <cstdint>

#include "calendar/CheckedInt.h"
#include "calendar/DateRecord.h"
#include "calendar/EuroFormula.h"

namespace calvoro {

/// Whether dates of a calendar have day numbers here: all have them but those of the Annus Novus calendar
/// (code A), whose own conversions report failure.
constexpr bool HasDayNumbers(CalendarCode code) {
    return code != CalendarCode::A;
}

/// Day number of the record's year, month and day in its calendar (J: Julian; any other code: Common Era),
/// stored in the record's jdn as well. A record whose calendar has no day numbers stays as it is, and its
/// jdn is returned.
/// record  month 1 to 12, day from 1; any year whose day number fits 32 bits
/// throws  ArithmeticOverflow when the day number does not fit
inline std::int32_t euro_date_to_jdn(DateRecord& record) {
    if (!HasDayNumbers(record.calendar)) [[unlikely]]
        return record.jdn;
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

// What days_elapsed and the routines built on it report.
inline constexpr std::int32_t kCannotBeConverted = 1;
inline constexpr std::int32_t kElapsedOverflow = 2;

/// Day number of `later` minus day number of `earlier`, each as euro_date_to_jdn computes it.
/// status  set to kCannotBeConverted when a record's calendar has no day numbers (the result is then 0), to
///         kElapsedOverflow when the arithmetic overflows; otherwise left alone
/// throws  ArithmeticOverflow, after setting the status
std::int32_t days_elapsed(const DateRecord& later, const DateRecord& earlier, std::int32_t& status);

/// Fills year, month and day from the record's day number, by the Annus Novus routine for code A and by
/// jdn_to_euro_date for every other code.
void DayNumberToDate(DateRecord& record);

}  // namespace calvoro
