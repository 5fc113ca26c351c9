#include "cli/QuotedText.h"

#include <array>
#include <cstdint>

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

std::uint8_t ByteAt(std::string_view text, std::size_t position) {
    return static_cast<std::uint8_t>(text[position]);
}

bool IsCharacterNumber(std::uint32_t number) {
    return number <= 0x10FFFF && (number < 0xD800 || number > 0xDFFF);
}

// The characters that move the cursor, change colours or hide text: C0, DEL, C1.
bool IsControl(std::string_view character) {
    const std::uint8_t first = ByteAt(character, 0);
    return first < 0x20 || first == 0x7F || (first == 0xC2 && ByteAt(character, 1) < 0xA0);
}

// The character that the text begins with, or a single byte that is none.
std::string_view FirstPiece(std::string_view text) {
    const std::size_t length = Utf8CharacterLength(text);
    return text.substr(0, length == 0 ? 1 : length);
}

void AppendHex(std::string& to, std::string_view bytes) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        to += "\\x";
        to += kDigits[ByteAt(bytes, i) >> 4];
        to += kDigits[ByteAt(bytes, i) & 15];
    }
}

}  // namespace

std::size_t Utf8CharacterLength(std::string_view text) {
    if (text.empty()) return 0;
    for (const LeadByteRow& row : kLeadBytes) {
        if ((ByteAt(text, 0) & row.mask) != row.value) continue;
        if (text.size() < row.length) return 0;
        std::uint32_t number = ByteAt(text, 0) & static_cast<std::uint8_t>(~row.mask);
        for (std::size_t i = 1; i < row.length; ++i) {
            if ((ByteAt(text, i) & 0xC0) != 0x80) return 0;
            number = number << 6 | (ByteAt(text, i) & 0x3F);
        }
        return number >= row.smallest && IsCharacterNumber(number) ? row.length : 0;
    }
    return 0;
}

bool IsUtf8(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = Utf8CharacterLength(text);
        if (length == 0) return false;
        text.remove_prefix(length);
    }
    return true;
}

std::string PrintableText(std::string_view text) {
    std::string printable;
    while (!text.empty()) {
        const std::string_view piece = FirstPiece(text);
        if (Utf8CharacterLength(piece) == 0 || IsControl(piece)) {
            AppendHex(printable, piece);
        } else {
            printable += piece;
        }
        text.remove_prefix(piece.size());
    }
    return printable;
}

std::string QuotedText(std::string_view text) {
    std::size_t shown = 0;
    while (shown < text.size()) {
        const std::size_t next = shown + FirstPiece(text.substr(shown)).size();
        if (next > kMaxQuotedLength) break;
        shown = next;
    }
    return "'" + PrintableText(text.substr(0, shown)) + (shown < text.size() ? "'..." : "'");
}

}  // namespace calvoro
