#pragma once

// Days to their texts in every notation and back, under every way of writing them in turn.

#include <array>
#include <cstdint>
#include <string_view>

#include "tests/exhaustive/Shares.h"

namespace calvoro::exhaustive {

/// What became of the days in one notation.
struct TextCount {
    std::string_view tag;
    std::int64_t cameBack = 0;     // written, and read as the same day with the same text
    std::int64_t refused = 0;      // written and refused, as is known of them
    std::int64_t notWritable = 0;  // outside the years that the notation has
};

/// Checks every `stride`-th day of a span and reports each fault: a text that is refused, or read as another
/// day, though it is none of the known exceptions, or an exception that is accepted.
std::array<TextCount, 7> CheckTexts(Days days, std::int64_t stride);

}  // namespace calvoro::exhaustive
