#pragma once

// What may stand beside a date in running text without belonging to it.

#include <cstddef>
#include <string_view>

namespace calvoro {

/// A part of a longer text. Whoever looks beyond its end learns nothing, and that is remembered.
class TextWindow {
public:
    /// isWhole  whether nothing follows the part
    TextWindow(std::string_view text, bool isWhole) : text_(text), isWhole_(isWhole) {}

    std::string_view Text() const { return text_; }

    /// The byte at a place; a NUL, which belongs to no date, beyond the end.
    char At(std::size_t place) {
        if (place < text_.size()) return text_[place];
        lookedBeyond_ = lookedBeyond_ || !isWhole_;
        return '\0';
    }

    /// Whether what follows the part could change what was found in it.
    bool LookedBeyond() const { return lookedBeyond_; }

private:
    std::string_view text_;
    bool isWhole_;
    bool lookedBeyond_ = false;
};

/// How many bytes in front of a place JoinsBefore may look at.
inline constexpr std::size_t kBytesBefore = 8;

/// Whether the character in front of a place joins what begins there to something longer: a letter, a digit,
/// a hyphen, a slash, "." or "," behind a digit. Bytes that are no UTF-8 join, as they could be letters.
bool JoinsBefore(std::string_view text, std::size_t place);

/// Whether the character at a place joins what ends there to something longer: as JoinsBefore, but "." and
/// "," join when a digit follows them.
bool JoinsBehind(TextWindow& window, std::size_t place);

/// Whether the word that ends at a place goes on there: with a letter, a digit or "_".
bool WordGoesOn(TextWindow& window, std::size_t place);

}  // namespace calvoro
