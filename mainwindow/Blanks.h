#pragma once

#include <string_view>

namespace calvoro {

/// A text without the blanks around it. Only blanks: a line break or a tab stays.
constexpr std::string_view WithoutOuterBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

}  // namespace calvoro
