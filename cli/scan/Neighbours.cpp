#include "cli/scan/Neighbours.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "datetext/Digits.h"
#include "datetext/Utf8.h"

namespace calvoro {
namespace {

constexpr std::size_t kLongestCharacter = 4;

struct CharacterRange {
    std::uint32_t first;
    std::uint32_t last;
};

// Blanks, punctuation and symbols beyond ASCII that a text may put beside a date. Everything else joins:
// letters and digits of all scripts, what combines with them, and what looks like a hyphen, a minus, a slash,
// a comma or a full stop.
constexpr std::array<CharacterRange, 29> kStandsApart = {{
    {0x0080, 0x00A9},    // controls, no-break space, symbols
    {0x00AB, 0x00AC},    // left guillemet, not sign
    {0x00AE, 0x00B1},    // symbols
    {0x00B4, 0x00B4},    // acute accent, also an apostrophe
    {0x00B6, 0x00B8},    // pilcrow, middle dot, cedilla
    {0x00BB, 0x00BB},    // right guillemet
    {0x00BF, 0x00BF},    // inverted question mark
    {0x00D7, 0x00D7},    // multiplication sign
    {0x00F7, 0x00F7},    // division sign
    {0x060C, 0x060C},    // Arabic comma
    {0x061B, 0x061B},    // Arabic semicolon
    {0x061F, 0x061F},    // Arabic question mark
    {0x0964, 0x0965},    // danda
    {0x2000, 0x200A},    // blanks
    {0x200E, 0x200F},    // directions
    {0x2013, 0x2043},    // dashes, quotes, bullets, primes
    {0x2045, 0x205F},    // brackets, marks, a blank
    {0x20A0, 0x20BF},    // currencies
    {0x2190, 0x2211},    // arrows, mathematics up to the minus
    {0x2217, 0x2422},    // mathematics beyond the slashes, technical
    {0x2500, 0x2775},    // boxes, shapes, dingbats
    {0x2794, 0x2BFF},    // arrows, brackets, mathematics, more arrows
    {0x3000, 0x3003},    // ideographic blank, comma and full stop
    {0x3008, 0x3020},    // brackets
    {0xFEFF, 0xFEFF},    // byte order mark
    {0xFF01, 0xFF0B},    // wide punctuation up to the comma
    {0xFF1A, 0xFF20},    // wide colon to at sign
    {0xFF5B, 0xFF64},    // wide brackets, halfwidth punctuation
    {0x1F300, 0x1FAFF},  // pictures
}};

static_assert(std::is_sorted(kStandsApart.begin(), kStandsApart.end(),
                             [](const auto& a, const auto& b) { return a.last < b.first; }));

bool StandsApart(std::uint32_t character) {
    const auto isBelow = [](const CharacterRange& range, std::uint32_t number) {
        return range.last < number;
    };
    const auto* const range = std::lower_bound(kStandsApart.begin(), kStandsApart.end(), character, isBelow);
    return range != kStandsApart.end() && range->first <= character;
}

bool IsAscii(char character) {
    return static_cast<unsigned char>(character) < 0x80;
}

// A name joined by "_" is one word.
bool BelongsToWord(char c) {
    return IsDigit(c) || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
}

// "+" stands in front of years of more digits, and of zones behind a date.
bool JoinsAlways(char c) {
    return BelongsToWord(c) || c == '-' || c == '/' || c == '+';
}

bool JoinsToDigit(char c) {
    return c == '.' || c == ',';
}

// place  of a character beyond ASCII
bool JoinsBeyondAscii(TextWindow& window, std::size_t place) {
    const std::string_view rest = window.Text().substr(place);
    if (Utf8CharacterLength(rest) > 0) return !StandsApart(Utf8CharacterNumber(rest));
    window.At(place + kLongestCharacter - 1);  // the rest of the character may be still to come
    return true;
}

}  // namespace

bool JoinsBefore(std::string_view text, std::size_t place) {
    if (place == 0) return false;
    const char last = text[place - 1];
    if (JoinsToDigit(last)) return place > 1 && IsDigit(text[place - 2]);
    if (IsAscii(last)) return JoinsAlways(last);
    for (std::size_t length = 2; length <= std::min(kLongestCharacter, place); ++length) {
        const std::string_view character = text.substr(place - length, length);
        if (Utf8CharacterLength(character) == length) return !StandsApart(Utf8CharacterNumber(character));
    }
    return true;
}

bool JoinsBehind(TextWindow& window, std::size_t place) {
    const char next = window.At(place);
    if (JoinsToDigit(next)) return IsDigit(window.At(place + 1));
    return IsAscii(next) ? JoinsAlways(next) : JoinsBeyondAscii(window, place);
}

bool WordGoesOn(TextWindow& window, std::size_t place) {
    const char next = window.At(place);
    return IsAscii(next) ? BelongsToWord(next) : JoinsBeyondAscii(window, place);
}

}  // namespace calvoro
