#pragma once

// Characters of UTF-8 texts, which may hold bytes that belong to none.

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace calvoro {

/// U+FEFF, which some programs put before their text to tell that it is UTF-8.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// A byte of a text as a number, 0 to 255.
/// position  below the length of the text
inline std::uint8_t ByteAt(std::string_view text, std::size_t position) {
    return static_cast<std::uint8_t>(text[position]);
}

/// Length in bytes of the UTF-8 character that the text begins with; 0 when it begins with none.
std::size_t Utf8CharacterLength(std::string_view text);

/// The number of the character that the text begins with.
/// text  Utf8CharacterLength must not be 0
std::uint32_t Utf8CharacterNumber(std::string_view text);

/// How many characters a text has; a byte that belongs to none counts as one.
std::size_t CountCharacters(std::string_view text);

/// Whether the whole text is UTF-8.
bool IsUtf8(std::string_view text);

}  // namespace calvoro
