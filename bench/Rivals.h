#pragma once

// What the calendar library is measured against, beside std::chrono: the conversion by eras of 400 years
// as it is commonly taught, and the leap-week calendar's definition taken literally.

#include <cstdint>

#include "calendar/LeapWeekDate.h"

namespace calvoro::bench {

struct TextbookDate {
    std::int32_t year = 0;
    std::int32_t month = 0;
    std::int32_t day = 0;
};

/// Common Era date of a day number, by era, year of the era and day of the year. Day numbers to 2,100,000,000
/// of either sign.
inline TextbookDate TextbookFromDay(std::int32_t jdn) {
    const std::int32_t days = jdn - 1'721'120;  // since 1 March 0000
    const std::int32_t era = (days >= 0 ? days : days - 146'096) / 146'097;
    const auto dayOfEra = static_cast<std::uint32_t>(days - era * 146'097);
    const std::uint32_t yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36'524 - dayOfEra / 146'096) / 365;
    const std::uint32_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::uint32_t marchMonth = (5 * dayOfYear + 2) / 153;
    const std::uint32_t day = dayOfYear - (153 * marchMonth + 2) / 5 + 1;
    const std::uint32_t month = marchMonth < 10 ? marchMonth + 3 : marchMonth - 9;
    const std::int32_t year = static_cast<std::int32_t>(yearOfEra) + era * 400 + (month <= 2 ? 1 : 0);
    return {year, static_cast<std::int32_t>(month), static_cast<std::int32_t>(day)};
}

/// Day number of a Common Era date, the same way.
inline std::int32_t TextbookToDay(const TextbookDate& date) {
    const std::int32_t year = date.month <= 2 ? date.year - 1 : date.year;
    const std::int32_t era = (year >= 0 ? year : year - 399) / 400;
    const auto yearOfEra = static_cast<std::uint32_t>(year - era * 400);
    const auto marchMonth = static_cast<std::uint32_t>(date.month > 2 ? date.month - 3 : date.month + 9);
    const std::uint32_t dayOfYear = (153 * marchMonth + 2) / 5 + static_cast<std::uint32_t>(date.day) - 1;
    const std::uint32_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146'097 + static_cast<std::int32_t>(dayOfEra) + 1'721'120;
}

/// Fills year, week and weekday from jdn by going from year to year through the cycle of 400 years.
void WalkToWeekForm(LeapWeekDate& date);

}  // namespace calvoro::bench
