#include "datetext/PrintableText.h"

#include <algorithm>
#include <array>

#include "datetext/Utf8.h"

namespace calvoro {
namespace {

/// Characters from first to last.
struct Range {
    std::uint32_t first;
    std::uint32_t last;
};

// What the Unicode character database gives the categories Cc, Cf, Co, Zl, Zp and Zs (but for the blank) or
// the property Default_Ignorable_Code_Point, with what lies unassigned between; and the blank pattern of
// Braille.
constexpr std::array<Range, 43> kUnseen = {{
    {0x0, 0x1F},        {0x7F, 0xA0},       {0xAD, 0xAD},        {0x34F, 0x34F},     {0x600, 0x605},
    {0x61C, 0x61C},     {0x6DD, 0x6DD},     {0x70F, 0x70F},      {0x890, 0x891},     {0x8E2, 0x8E2},
    {0x115F, 0x1160},   {0x1680, 0x1680},   {0x17B4, 0x17B5},    {0x180B, 0x180F},   {0x2000, 0x200F},
    {0x2028, 0x202F},   {0x205F, 0x206F},   {0x2800, 0x2800},    {0x3000, 0x3000},   {0x3164, 0x3164},
    {0xE000, 0xF8FF},   {0xFDD0, 0xFDEF},   {0xFE00, 0xFE0F},    {0xFEFF, 0xFEFF},   {0xFFA0, 0xFFA0},
    {0xFFF0, 0xFFFB},   {0xFFFE, 0xFFFF},   {0x110BD, 0x110BD},  {0x110CD, 0x110CD}, {0x13430, 0x1343F},
    {0x1BCA0, 0x1BCA3}, {0x1D173, 0x1D17A}, {0x1FFFE, 0x1FFFF},  {0x2FFFE, 0x2FFFF}, {0x3FFFE, 0x3FFFF},
    {0x4FFFE, 0x4FFFF}, {0x5FFFE, 0x5FFFF}, {0x6FFFE, 0x6FFFF},  {0x7FFFE, 0x7FFFF}, {0x8FFFE, 0x8FFFF},
    {0x9FFFE, 0x9FFFF}, {0xAFFFE, 0xAFFFF}, {0xBFFFE, 0x10FFFF},
}};
static_assert(std::is_sorted(kUnseen.begin(), kUnseen.end(),
                             [](const Range& a, const Range& b) { return a.last < b.first; }));

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

bool CanBeSeen(std::uint32_t character) {
    const auto* const range =
        std::find_if(kUnseen.begin(), kUnseen.end(), [=](const Range& row) { return character <= row.last; });
    return range != kUnseen.end() && character < range->first;  // behind the last row there are no characters
}

std::string PrintableText(std::string_view text) {
    std::string printable;
    while (!text.empty()) {
        const std::string_view piece = FirstPiece(text);
        if (Utf8CharacterLength(piece) == 0 || !CanBeSeen(Utf8CharacterNumber(piece))) {
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
