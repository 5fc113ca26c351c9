#pragma once

// Blanks in typed texts. Only the blank itself counts; tabs and line breaks are characters like any other.

#include <string>
#include <string_view>

namespace calvoro {

/// The text without the blanks at its two ends.
std::string_view TrimBlanks(std::string_view text);

/// The text without any blank.
std::string WithoutBlanks(std::string_view text);

}  // namespace calvoro
