#pragma once

// Digits of typed and written numbers: ASCII only, whatever the locale of the process.

#include <charconv>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace calvoro {

/// Whether a character is one of 0 to 9.
constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Whether a text is nothing but digits; an empty one is not.
constexpr bool AllDigits(std::string_view text) {
    for (const char c : text) {
        if (!IsDigit(c)) return false;
    }
    return !text.empty();
}

/// What a run of digits counts as when its value does not fit 32 bits: beyond every limit there is.
inline constexpr std::int32_t kDigitsSaturated = std::numeric_limits<std::int32_t>::max();

/// The value of the digits from position `at` on, and `at` moved behind them. No digits give 0.
/// returns  [0, kDigitsSaturated]; runs of any length saturate instead of wrapping
constexpr std::int32_t ReadDigits(std::string_view text, std::size_t& at) {
    std::int64_t value = 0;
    for (; at < text.size() && IsDigit(text[at]); ++at) {
        value = value * 10 + (text[at] - '0');
        if (value > kDigitsSaturated) value = kDigitsSaturated;
    }
    return static_cast<std::int32_t>(value);
}

/// Room for the digits of any 32-bit number, its sign and a NUL.
inline constexpr std::size_t kNumberRoom = 12;

/// Appends a number, with zeros in front up to `width` digits; a minus sign stands before them.
inline void AppendNumber(std::string& text, std::int32_t number, std::size_t width = 1) {
    char digits[kNumberRoom];
    const std::int64_t value = number;  // the smallest 32-bit number has no positive of its own
    const char* end = std::to_chars(digits, digits + kNumberRoom, value < 0 ? -value : value).ptr;
    const auto length = static_cast<std::size_t>(end - digits);
    if (value < 0) text.push_back('-');
    if (length < width) text.append(width - length, '0');
    text.append(digits, length);
}

}  // namespace calvoro
