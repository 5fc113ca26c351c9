#pragma once

// The numbers of the notations, as the option buttons, the settings file and the tag table use them.

#include <array>
#include <cstddef>
#include <cstdint>

#include "calendar/DateRecord.h"

namespace calvoro {

/// The number of a notation.
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

/// How many numbers there are.
inline constexpr std::size_t kCalendarNumberCount = 10;

/// The notations that are offered to the user, in the fixed order in which all of them are listed. Every
/// table of notations is made from this one or is compared with it by a static_assert.
inline constexpr std::array kOfferedNotations = {
    CalendarNumber::CE,  CalendarNumber::ISO, CalendarNumber::JC,  CalendarNumber::ORD,
    CalendarNumber::LPM, CalendarNumber::LPW, CalendarNumber::JDN,
};

/// Whether a table has one row for each notation that is offered.
/// number  where a row has its notation
template <typename Row, std::size_t rows>
constexpr bool HoldsEachOfferedNotation(const std::array<Row, rows>& table, CalendarNumber Row::*number) {
    for (const CalendarNumber offered : kOfferedNotations) {
        std::size_t found = 0;
        for (const Row& row : table) found += row.*number == offered ? 1 : 0;
        if (found != 1) return false;
    }
    return rows == kOfferedNotations.size();
}

/// Sets the record's calendar code from a notation: CE and ORD give G, JC gives J, AN A, VLW V, ISO I.
/// returns false, leaving the record as it was, when the notation has no code (JDN, LPW, LPM, ARC)
constexpr bool CalendarCodeOfTag(CalendarNumber tag, DateRecord& record) {
    switch (tag) {
        case CalendarNumber::CE:
        case CalendarNumber::ORD: record.calendar = CalendarCode::G; return true;
        case CalendarNumber::JC: record.calendar = CalendarCode::J; return true;
        case CalendarNumber::AN: record.calendar = CalendarCode::A; return true;
        case CalendarNumber::VLW: record.calendar = CalendarCode::V; return true;
        case CalendarNumber::ISO: record.calendar = CalendarCode::I; return true;
        case CalendarNumber::JDN:
        case CalendarNumber::LPW:
        case CalendarNumber::LPM:
        case CalendarNumber::ARC: return false;
    }
    return false;
}

}  // namespace calvoro
