#pragma once

// A day in a calendar of choice: the two labels that tell today and a week from today, and the text that
// fills a date box with today.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "calendar/CalendarNumber.h"
#include "datetext/TextOptions.h"

namespace calvoro {

/// The words of a label in the language of the interface.
struct LabelWords {
    std::string_view phrase;                     // "Today is"
    std::array<std::string_view, 7> weekdays{};  // Sunday first
    bool german = false;                         // "der " before a day-month-year date
};

/// "Today is Friday, 2026-11-20 CE": phrase, weekday, and the day in the label's calendar. An ordinal date is
/// written beyond four-digit years too ("10000-007"): no box reads a label.
std::string TodayLabel(std::int32_t jdn, CalendarNumber calendar, const TextOptions& options,
                       const LabelWords& words);

/// The calendar after this one: CE ISO JC ORD LPM LPW JDN and round again. Any other gives CE.
CalendarNumber NextTodayCalendar(CalendarNumber calendar);

/// The calendar before this one, the way back of NextTodayCalendar.
CalendarNumber PreviousTodayCalendar(CalendarNumber calendar);

/// Today as it is filled into a date box of this calendar.
/// todayJdn  a day of the years 1 to 9999
std::string TodayBoxText(std::int32_t todayJdn, CalendarNumber calendar, const TextOptions& options);

}  // namespace calvoro
