#pragma once

// Between the program's UTF-8 and the system's UTF-16.

#include <string>
#include <string_view>

namespace calvoro {

/// UTF-8 to UTF-16; what is not valid becomes U+FFFD.
std::wstring WideText(std::string_view text);

/// UTF-16 to UTF-8; a half of a pair that stands alone becomes U+FFFD.
std::string NarrowText(std::wstring_view text);

}  // namespace calvoro
