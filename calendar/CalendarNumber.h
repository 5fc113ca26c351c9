#pragma once

// The numbers of the notations, as the option buttons, the settings file and the tag table use them.

#include <cstdint>

#include "calendar/DateRecord.h"

namespace calvoro {

enum class CalendarNumber : std::int16_t {
    CE = 0,   // Common Era
    JC = 1,   // Julian Calendar
    JDN = 2,  // day number
    AN = 3,   // Annus Novus, internal
    ORD = 4,  // ordinal date
    VLW = 5,  // older leap-week form, internal
    ISO = 6,  // ISO 8601 week date
    LPW = 7,  // Vantorel Leap Week Calendar, week form
    LPM = 8,  // Vantorel Leap Week Calendar, month form
    ARC = 9,  // internal, without conversions
};

/// Sets the record's calendar code from a notation: CE and ORD give G, JC gives J, AN A, VLW V, ISO I.
/// returns false, leaving the record as it was, when the notation has no code (JDN, LPW, LPM, ARC)
bool CalendarCodeOfTag(CalendarNumber tag, DateRecord& record);

}  // namespace calvoro
