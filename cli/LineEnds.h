#pragma once

#include <string>
#include <string_view>

namespace calvoro {

/// The text with every CR LF replaced by LF.
std::string WithLineFeeds(std::string_view text);

/// The text on one line: every CR LF replaced by a blank.
std::string OnOneLine(std::string_view text);

}  // namespace calvoro
