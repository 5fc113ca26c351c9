#include "datetext/Utf8.h"

#include <array>
#include <cstring>

namespace calvoro {
namespace {

struct LeadByteRow {
    std::uint8_t mask;
    std::uint8_t value;
    std::size_t length;
    std::uint32_t smallest;  // a shorter form exists for anything below
};
constexpr std::array<LeadByteRow, 4> kLeadBytes = {{
    {0x80, 0x00, 1, 0},
    {0xE0, 0xC0, 2, 0x80},
    {0xF0, 0xE0, 3, 0x800},
    {0xF8, 0xF0, 4, 0x10000},
}};

struct Utf8Character {
    std::size_t length = 0;
    std::uint32_t number = 0;
};

bool IsCharacterNumber(std::uint32_t number) {
    return number <= 0x10FFFF && (number < 0xD800 || number > 0xDFFF);
}

Utf8Character FirstCharacter(std::string_view text) {
    if (text.empty()) return {};
    for (const LeadByteRow& row : kLeadBytes) {
        if ((ByteAt(text, 0) & row.mask) != row.value) continue;
        if (text.size() < row.length) return {};
        std::uint32_t number = ByteAt(text, 0) & static_cast<std::uint8_t>(~row.mask);
        for (std::size_t i = 1; i < row.length; ++i) {
            if ((ByteAt(text, i) & 0xC0) != 0x80) return {};
            number = number << 6 | (ByteAt(text, i) & 0x3F);
        }
        if (number < row.smallest || !IsCharacterNumber(number)) return {};
        return {row.length, number};
    }
    return {};
}

// How many bytes the text begins with that are ASCII, eight at a time: all of most texts.
std::size_t AsciiLength(std::string_view text) {
    constexpr std::uint64_t kHighBits = 0x8080808080808080;
    std::size_t length = 0;
    for (std::uint64_t bytes = 0; text.size() - length >= sizeof bytes; length += sizeof bytes) {
        std::memcpy(&bytes, text.data() + length, sizeof bytes);
        if ((bytes & kHighBits) != 0) break;
    }
    while (length < text.size() && ByteAt(text, length) < 0x80) ++length;
    return length;
}

}  // namespace

std::size_t Utf8CharacterLength(std::string_view text) {
    return FirstCharacter(text).length;
}

std::uint32_t Utf8CharacterNumber(std::string_view text) {
    return FirstCharacter(text).number;
}

std::size_t CountCharacters(std::string_view text) {
    std::size_t count = 0;
    for (; !text.empty(); ++count) {
        const std::size_t length = Utf8CharacterLength(text);
        text.remove_prefix(length == 0 ? 1 : length);
    }
    return count;
}

bool IsUtf8(std::string_view text) {
    for (;;) {
        text.remove_prefix(AsciiLength(text));
        if (text.empty()) return true;
        const std::size_t length = Utf8CharacterLength(text);
        if (length == 0) return false;
        text.remove_prefix(length);
    }
}

}  // namespace calvoro
