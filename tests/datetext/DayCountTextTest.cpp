#include "datetext/DayCountText.h"

#include <string>

#include "tests/datetext/TextRows.h"

namespace calvoro {
namespace {

struct DigitsRow {
    std::string name;
    std::string text;
    bool plain;
    bool withSign;
    bool withCommas;
    bool withBoth;
};

void PrintTo(const DigitsRow& row, std::ostream* out) {
    *out << '"' << row.text << '"';
}

class IsDigitsOf : public ::testing::TestWithParam<DigitsRow> {};

TEST_P(IsDigitsOf, ATextUnderEveryAllowance) {
    const DigitsRow& row = GetParam();
    EXPECT_EQ(IsDigits(row.text, false, false), row.plain);
    EXPECT_EQ(IsDigits(row.text, true, false), row.withSign);
    EXPECT_EQ(IsDigits(row.text, false, true), row.withCommas);
    EXPECT_EQ(IsDigits(row.text, true, true), row.withBoth);
}

INSTANTIATE_TEST_SUITE_P(Rows, IsDigitsOf,
                         ::testing::Values(DigitsRow{"Digits", "0123456789", true, true, true, true},
                                           DigitsRow{"BlanksAround", "  42 ", true, true, true, true},
                                           DigitsRow{"Minus", "-42", false, true, false, true},
                                           DigitsRow{"Plus", "+42", false, true, false, true},
                                           DigitsRow{"BlanksAndMinus", "  -42 ", false, true, false, true},
                                           DigitsRow{"Commas", "1,000", false, false, true, true},
                                           DigitsRow{"CommasAnywhere", ",1,,0,", false, false, true, true},
                                           DigitsRow{"MinusAndCommas", "-1,000", false, false, false, true},
                                           DigitsRow{"Empty", "", false, false, false, false},
                                           DigitsRow{"OnlyBlanks", "   ", false, false, false, false},
                                           DigitsRow{"OnlyMinus", "-", false, false, false, false},
                                           DigitsRow{"OnlyComma", ",", false, false, false, false},
                                           DigitsRow{"TwoSigns", "--42", false, false, false, false},
                                           DigitsRow{"SignBehind", "42-", false, false, false, false},
                                           DigitsRow{"SignBehindComma", ",-42", false, false, false, false},
                                           DigitsRow{"BlankInside", "4 2", false, false, false, false},
                                           DigitsRow{"BlankBehindSign", "- 42", false, false, false, false},
                                           DigitsRow{"Dot", "1.000", false, false, false, false},
                                           DigitsRow{"Tab", "\t42", false, false, false, false},
                                           DigitsRow{"Letter", "4x2", false, false, false, false},
                                           DigitsRow{"DigitsOfAnotherScript", "\u0664\u0662", false, false,
                                                     false, false}),
                         RowName<DigitsRow>);

struct CountRow {
    std::string name;
    std::string text;
    ParseStatus status;
    std::int32_t number = 0;
};

void PrintTo(const CountRow& row, std::ostream* out) {
    *out << '"' << row.text.substr(0, 80) << '"';
}

class ParseDayCountOf : public ::testing::TestWithParam<CountRow> {};

TEST_P(ParseDayCountOf, AText) {
    const CountRow& row = GetParam();
    constexpr std::int32_t kUntouched = 4711;
    std::int32_t number = kUntouched;
    EXPECT_EQ(ParseDayCount(row.text, number), row.status);
    EXPECT_EQ(number, row.status == ParseStatus::Valid ? row.number : kUntouched);
}

constexpr ParseStatus kValid = ParseStatus::Valid;
constexpr ParseStatus kNotValid = ParseStatus::NotValid;
constexpr ParseStatus kOutOfRange = ParseStatus::OutOfRange;

INSTANTIATE_TEST_SUITE_P(
    Rows, ParseDayCountOf,
    ::testing::Values(CountRow{"Plain", "10", kValid, 10}, CountRow{"Zero", "0", kValid, 0},
                      CountRow{"MinusZero", "-0", kValid, 0}, CountRow{"PlusGrouped", "+1,000", kValid, 1000},
                      CountRow{"MinusGrouped", "-1,000", kValid, -1000},
                      CountRow{"BlanksAround", "  -1,000  ", kValid, -1000},
                      CountRow{"Largest", "2,099,999,999", kValid, 2'099'999'999},
                      CountRow{"Smallest", "-2099999999", kValid, -2'099'999'999},
                      CountRow{"TenDigits", "1999999999", kValid, 1'999'999'999},
                      CountRow{"TooLarge", "2,100,000,000", kOutOfRange},
                      CountRow{"TooSmall", "-2,100,000,000", kOutOfRange},
                      CountRow{"TenNines", "9999999999", kOutOfRange},
                      CountRow{"ElevenDigits", "21,000,000,000", kOutOfRange},
                      CountRow{"MillionDigits", std::string(1'000'000, '9'), kOutOfRange},
                      CountRow{"Empty", "", kNotValid}, CountRow{"Dots", "1.000", kNotValid},
                      CountRow{"TwoSigns", "+-5", kNotValid}, CountRow{"SignInside", "1-5", kNotValid},
                      CountRow{"Fraction", "1.5", kNotValid}, CountRow{"Exponent", "1e5", kNotValid},
                      CountRow{"Words", "ten", kNotValid}, CountRow{"BlankInside", "1 000", kNotValid}),
    RowName<CountRow>);

TEST(ParseDayCount, DeliberatelyEndsBelow2100000000WhichADayNumberMayReach) {
    std::int32_t number = 0;
    EXPECT_EQ(ParseDayCount("2099999999", number), kValid);
    EXPECT_EQ(ParseDayCount("2100000000", number), kOutOfRange);
    EXPECT_EQ(number, 2'099'999'999);
}

TEST(ParseDayCount, DeliberatelyTakesCommasAnywhere) {
    std::int32_t number = 0;
    for (const std::string_view text : {"1,000", "10,00", "1,0,0,0", ",1000", "1000,", "1,,000"}) {
        number = 0;
        EXPECT_EQ(ParseDayCount(text, number), kValid) << text;
        EXPECT_EQ(number, 1000) << text;
    }
    EXPECT_EQ(ParseDayCount("-,5", number), kValid);
    EXPECT_EQ(number, -5);
}

TEST(ParseDayCount, DeliberatelyCountsLeadingZerosAsDigits) {
    std::int32_t number = 0;
    EXPECT_EQ(ParseDayCount("0000000005", number), kValid);
    EXPECT_EQ(number, 5);
    EXPECT_EQ(ParseDayCount("00000000005", number), kOutOfRange);
}

TEST(ParseDayCount, RefusesHostileTextsOfAnyLength) {
    for (const std::string& text : HostileTexts()) {
        std::int32_t number = 0;
        EXPECT_EQ(ParseDayCount(text, number), kNotValid);
        EXPECT_EQ(number, 0);
    }
}

}  // namespace
}  // namespace calvoro
