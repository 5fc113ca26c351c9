#pragma once

// Which keys may be typed into the input boxes.

#include <cstdint>

namespace calvoro {

/// Whether a key may be typed into a date box. Backspace (8), Ctrl+C (3), Ctrl+V (22) and Ctrl+X (24)
/// always may; "W" and "w" when the letter is allowed (an ISO box), at any length.
/// key        character code of the key
/// length     characters in the box
/// maxLength  length from which typing is refused
bool DateKeyFilter(std::int32_t key, std::int32_t length, std::int32_t maxLength, char separator,
                   bool letterWAllowed);

/// Whether a key may be typed into the difference box: digits, "+", "-", "," and the thousands separator.
bool NumberKeyFilter(std::int32_t key, std::int32_t length, std::int32_t maxLength, char thousandsSeparator);

}  // namespace calvoro
