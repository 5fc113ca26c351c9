#pragma once

#include <cstdint>
#include <limits>

namespace calvoro {

// The ends of the numbers that day numbers, years and counts are.
inline constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
inline constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();

}  // namespace calvoro
