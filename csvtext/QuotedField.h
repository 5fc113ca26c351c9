#pragma once

// Fields in quotes, as they stand in comma-separated values. Where a field begins and what ends it is for
// those who read lines to say.
//
// source  RFC 4180

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

namespace calvoro {

/// Finds a character from a place on.
/// from     any number
/// returns  its place; the end of the text when it is not there
inline std::size_t FindCharacter(std::string_view text, char character, std::size_t from) {
    if (from >= text.size()) return text.size();
    const void* const found = std::memchr(text.data() + from, character, text.size() - from);
    return found == nullptr ? text.size()
                            : static_cast<std::size_t>(static_cast<const char*>(found) - text.data());
}

/// Finds the quote that closes a field.
/// from     behind the field's opening quote, or any place inside of it that is not between two quotes
/// returns  the first quote that is not one of two; the end of the text when there is none
std::size_t FindClosingQuote(std::string_view text, std::size_t from);

/// What a field says that begins with a quote: of two quotes one, and what stands behind the closing one.
/// field    with its quotes
/// closing  what FindClosingQuote found
/// text     replaced by the answer
void Unquote(std::string_view field, std::size_t closing, std::string& text);

}  // namespace calvoro
