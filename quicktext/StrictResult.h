#pragma once

// What strict reading finds: the day, or what is wrong with the text and where.

#include <cstddef>
#include <cstdint>

#include "datetext/ParseStatus.h"

namespace calvoro {

/// Why a text is refused.
enum class ReadFault : std::uint8_t {
    None,
    Unexpected,        // a character that cannot stand where it stands
    EndsEarly,         // the text ends before the date is whole
    NoSuchMonth,       // ... in the calendar
    NoSuchDay,         // ... in the month or the year
    NoSuchWeek,        // ... in the year
    NoSuchWeekday,     // ... in any week
    YearOfEra,         // "BC" or "BCE" behind a year below 1
    DayZero,           // a leap-week date of day number 0, which cannot be told from a failure
    Fraction,          // a day number with a fraction
    TooLarge,          // a number beyond the years or days that are read
    SeveralNotations,  // a text that more than one notation could have
};

struct StrictResult {
    ParseStatus status = ParseStatus::Valid;
    ReadFault fault = ReadFault::None;
    std::int32_t jdn = 0;   // the day number; for Fraction the civil day that the moment lies in
    std::size_t place = 0;  // offset in bytes of what the fault names

    friend constexpr bool operator==(const StrictResult&, const StrictResult&) = default;
};

/// A text that is a date of this day.
constexpr StrictResult ValidDay(std::int64_t jdn) {
    return {ParseStatus::Valid, ReadFault::None, static_cast<std::int32_t>(jdn), 0};
}

/// A text that is refused; TooLarge is out of range, everything else not valid.
constexpr StrictResult Refused(ReadFault fault, std::size_t place) {
    const bool tooLarge = fault == ReadFault::TooLarge;
    return {tooLarge ? ParseStatus::OutOfRange : ParseStatus::NotValid, fault, 0, place};
}

/// Whether a text has the form of a date although there may be no such day.
constexpr bool HasTheForm(const StrictResult& result) {
    return result.fault != ReadFault::Unexpected && result.fault != ReadFault::EndsEarly &&
           result.fault != ReadFault::SeveralNotations;
}

}  // namespace calvoro
