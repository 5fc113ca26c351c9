#pragma once

// Ordinal dates: Common Era year and day of the year.

#include <cstdint>

namespace calvoro {

/// Day number of a day of a Common Era year.
/// dayOfYear  from 1; not validated
/// throws     ArithmeticOverflow
std::int32_t OrdinalToJdn(std::int32_t year, std::int32_t dayOfYear);

/// Common Era year and day of the year (1 to 366) of a day number. Exact for every 32-bit day number.
void JdnToOrdinal(std::int32_t jdn, std::int32_t& year, std::int16_t& dayOfYear);

}  // namespace calvoro
