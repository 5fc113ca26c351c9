#pragma once

// Ordinal dates: Common Era year and day of the year.

#include <cstdint>

#include "calendar/EuroFormula.h"

namespace calvoro {

/// Day number of a day of a Common Era year.
/// dayOfYear  from 1; not validated
/// throws     ArithmeticOverflow
std::int32_t OrdinalToJdn(std::int32_t year, std::int32_t dayOfYear);

/// Common Era year and day of the year (1 to 366) of a day number. Exact for every 32-bit day number.
inline void JdnToOrdinal(std::int32_t jdn, std::int32_t& year, std::int16_t& dayOfYear) {
    using namespace formula;
    const YearAndDay date = SplitCommonEra(ShiftedDays(jdn, kCommonEraJanuary, kDaysInCommonEraCycle));
    year = Unshifted(date.year, 1);
    dayOfYear = static_cast<std::int16_t>(date.day + 1);
}

}  // namespace calvoro
