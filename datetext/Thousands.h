#pragma once

// Thousands separators in numbers.

#include <cstdint>
#include <string>
#include <string_view>

namespace calvoro {

/// Size of the buffer of separate_thousands.
inline constexpr std::size_t kThousandsBufferSize = 20;

/// Writes a number with a separator between groups of three digits, counted from the right, and a NUL
/// after it. A leading minus sign is kept.
/// number     an optional "-" and digits, NUL-terminated; what does not fit the buffer is cut off
/// separator  its character code
void separate_thousands(const char* number, std::int32_t separator, char (&buffer)[kThousandsBufferSize]);

/// The number text with thousands separators; unchanged for kNoSeparator.
std::string ThousandsText(std::string_view number, char separator);

/// A whole number as digits with thousands separators.
std::string ThousandsText(std::int32_t number, char separator);

/// Removes the separators of a text that is an optional sign ("-" or "+") and digits, grouped by threes
/// throughout with `separator` (1.234.567, not 12.34 and not 1234.567).
/// returns  false, leaving the text alone, for any other text, one without separators included
bool DropWellGroupedSeparators(std::string& text, char separator);

}  // namespace calvoro
