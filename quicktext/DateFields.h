#pragma once

// The numbers of a date as a text gives them, and the day they mean. What is no such day is judged as the
// readers of the notations judge it.

#include <cstddef>
#include <cstdint>

#include "calendar/CalendarNumber.h"
#include "quicktext/StrictResult.h"

namespace calvoro {

/// Year, month and day (CE, JC, LPM), year, week and weekday (ISO, LPW), or year and day of the year (ORD:
/// `second` stays 0), each with its offset in the text. JDN has `third` alone.
struct DateFields {
    std::int32_t year = 0;
    std::int32_t second = 0;
    std::int32_t third = 0;
    std::size_t yearPlace = 0;
    std::size_t secondPlace = 0;
    std::size_t thirdPlace = 0;
};

/// The day of the numbers.
/// fields   not negative, but for the year and a day number
/// returns  the day number, or the fault with the place of the number that is wrong
StrictResult DayOfFields(CalendarNumber notation, const DateFields& fields);

}  // namespace calvoro
