#pragma once

// The year that is typed in the month window.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace calvoro {

/// Reads a year: digits with or without a sign, blanks at the ends.
/// returns  nothing when the text is anything else or does not fit 32 bits
std::optional<std::int32_t> ReadYear(std::string_view text);

/// The year `step` years on, as plain digits.
/// returns  nothing when the text is no year or the result does not fit 32 bits
std::optional<std::string> SteppedYear(std::string_view text, std::int32_t step);

}  // namespace calvoro
