#pragma once

// The days that the benchmarks convert: so many different ones, in random order, that no branch predictor
// learns them.

#include <cstddef>
#include <cstdint>
#include <vector>

namespace calvoro::bench {

/// Days of one pass of a benchmark.
inline constexpr std::size_t kDaysInPass = 131'072;

/// Where random days are taken from.
enum class Span {
    NearYearZero,  // 400 years on either side of 1 March 0000, so that years have both signs
    ChronoYears,   // years -32767 to 32766, all that std::chrono can hold
    Everything,    // every day that may be shown as a result
};

/// kDaysInPass different days of a span in random order, the same ones in every run.
const std::vector<std::int32_t>& RandomDays(Span span);

}  // namespace calvoro::bench
