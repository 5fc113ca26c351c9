#pragma once

// Numbers of days or months as text.

#include <cstdint>
#include <string_view>

#include "datetext/ParseStatus.h"

namespace calvoro {

/// Whether a text, trimmed, is digits only, after dropping one leading "+" or "-" when signs are allowed
/// and ignoring commas when commas are allowed. An empty text is not.
bool IsDigits(std::string_view text, bool signAllowed, bool commasAllowed);

/// Reads a signed whole number; commas may stand anywhere.
/// number   set when the text is valid; magnitude below 2,100,000,000
ParseStatus ParseDayCount(std::string_view text, std::int32_t& number);

}  // namespace calvoro
