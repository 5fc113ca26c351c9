#include "cli/scan/DateScanner.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "tests/cli/scan/NaiveScan.h"
#include "tests/cli/scan/ScanInPieces.h"

namespace calvoro {
namespace {

struct ScanRow {
    std::string name;
    CalendarNumber notation;
    std::string text;
    std::string replaced;
};
void PrintTo(const ScanRow& row, std::ostream* out) {
    *out << row.name;
}

class Scanned : public testing::TestWithParam<ScanRow> {};

TEST_P(Scanned, FindsWhatStandsAlone) {
    const ScanRow& row = GetParam();
    const DateScanner scanner(row.notation);
    for (const std::size_t piece : {std::size_t{1}, std::size_t{2}, std::size_t{7}, row.text.size() + 1}) {
        EXPECT_EQ(ScanInPieces(scanner, row.text, piece), row.replaced) << "pieces of " << piece;
    }
    EXPECT_EQ(NaiveScan(row.notation).Replace(row.text), row.replaced);
}

constexpr CalendarNumber CE = CalendarNumber::CE;
constexpr CalendarNumber JC = CalendarNumber::JC;
constexpr CalendarNumber ISO = CalendarNumber::ISO;
constexpr CalendarNumber ORD = CalendarNumber::ORD;

INSTANTIATE_TEST_SUITE_P(
    Rows, Scanned,
    testing::Values(
        ScanRow{"Nothing", CE, "", ""}, ScanRow{"Alone", CE, "2024-03-15", "<2460385>"},
        ScanRow{"OneDigit", CE, "(2024-3-5)", "(<2460375>)"},
        ScanRow{"FullStop", CE, "2024-03-15. 2024-03-15, a", "<2460385>. <2460385>, a"},
        ScanRow{"StopAtTheEnd", CE, "2024-03-15.", "<2460385>."},
        ScanRow{"Fraction", CE, "2024-03-15.5 2024-03-15,5", "2024-03-15.5 2024-03-15,5"},
        ScanRow{"BehindAComma", CE, "a,2024-03-15,b 7,2024-03-15", "a,<2460385>,b 7,2024-03-15"},
        ScanRow{"Letters", CE, "x2024-03-15 2024-03-15T", "x2024-03-15 2024-03-15T"},
        ScanRow{"Underscores", CE, "_2024-03-15 2024-03-15_", "_2024-03-15 2024-03-15_"},
        ScanRow{"Slashes", CE, "1731/32-02-11 2024-03-15/16", "1731/32-02-11 2024-03-15/16"},
        ScanRow{"MoreFields", CE, "2024-03-15-1 1-2024-03-15 2024-03-155",
                "2024-03-15-1 1-2024-03-15 2024-03-155"},
        ScanRow{"LettersBeyondAscii", CE, "é2024-03-15 2024-03-15é", "é2024-03-15 2024-03-15é"},
        ScanRow{"OtherDigits", CE, "２2024-03-15 2024-03-1５", "２2024-03-15 2024-03-1５"},
        ScanRow{"OtherHyphens", CE, "2024‐03‐15 ‐2024-03-15", "2024‐03‐15 ‐2024-03-15"},
        ScanRow{"PunctuationBeyondAscii", CE, "«2024-03-15»–2024-03-15。", "«<2460385>»–<2460385>。"},
        ScanRow{"NoUtf8", CE,
                "\xE9"
                "2024-03-15 2024-03-15\xE2\x80",
                "\xE9"
                "2024-03-15 2024-03-15\xE2\x80"},
        ScanRow{"NegativeYear", JC, "-43-03-15 (\u221243-03-15)", "<1705426> (<1705426>)"},
        ScanRow{"NoSign", JC, "--43-03-15 x-43-03-15 - 43-03-15", "--43-03-15 x-43-03-15 - <1736837>"},
        ScanRow{"Era", JC, "44-03-15 BC. 44-03-15  BCE JC", "<1705426>. <1705426>"},
        ScanRow{"OtherEras", JC,
                "44-03-15 B.C. 44-03-15 v. Chr. 44-03-15\u00A0"
                "BC",
                "44-03-15 B.C. 44-03-15 v. Chr. 44-03-15\u00A0"
                "BC"},
        ScanRow{"OwnTag", CE, "2024-03-15 CE 2024-03-15 CEO", "<2460385> <2460385> CEO"},
        ScanRow{"OtherTag", CE, "2024-03-15 JC", "2024-03-15 JC"},
        ScanRow{"NoSuchDay", CE, "2024-02-30 2023-02-29 2024-13-01", "2024-02-30 2023-02-29 2024-13-01"},
        ScanRow{"JulianLeapDay", JC, "1900-02-29", "<2415092>"},
        ScanRow{"GroupedYear", CE, "12,345-03-15 1,234-03-15", "<6230052> 1,234-03-15"},
        ScanRow{"TooLarge", CE, "9999999999-03-15", "9999999999-03-15"},
        ScanRow{"Week", ISO, "2024-W11-5 2024-W11-8 2024W115 2024-W11",
                "<2460385> 2024-W11-8 2024W115 2024-W11"},
        ScanRow{"NotAWeek", ISO, "2024-03-15 2024-075", "2024-03-15 2024-075"},
        ScanRow{"Ordinal", ORD, "2024-075, 2023-366 -2024-075 2024-0755 224-075",
                "<2460385>, 2023-366 -2024-075 2024-0755 224-075"},
        ScanRow{"NotOrdinal", ORD, "2024-03-15 2024-W11-5 2024-075-1", "2024-03-15 2024-W11-5 2024-075-1"},
        ScanRow{"Nul", CE,
                std::string("\0"
                            "2024-03-15\0",
                            12),
                std::string("\0<2460385>\0", 11)},
        ScanRow{"LineEnds", CE, "2024-03-15\r\n2024-03-15\r2024-03-15", "<2460385>\r\n<2460385>\r<2460385>"}),
    [](const auto& row) { return row.param.name; });

TEST(DateScanner, LeavesYearsOfTooManyDigits) {
    const std::string text = " " + std::string(300, '0') + "2024-03-15 2024-03-15";
    const std::string replaced = " " + std::string(300, '0') + "2024-03-15 <2460385>";
    for (const std::size_t piece : {std::size_t{1}, std::size_t{50}, text.size()})
        EXPECT_EQ(ScanInPieces(DateScanner(CE), text, piece), replaced);
}

TEST(DateScanner, GivesALineOutAtItsEnd) {
    const std::string line = "on 2024-03-15\n";
    std::size_t at = 0;
    const auto date = DateScanner(CE).Next(line, false, at);
    ASSERT_TRUE(date);
    EXPECT_EQ(at, 3u);
    at += date->length;
    EXPECT_FALSE(DateScanner(CE).Next(line, false, at));
    EXPECT_EQ(at, line.size());
}

TEST(DateScanner, ScansOnlyForFormsThatNothingElseHas) {
    for (const CalendarNumber notation : {CE, JC, ISO, ORD}) EXPECT_TRUE(CanBeScannedFor(notation));
    for (const CalendarNumber notation : {CalendarNumber::JDN, CalendarNumber::LPM, CalendarNumber::LPW})
        EXPECT_FALSE(CanBeScannedFor(notation));
}

/// Random bytes, pieces of dates and dates strewn together.
std::string StrewnText(std::mt19937& random) {
    static const std::vector<std::string> kPieces = {
        "2024-03-15", "2024-W11-5", "2024-075", "44-03-15", "12,345-01-01",
        "2024-02-30", "-",          "\u2212",   ".",        ",",
        " ",          "\n",         "BC",       " BC",      " CE",
        " JC",        "7",          "x",        "é",        "\u2013",
        "\u00A0",     "\u3002",     "\xE2",     "\x88",     "/",
        "_",          "+",          "(",        ")",        " BCE JC",
        "2023-",      "W01",        "-1-1",     "B.C",      "\uFEFF",
        "«",          " ISO"};
    std::string text;
    for (std::size_t count = random() % 9; count > 0; --count) {
        if (random() % 8 == 0) {
            text += static_cast<char>(random() % 128);
        } else if (random() % 12 == 0) {
            text += static_cast<char>(128 + random() % 128);
        } else {
            text += kPieces[random() % (random() % 2 == 0 ? 6 : kPieces.size())];
        }
    }
    return text;
}

// Lone bytes beyond ASCII may form characters that the naive way does not know to be punctuation.
bool NaiveKnows(const std::string& text) {
    for (std::size_t at = 0; at + 1 < text.size(); ++at) {
        const std::string_view rest = std::string_view(text).substr(at);
        const std::size_t length = Utf8CharacterLength(rest);
        if (length < 2) continue;
        static const std::string kKnown = "é\u2013\u00A0\u3002\uFEFF\u00AB\u00BB\u2212";
        if (kKnown.find(rest.substr(0, length)) == std::string::npos) return false;
    }
    return true;
}

TEST(DateScanner, FindsWhatTheNaiveWayFinds) {
    std::mt19937 random(20241121);
    int converted = 0;
    int compared = 0;
    for (int round = 0; round < 8000; ++round) {
        const std::string text = StrewnText(random);
        if (!NaiveKnows(text)) continue;
        ++compared;
        const CalendarNumber notation = std::vector{CE, JC, ISO, ORD}[random() % 4];
        const std::string replaced = NaiveScan(notation).Replace(text);
        converted += replaced == text ? 0 : 1;
        ASSERT_EQ(ScanInPieces(DateScanner(notation), text, 1 + random() % 12), replaced) << text;
    }
    EXPECT_GT(compared, 6000);
    EXPECT_GT(converted, 500);
}

}  // namespace
}  // namespace calvoro
