#include "datetext/DayNumberText.h"

#include <string>

#include "tests/datetext/TextRows.h"

namespace calvoro {
namespace {

constexpr ParseStatus kValid = ParseStatus::Valid;
constexpr ParseStatus kNotValid = ParseStatus::NotValid;
constexpr ParseStatus kOutOfRange = ParseStatus::OutOfRange;

struct NumberRow {
    std::string name;
    std::string text;
    ParseStatus status;
    std::int32_t jdn = 0;
};

void PrintTo(const NumberRow& row, std::ostream* out) {
    *out << '"' << row.text.substr(0, 80) << '"';
}

class ParseJdnTextOf : public ::testing::TestWithParam<NumberRow> {};

TEST_P(ParseJdnTextOf, AText) {
    const NumberRow& row = GetParam();
    ParseStatus status = kNotValid;
    EXPECT_EQ(ParseJdnText(row.text, status), row.jdn);
    EXPECT_EQ(status, row.status);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ParseJdnTextOf,
    ::testing::Values(NumberRow{"Plain", "2460370", kValid, 2460370},
                      NumberRow{"Negative", "-2460370", kValid, -2460370}, NumberRow{"Zero", "0", kValid, 0},
                      NumberRow{"MinusZero", "-0", kValid, 0},
                      NumberRow{"Largest", "2100000000", kValid, 2'100'000'000},
                      NumberRow{"Smallest", "-2100000000", kValid, -2'100'000'000},
                      NumberRow{"BeyondLargest", "2100000001", kOutOfRange},
                      NumberRow{"BeyondSmallest", "-2100000001", kOutOfRange},
                      NumberRow{"Largest32Bits", "2147483647", kOutOfRange},
                      NumberRow{"Beyond32Bits", "2147483648", kOutOfRange},
                      NumberRow{"ElevenCharacters", "10000000000", kOutOfRange},
                      NumberRow{"MillionDigits", std::string(1'000'000, '9'), kOutOfRange},
                      NumberRow{"Empty", "", kNotValid}, NumberRow{"OnlyMinus", "-", kNotValid},
                      NumberRow{"TwoMinuses", "--5", kNotValid}, NumberRow{"MinusBehind", "5-", kNotValid},
                      NumberRow{"MinusInside", "-24-60", kNotValid}, NumberRow{"Plus", "+5", kValid, 5},
                      NumberRow{"MinusPlus", "-+5", kValid, -5}, NumberRow{"PlusAlone", "+", kValid, 0},
                      NumberRow{"TwoPluses", "++5", kValid, 0},
                      NumberRow{"PlusCounts", "+2100000000", kOutOfRange}),
    RowName<NumberRow>);

TEST(ParseJdnText, CountsCharactersNotBytes) {
    ParseStatus status = kNotValid;
    EXPECT_EQ(ParseJdnText("12\u20ac\u20ac\u20ac\u20ac\u20ac\u20ac\u20ac", status), 12) << "nine characters";
    EXPECT_EQ(status, kValid);
    EXPECT_EQ(ParseJdnText("12\u20ac\u20ac\u20ac\u20ac\u20ac\u20ac\u20ac\u20ac", status), 12) << "ten";
    EXPECT_EQ(status, kValid);
    EXPECT_EQ(ParseJdnText("21\u20ac\u20ac\u20ac\u20ac\u20ac\u20ac\u20ac\u20ac", status), 0)
        << "ten that compare higher";
    EXPECT_EQ(status, kOutOfRange);
    EXPECT_EQ(ParseJdnText("1\U0001f4c5\U0001f4c5\U0001f4c5", status), 1);
    EXPECT_EQ(status, kValid);
    EXPECT_EQ(ParseJdnText("12\u20ac\u20ac\u20ac\u20ac\u20ac\u20ac\u20ac\u20ac\u20ac", status), 0)
        << "eleven";
    EXPECT_EQ(status, kOutOfRange);
}

TEST(ParseJdnText, DeliberatelyComparesTenCharactersAsText) {
    ParseStatus status = kNotValid;
    EXPECT_EQ(ParseJdnText("0000000012", status), 12);
    EXPECT_EQ(status, kValid);
    EXPECT_EQ(ParseJdnText("00000000012", status), 0) << "eleven characters, whatever their value";
    EXPECT_EQ(status, kOutOfRange);
    EXPECT_EQ(ParseJdnText("21,000,000", status), 21) << "a comma compares lower than a digit";
    EXPECT_EQ(status, kValid);
    EXPECT_EQ(ParseJdnText("9,,,,,,,,,", status), 0) << "9 compares higher than 2";
    EXPECT_EQ(status, kOutOfRange);
}

TEST(ParseJdnText, DeliberatelyReadsUpToTheFirstForeignCharacter) {
    ParseStatus status = kNotValid;
    EXPECT_EQ(ParseJdnText("2.460.370", status), 2);
    EXPECT_EQ(status, kValid);
    EXPECT_EQ(ParseJdnText("-12,34", status), -12);
    EXPECT_EQ(status, kValid);
    EXPECT_EQ(ParseJdnText("abc", status), 0);
    EXPECT_EQ(status, kValid);
}

struct SeparatorRow {
    std::string name;
    std::string text;
    char separator;
    ParseStatus status;
    std::int32_t jdn = 0;
};

void PrintTo(const SeparatorRow& row, std::ostream* out) {
    *out << '"' << row.text << '"';
}

class ParseDayNumberDateUnder : public ::testing::TestWithParam<SeparatorRow> {};

TEST_P(ParseDayNumberDateUnder, ASeparator) {
    const SeparatorRow& row = GetParam();
    DateRecord record;
    EXPECT_EQ(ParseDayNumberDate(row.text, row.separator, record), row.status);
    DateRecord expected;
    expected.jdn = row.jdn;
    EXPECT_EQ(record, expected) << record.jdn;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ParseDayNumberDateUnder,
    ::testing::Values(SeparatorRow{"HyphenPlain", "2460370", '-', kValid, 2460370},
                      SeparatorRow{"HyphenLeading", "-2460370", '-', kValid, -2460370},
                      SeparatorRow{"HyphenTwice", "--2460370", '-', kNotValid},
                      SeparatorRow{"HyphenTwiceApart", "-246-0370", '-', kNotValid},
                      SeparatorRow{"HyphenInside", "246-0370", '-', kNotValid},
                      SeparatorRow{"HyphenLast", "2460370-", '-', kNotValid},
                      SeparatorRow{"SlashPlain", "2460370", '/', kValid, 2460370},
                      SeparatorRow{"SlashNegative", "-2460370", '/', kValid, -2460370},
                      SeparatorRow{"SlashInside", "246/0370", '/', kNotValid},
                      SeparatorRow{"SlashFirst", "/1", '/', kNotValid},
                      SeparatorRow{"DotNegative", "-2460370", '.', kValid, -2460370},
                      SeparatorRow{"OneDotGroups", "2.460", '.', kValid, 2},
                      SeparatorRow{"OneDotGroupsNegative", "-2.460", '.', kValid, -2},
                      SeparatorRow{"OneDotTooFarRight", "2460.37", '.', kNotValid},
                      SeparatorRow{"OneDotTooFarLeft", "2.4603", '.', kNotValid},
                      SeparatorRow{"OneDotTooShort", ".460", '.', kNotValid},
                      SeparatorRow{"TwoDotsGroup", "2.460.370", '.', kValid, 2},
                      SeparatorRow{"TwoDotsMisplaced", "24.60.370", '.', kNotValid},
                      SeparatorRow{"TwoDotsTooShort", ".460.370", '.', kNotValid},
                      SeparatorRow{"ThreeDotsTooLongForANumber", "2.100.000.000", '.', kOutOfRange},
                      SeparatorRow{"ThreeDotsMisplaced", "2.10.0000.000", '.', kNotValid},
                      SeparatorRow{"ThreeDotsTooShort", ".100.000.000", '.', kNotValid},
                      SeparatorRow{"FourDots", "1.000.000.000.000", '.', kNotValid},
                      SeparatorRow{"DotsUnderHyphenAreNotLookedAt", "24.60.370", '-', kValid, 24},
                      SeparatorRow{"BeyondLargest", "2100000001", '/', kOutOfRange},
                      SeparatorRow{"DotInFrontOfThreeCharacters", "2.\u20ac60", '.', kValid, 2},
                      SeparatorRow{"DotInFrontOfFourCharacters", "2.4\u20ac60", '.', kNotValid},
                      SeparatorRow{"DotAfterOneCharacter", "\u20ac.460", '.', kValid, 0},
                      SeparatorRow{"Empty", "", '.', kNotValid}),
    RowName<SeparatorRow>);

TEST(ParseDayNumberDate, LeavesOtherFieldsOfTheRecordAlone) {
    DateRecord record{2024, 3, 15, CalendarCode::G, 7, 0};
    EXPECT_EQ(ParseDayNumberDate("2460370", '-', record), kValid);
    EXPECT_EQ(record, (DateRecord{2024, 3, 15, CalendarCode::G, 2460370, 0}));
    EXPECT_EQ(ParseDayNumberDate("2100000001", '-', record), kOutOfRange);
    EXPECT_EQ(record.jdn, 2460370);
}

}  // namespace
}  // namespace calvoro
