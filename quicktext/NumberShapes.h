#pragma once

// Whole numbers inside strictly read texts: years and day numbers, with thousands separators or without.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "quicktext/TextCursor.h"

namespace calvoro {

/// The separators that may group the digits of one kind of number; empty ones do not.
using Groupings = std::array<std::string_view, 3>;

/// Takes a number without sign: digits alone, or digits grouped by threes throughout with one of the
/// separators, which then do not begin with 0.
/// leastGrouped  how many digits a number has at least to be grouped
/// value         saturated as ReadDigits says
/// returns       a valid result, or the refusal of the character in the way
StrictResult TakeNumber(TextCursor& cursor, const Groupings& groupings, std::size_t leastGrouped,
                        std::int32_t& value);

/// Takes a number of a few digits.
/// least, most  how many digits it may have
/// returns      a valid result, or the refusal of the character in the way
StrictResult TakeField(TextCursor& cursor, std::size_t least, std::size_t most, std::int32_t& value);

}  // namespace calvoro
