#pragma once

// The case of letters, ASCII only, whatever the locale of the process.

#include <algorithm>
#include <string_view>

namespace calvoro {

/// The small letter of a capital one; any other character as it is.
constexpr char LowerCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// Whether two texts are the same but for the case of ASCII letters.
constexpr bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return LowerCase(x) == LowerCase(y); });
}

}  // namespace calvoro
