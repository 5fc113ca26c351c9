#include "datetext/Thousands.h"

#include <limits>

#include "datetext/TextOptions.h"
#include "tests/datetext/TextRows.h"

namespace calvoro {
namespace {

struct NumberRow {
    std::string name;
    std::int32_t number;
    std::string grouped;
};

void PrintTo(const NumberRow& row, std::ostream* out) {
    *out << row.number;
}

class ThousandsTextOf : public ::testing::TestWithParam<NumberRow> {};

TEST_P(ThousandsTextOf, ANumber) {
    const NumberRow& row = GetParam();
    EXPECT_EQ(ThousandsText(row.number, ','), row.grouped);
    EXPECT_EQ(ThousandsText(std::to_string(row.number), ','), row.grouped);
    EXPECT_EQ(ThousandsText(row.number, kNoSeparator), std::to_string(row.number));
    EXPECT_EQ(ThousandsText(std::to_string(row.number), kNoSeparator), std::to_string(row.number));

    char buffer[kThousandsBufferSize];
    separate_thousands(std::to_string(row.number).c_str(), ',', buffer);
    EXPECT_STREQ(buffer, row.grouped.c_str());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ThousandsTextOf,
    ::testing::Values(NumberRow{"Zero", 0, "0"}, NumberRow{"ThreeDigits", 999, "999"},
                      NumberRow{"ThreeNegativeDigits", -100, "-100"}, NumberRow{"FourDigits", 1000, "1,000"},
                      NumberRow{"FourNegativeDigits", -1000, "-1,000"},
                      NumberRow{"FiveDigits", 12345, "12,345"},
                      NumberRow{"SixNegativeDigits", -123456, "-123,456"},
                      NumberRow{"SevenDigits", 2460370, "2,460,370"},
                      NumberRow{"SmallestDayNumber", -2'100'000'000, "-2,100,000,000"},
                      NumberRow{"Largest", std::numeric_limits<std::int32_t>::max(), "2,147,483,647"},
                      NumberRow{"Smallest", std::numeric_limits<std::int32_t>::min(), "-2,147,483,648"}),
    RowName<NumberRow>);

TEST(ThousandsText, TakesAnySeparator) {
    EXPECT_EQ(ThousandsText(-2460370, '.'), "-2.460.370");
    EXPECT_EQ(ThousandsText("2460370", ' '), "2 460 370");
    EXPECT_EQ(ThousandsText("", ','), "");
    EXPECT_EQ(ThousandsText("-", ','), "-");
}

TEST(SeparateThousands, CutsOffWhatDoesNotFitItsBuffer) {
    char buffer[kThousandsBufferSize];
    separate_thousands("123456789012345", ',', buffer);
    EXPECT_STREQ(buffer, "123,456,789,012,345") << "nineteen characters and the NUL fit";
    separate_thousands("123456789012345678", ',', buffer);
    EXPECT_STREQ(buffer, "123,456,789,012,345") << "the separator is the first that does not fit";
    separate_thousands("1234567890123456", ',', buffer);
    EXPECT_STREQ(buffer, "1,234,567,890,123,4");
    separate_thousands("-1234567890123456", ',', buffer);
    EXPECT_STREQ(buffer, "-1,234,567,890,123,");
    const std::string endless(1'000'000, '9');
    separate_thousands(endless.c_str(), ',', buffer);
    EXPECT_STREQ(buffer, "9,999,999,999,999,9");
}

TEST(SeparateThousands, EndsAShortTextRightAway) {
    char buffer[kThousandsBufferSize];
    separate_thousands("", ',', buffer);
    EXPECT_STREQ(buffer, "");
    separate_thousands("-7", '.', buffer);
    EXPECT_STREQ(buffer, "-7");
}

struct GroupingRow {
    std::string name;
    std::string text;
    char separator;
    bool wellGrouped;
    std::string without;
};

void PrintTo(const GroupingRow& row, std::ostream* out) {
    *out << '"' << row.text << '"';
}

class DropSeparatorsOf : public ::testing::TestWithParam<GroupingRow> {};

TEST_P(DropSeparatorsOf, AWellGroupedTextAlone) {
    const GroupingRow& row = GetParam();
    std::string text = row.text;
    EXPECT_EQ(DropWellGroupedSeparators(text, row.separator), row.wellGrouped);
    EXPECT_EQ(text, row.wellGrouped ? row.without : row.text);
}

INSTANTIATE_TEST_SUITE_P(Rows, DropSeparatorsOf,
                         ::testing::Values(GroupingRow{"OneGroup", "1,234", ',', true, "1234"},
                                           GroupingRow{"ThreeGroups", "1.234.567.890", '.', true,
                                                       "1234567890"},
                                           GroupingRow{"FullFirstGroup", "123,456", ',', true, "123456"},
                                           GroupingRow{"Minus", "-12.345", '.', true, "-12345"},
                                           GroupingRow{"Plus", "+12.345", '.', true, "+12345"},
                                           GroupingRow{"ZerosInFront", "001,234", ',', true, "001234"},
                                           GroupingRow{"Empty", "", ',', false, ""},
                                           GroupingRow{"NoSeparator", "1234", ',', false, ""},
                                           GroupingRow{"OtherSeparator", "1,234", '.', false, ""},
                                           GroupingRow{"MixedSeparators", "1.234,567", '.', false, ""},
                                           GroupingRow{"ShortGroup", "12.34", '.', false, ""},
                                           GroupingRow{"LongGroup", "1.2345", '.', false, ""},
                                           GroupingRow{"ShortGroupInside", "1.23.456", '.', false, ""},
                                           GroupingRow{"LongFirstGroup", "1234.567", '.', false, ""},
                                           GroupingRow{"EmptyFirstGroup", ".567", '.', false, ""},
                                           GroupingRow{"SignAlone", "-.567", '.', false, ""},
                                           GroupingRow{"SeparatorLast", "1.234.", '.', false, ""},
                                           GroupingRow{"TwoSeparators", "1..234", '.', false, ""},
                                           GroupingRow{"TwoSigns", "--1.234", '.', false, ""},
                                           GroupingRow{"Letter", "1.23x", '.', false, ""},
                                           GroupingRow{"Blank", " 1.234", '.', false, ""},
                                           GroupingRow{"NoneIsNoSeparator",
                                                       std::string("1\0"
                                                                   "234",
                                                                   5),
                                                       kNoSeparator, false, ""}),
                         RowName<GroupingRow>);

TEST(DropWellGroupedSeparators, TakesTextsOfAnyLength) {
    std::string text = "1";
    for (int group = 0; group < 250'000; ++group) text += ".000";
    EXPECT_TRUE(DropWellGroupedSeparators(text, '.'));
    EXPECT_EQ(text, "1" + std::string(750'000, '0'));
    for (const std::string& hostile : HostileTexts()) {
        for (const char separator : {',', '.'}) {
            text = hostile;
            EXPECT_FALSE(DropWellGroupedSeparators(text, separator));
            EXPECT_EQ(text, hostile);
        }
    }
}

}  // namespace
}  // namespace calvoro
