#include "datetext/PrintableText.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "datetext/Utf8.h"

namespace calvoro {
namespace {

using namespace std::string_view_literals;

struct QuoteRow {
    std::string name;
    std::string_view text;
    std::string_view quoted;
};
void PrintTo(const QuoteRow& row, std::ostream* out) {
    *out << row.name;
}

class QuotedTextOf : public testing::TestWithParam<QuoteRow> {};

TEST_P(QuotedTextOf, IsPrintable) {
    EXPECT_EQ(QuotedText(GetParam().text), GetParam().quoted);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, QuotedTextOf,
    testing::Values(QuoteRow{"Empty", "", "''"}, QuoteRow{"Plain", "2024-02-30", "'2024-02-30'"},
                    QuoteRow{"QuotesStay", "'\"\\", "''\"\\'"},
                    QuoteRow{"Controls", "\t\r\n\x1B\x7F\0"sv, "'\\x09\\x0D\\x0A\\x1B\\x7F\\x00'"},
                    QuoteRow{"UpperControls", "\xC2\x80\xC2\x9B\xC2\x9F\xC2\xA1",
                             "'\\xC2\\x80\\xC2\\x9B\\xC2\\x9F\xC2\xA1'"},
                    QuoteRow{"NoBreakSpace", "\xC2\xA0", "'\\xC2\\xA0'"},
                    QuoteRow{"RightToLeftOverride", "a\xE2\x80\xAEz", "'a\\xE2\\x80\\xAEz'"},
                    QuoteRow{"ByteOrderMark", "\xEF\xBB\xBFz", "'\\xEF\\xBB\\xBFz'"},
                    QuoteRow{"LineSeparator", "\xE2\x80\xA8", "'\\xE2\\x80\\xA8'"},
                    QuoteRow{"TagLetter", "\xF3\xA0\x81\x81", "'\\xF3\\xA0\\x81\\x81'"},
                    QuoteRow{"TwoToFourBytes", "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80",
                             "'\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80'"},
                    QuoteRow{"LoneContinuation", "\x80z", "'\\x80z'"},
                    QuoteRow{"CutCharacter", "\xE2\x82", "'\\xE2\\x82'"},
                    QuoteRow{"BrokenCharacter", "\xE2\x82z", "'\\xE2\\x82z'"},
                    QuoteRow{"NeverUtf8", "\xFE\xFF", "'\\xFE\\xFF'"}),
    [](const auto& row) { return row.param.name; });

TEST(QuotedText, CutsAtTheLimitAndNotInsideACharacter) {
    const std::string full(kMaxQuotedLength, 'a');
    EXPECT_EQ(QuotedText(full), "'" + full + "'");
    EXPECT_EQ(QuotedText(full + "b"), "'" + full + "'...");
    const std::string oneLess(kMaxQuotedLength - 1, 'a');
    EXPECT_EQ(QuotedText(oneLess + "\xC3\xA4"), "'" + oneLess + "'...");
    EXPECT_EQ(QuotedText(oneLess + "\xC3"), "'" + oneLess + "\\xC3'");
}

TEST(CanBeSeen, HoldsForLettersAndSignsOfAllScripts) {
    for (const std::uint32_t character :
         {0x20u, 0x7Eu, 0xA1u, 0xE4u, 0x416u, 0x5D0u, 0x661u, 0x966u, 0x2010u, 0x2027u, 0x2030u, 0x20ACu,
          0x2212u, 0x6708u, 0xFF0Du, 0xFFFDu, 0x1F600u, 0x20000u}) {
        EXPECT_TRUE(CanBeSeen(character)) << std::hex << character;
    }
}

TEST(CanBeSeen, DoesNotHoldForWhatHidesOrTurnsText) {
    for (const std::uint32_t character :
         {0x0u,    0x1Fu,   0x7Fu,   0x9Fu,    0xA0u,    0xADu,    0x34Fu,   0x61Cu,   0x180Eu, 0x2000u,
          0x200Bu, 0x200Cu, 0x200Eu, 0x2028u,  0x2029u,  0x202Au,  0x202Eu,  0x202Fu,  0x2060u, 0x2066u,
          0x2069u, 0x206Fu, 0x2800u, 0x3000u,  0x3164u,  0xE000u,  0xF8FFu,  0xFDD0u,  0xFE0Fu, 0xFEFFu,
          0xFFF9u, 0xFFFEu, 0xFFFFu, 0x1FFFEu, 0xE0001u, 0xE007Fu, 0xF0000u, 0x10FFFFu}) {
        EXPECT_FALSE(CanBeSeen(character)) << std::hex << character;
    }
}

TEST(CanBeSeen, DoesNotHoldForTheLastTwoNumbersOfEachPlane) {
    for (std::uint32_t plane = 0; plane <= 0x10; ++plane) {
        const std::uint32_t end = (plane + 1) << 16;
        EXPECT_FALSE(CanBeSeen(end - 2)) << std::hex << end;
        EXPECT_FALSE(CanBeSeen(end - 1)) << std::hex << end;
        // Behind the eleventh there are planes of what is ignored, and of nothing.
        EXPECT_EQ(CanBeSeen(end - 3), plane <= 0xB) << std::hex << end;
        if (plane < 0xB) {
            EXPECT_TRUE(CanBeSeen(end)) << std::hex << end;
        }
    }
}

TEST(CanBeSeen, ChangesWhereTheBlocksOfTheUnseenBeginAndEnd) {
    struct Block {
        std::uint32_t first;
        std::uint32_t last;
    };
    for (const Block block : {Block{0x7F, 0xA0},  {0xAD, 0xAD},       {0x34F, 0x34F},     {0x600, 0x605},
                              {0x61C, 0x61C},     {0x6DD, 0x6DD},     {0x70F, 0x70F},     {0x890, 0x891},
                              {0x8E2, 0x8E2},     {0x115F, 0x1160},   {0x1680, 0x1680},   {0x17B4, 0x17B5},
                              {0x180B, 0x180F},   {0x2000, 0x200F},   {0x2028, 0x202F},   {0x205F, 0x206F},
                              {0x2800, 0x2800},   {0x3000, 0x3000},   {0x3164, 0x3164},   {0xE000, 0xF8FF},
                              {0xFDD0, 0xFDEF},   {0xFE00, 0xFE0F},   {0xFEFF, 0xFEFF},   {0xFFA0, 0xFFA0},
                              {0xFFF0, 0xFFFB},   {0x110BD, 0x110BD}, {0x110CD, 0x110CD}, {0x13430, 0x1343F},
                              {0x1BCA0, 0x1BCA3}, {0x1D173, 0x1D17A}}) {
        EXPECT_TRUE(CanBeSeen(block.first - 1)) << std::hex << block.first;
        EXPECT_FALSE(CanBeSeen(block.first)) << std::hex << block.first;
        EXPECT_FALSE(CanBeSeen(block.last)) << std::hex << block.last;
        EXPECT_TRUE(CanBeSeen(block.last + 1)) << std::hex << block.last;
    }
}

TEST(CanBeSeen, DoesNotHoldForNumbersOfNoCharacter) {
    EXPECT_FALSE(CanBeSeen(0x110000));
    EXPECT_FALSE(CanBeSeen(0xFFFFFFFF));
}

TEST(PrintableText, IsNeverCut) {
    const std::string text(10000, 'a');
    EXPECT_EQ(PrintableText(text + "\n"), text + "\\x0A");
}

struct Utf8Row {
    std::string name;
    std::string_view text;
    std::size_t length;
};
void PrintTo(const Utf8Row& row, std::ostream* out) {
    *out << row.name;
}

class Utf8CharacterLengthOf : public testing::TestWithParam<Utf8Row> {};

TEST_P(Utf8CharacterLengthOf, IsItsCountOfBytes) {
    EXPECT_EQ(Utf8CharacterLength(GetParam().text), GetParam().length);
    EXPECT_EQ(IsUtf8(GetParam().text), GetParam().length == GetParam().text.size());
}

TEST_P(Utf8CharacterLengthOf, IsFoundWhateverStandsAroundIt) {
    const bool isUtf8 = GetParam().length == GetParam().text.size();
    for (std::size_t before = 0; before <= 17; ++before) {
        for (std::size_t behind = 0; behind <= 9; ++behind) {
            const std::string text = std::string(before, 'a').append(GetParam().text).append(behind, 'z');
            EXPECT_EQ(IsUtf8(text), isUtf8) << before << " " << behind;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Utf8CharacterLengthOf,
    testing::Values(Utf8Row{"Nothing", "", 0}, Utf8Row{"First", "\0"sv, 1}, Utf8Row{"LastOfOne", "\x7F", 1},
                    Utf8Row{"FirstOfTwo", "\xC2\x80", 2}, Utf8Row{"LastOfTwo", "\xDF\xBF", 2},
                    Utf8Row{"FirstOfThree", "\xE0\xA0\x80", 3}, Utf8Row{"BelowSurrogates", "\xED\x9F\xBF", 3},
                    Utf8Row{"AboveSurrogates", "\xEE\x80\x80", 3}, Utf8Row{"LastOfThree", "\xEF\xBF\xBF", 3},
                    Utf8Row{"FirstOfFour", "\xF0\x90\x80\x80", 4}, Utf8Row{"Last", "\xF4\x8F\xBF\xBF", 4},
                    Utf8Row{"BeyondLast", "\xF4\x90\x80\x80", 0}, Utf8Row{"LongFormOfOne", "\xC1\xBF", 0},
                    Utf8Row{"LongFormOfTwo", "\xE0\x9F\xBF", 0},
                    Utf8Row{"LongFormOfThree", "\xF0\x8F\xBF\xBF", 0},
                    Utf8Row{"FirstSurrogate", "\xED\xA0\x80", 0}, Utf8Row{"LastSurrogate", "\xED\xBF\xBF", 0},
                    Utf8Row{"FiveBytes", "\xF8\x88\x80\x80\x80", 0}, Utf8Row{"Continuation", "\xBF", 0},
                    Utf8Row{"Short", "\xF0\x9F\x98", 0}),
    [](const auto& row) { return row.param.name; });

TEST(CountCharacters, CountsAByteOfNoCharacterAsOne) {
    EXPECT_EQ(CountCharacters(""), 0u);
    EXPECT_EQ(CountCharacters("day"), 3u);
    EXPECT_EQ(CountCharacters("M\xC3\xA4rz"), 4u);
    EXPECT_EQ(CountCharacters("\xFF"), 1u);
    EXPECT_EQ(CountCharacters("a\x80\xF0\x9F\x98z\xE2\x82\xAC"), 7u)
        << "four bytes of none, three characters";
}

}  // namespace
}  // namespace calvoro
