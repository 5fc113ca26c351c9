#pragma once

// Foreign text made fit to stand in a message: on one line, of bounded length, without anything that a
// terminal would obey, and with everything that it would not show made visible.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace calvoro {

/// Whether a character has a look of its own. Control and format characters, blanks other than the ordinary
/// one, characters for private use and noncharacters have none, or one that depends on the machine.
/// character  its number
bool CanBeSeen(std::uint32_t character);

/// The text with characters that cannot be seen and bytes that are not UTF-8 as \xNN, of any length.
std::string PrintableText(std::string_view text);

/// The text in single quotes, made printable, and "..." behind the closing quote in place of what exceeds
/// kMaxQuotedLength bytes.
std::string QuotedText(std::string_view text);

/// Bytes of a text that are quoted at most.
inline constexpr std::size_t kMaxQuotedLength = 100;

}  // namespace calvoro
