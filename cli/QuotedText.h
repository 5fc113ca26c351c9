#pragma once

// Foreign text made fit to stand in a message: on one line, of bounded length, and without anything that a
// terminal would obey.

#include <cstddef>
#include <string>
#include <string_view>

namespace calvoro {

/// Length in bytes of the UTF-8 character that the text begins with; 0 when it begins with none.
std::size_t Utf8CharacterLength(std::string_view text);

/// Whether the whole text is UTF-8.
bool IsUtf8(std::string_view text);

/// The text with control characters and bytes that are not UTF-8 as \xNN, of any length.
std::string PrintableText(std::string_view text);

/// The text in single quotes, made printable, and "..." behind the closing quote in place of what exceeds
/// kMaxQuotedLength bytes.
std::string QuotedText(std::string_view text);

inline constexpr std::size_t kMaxQuotedLength = 100;

}  // namespace calvoro
