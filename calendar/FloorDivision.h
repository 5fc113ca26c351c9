#pragma once

// Division that rounds down, so that years and days before the start of a calendar count like those after it.

#include <cstdint>

namespace calvoro {

/// The quotient rounded towards minus infinity.
/// divisor  above 0
constexpr std::int64_t FloorDivide(std::int64_t number, std::int64_t divisor) {
    return number / divisor - (number % divisor < 0 ? 1 : 0);
}

}  // namespace calvoro
