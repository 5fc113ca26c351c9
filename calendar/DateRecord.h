#pragma once

// The record that carries a year-month-day date together with its calendar and its day number through the
// whole program. Its owner zeroes it; the calendar routines fill it in place.

#include <cstdint>

namespace calvoro {

/// The character code of the letter that names a record's calendar. Unset (a zeroed record) counts as G.
enum class CalendarCode : std::int32_t {
    Unset = 0,
    G = 'G',  // Common Era (proleptic Gregorian)
    J = 'J',  // Julian Calendar
    A = 'A',  // Annus Novus: carried, never offered to the user
    V = 'V',  // older leap-week form: carried, never offered
    I = 'I',  // ISO 8601 week date
    R = 'R',  // ARC: carried, without conversions
};

/// Years are numbered astronomically: year 0 precedes year 1, and years before it are negative.
struct DateRecord {
    std::int32_t year = 0;
    std::int32_t month = 0;  // 1 to 12
    std::int32_t day = 0;    // day of the month, from 1
    CalendarCode calendar = CalendarCode::Unset;
    std::int32_t jdn = 0;
    std::int32_t reserved = 0;  // always 0

    friend constexpr bool operator==(const DateRecord&, const DateRecord&) = default;
};
static_assert(sizeof(DateRecord) == 24, "six 32-bit fields");

}  // namespace calvoro
