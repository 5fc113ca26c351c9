#pragma once

// Short names of the seven calendars, for rows of tests.

#include "calendar/CalendarNumber.h"

namespace calvoro {

inline constexpr auto kCE = CalendarNumber::CE;
inline constexpr auto kJC = CalendarNumber::JC;
inline constexpr auto kISO = CalendarNumber::ISO;
inline constexpr auto kORD = CalendarNumber::ORD;
inline constexpr auto kJDN = CalendarNumber::JDN;
inline constexpr auto kLPM = CalendarNumber::LPM;
inline constexpr auto kLPW = CalendarNumber::LPW;

}  // namespace calvoro
