#include "datetext/OrdinalText.h"

#include <string>

#include "tests/datetext/TextRows.h"

namespace calvoro {
namespace {

struct ShapeRow {
    std::string name;
    std::string text;
    TextShape shape;
};

void PrintTo(const ShapeRow& row, std::ostream* out) {
    *out << '"' << row.text << '"';
}

class OrdinalShapeOf : public ::testing::TestWithParam<ShapeRow> {};

TEST_P(OrdinalShapeOf, AText) {
    EXPECT_EQ(OrdinalShape(GetParam().text), GetParam().shape);
}

INSTANTIATE_TEST_SUITE_P(Rows, OrdinalShapeOf,
                         ::testing::Values(ShapeRow{"Compact", "2024075", TextShape::Compact},
                                           ShapeRow{"Hyphenated", "2024-075", TextShape::Hyphenated},
                                           ShapeRow{"LeapYearsLastDay", "2024-366", TextShape::Hyphenated},
                                           ShapeRow{"YearZeroIsALeapYear", "0000366", TextShape::Compact},
                                           ShapeRow{"Empty", "", TextShape::None},
                                           ShapeRow{"SixCharacters", "202475", TextShape::None},
                                           ShapeRow{"NineCharacters", "2024-0755", TextShape::None},
                                           ShapeRow{"EightDigits", "20240755", TextShape::None},
                                           ShapeRow{"SlashForHyphen", "2024/075", TextShape::None},
                                           ShapeRow{"DigitForHyphen", "20240075", TextShape::None},
                                           ShapeRow{"LetterForHyphen", "2024x075", TextShape::None},
                                           ShapeRow{"HyphenElsewhere", "202-4075", TextShape::None},
                                           ShapeRow{"HyphenInSeven", "2024-75", TextShape::None},
                                           ShapeRow{"SecondHyphen", "2024--75", TextShape::None},
                                           ShapeRow{"Sign", "-024-075", TextShape::None},
                                           ShapeRow{"BlankForDigit", "2024- 75", TextShape::None},
                                           ShapeRow{"Letter", "2024-07x", TextShape::None},
                                           ShapeRow{"DayZero", "2024-000", TextShape::None},
                                           ShapeRow{"Day367", "2024-367", TextShape::None},
                                           ShapeRow{"NoLeapYear", "2023-366", TextShape::None},
                                           ShapeRow{"CenturyIsNoLeapYear", "1900366", TextShape::None}),
                         RowName<ShapeRow>);

struct ReadRow {
    std::string name;
    std::string text;
    bool hyphen;
    DateRecord expected;
};

void PrintTo(const ReadRow& row, std::ostream* out) {
    *out << '"' << row.text << '"';
}

class ParseOrdinalDateReads : public ::testing::TestWithParam<ReadRow> {};

TEST_P(ParseOrdinalDateReads, TheWholeRecord) {
    const ReadRow& row = GetParam();
    DateRecord record;
    EXPECT_EQ(ParseOrdinalDate(row.text, row.hyphen, record), ParseStatus::Valid);
    EXPECT_EQ(record, row.expected) << record.jdn;
}

constexpr CalendarCode kG = CalendarCode::G;

INSTANTIATE_TEST_SUITE_P(
    Rows, ParseOrdinalDateReads,
    ::testing::Values(ReadRow{"Hyphenated", "2024-075", true, {2024, 3, 15, kG, 2460385, 0}},
                      ReadRow{"Compact", "2024075", false, {2024, 3, 15, kG, 2460385, 0}},
                      ReadRow{"Blanks", " 2 024 - 07 5 ", true, {2024, 3, 15, kG, 2460385, 0}},
                      ReadRow{"LastDayOfALeapYear", "2024-366", true, {2024, 12, 31, kG, 2460676, 0}},
                      ReadRow{"FirstOfAll", "0001-001", true, {1, 1, 1, kG, 1721426, 0}},
                      ReadRow{"LastOfAll", "9999365", false, {9999, 12, 31, kG, 5373484, 0}}),
    RowName<ReadRow>);

struct RefusalRow {
    std::string name;
    std::string text;
    bool hyphen;
    ParseStatus status = ParseStatus::NotValid;
};

void PrintTo(const RefusalRow& row, std::ostream* out) {
    *out << '"' << row.text << '"';
}

class ParseOrdinalDateRefuses : public ::testing::TestWithParam<RefusalRow> {};

TEST_P(ParseOrdinalDateRefuses, AndLeavesTheRecordZeroed) {
    const RefusalRow& row = GetParam();
    DateRecord record;
    EXPECT_EQ(ParseOrdinalDate(row.text, row.hyphen, record), row.status);
    EXPECT_EQ(record, DateRecord{});
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ParseOrdinalDateRefuses,
    ::testing::Values(RefusalRow{"NoLeapYear", "2023-366", true}, RefusalRow{"Day367", "2024-367", true},
                      RefusalRow{"DayZero", "2024000", false}, RefusalRow{"FourCharacters", "2024", true},
                      RefusalRow{"YearAndHyphen", "2024-", true}, RefusalRow{"ShortDay", "2024-75", true},
                      RefusalRow{"LongYear", "12024-075", true}, RefusalRow{"LongDay", "2024-0751", true},
                      RefusalRow{"SignedYear", "-024-075", true}, RefusalRow{"SignedDay", "2024--75", true},
                      RefusalRow{"PlusForDigit", "+024075", false}, RefusalRow{"Tag", "2024-075ORD", true},
                      RefusalRow{"Tab", "2024-075\t", true}, RefusalRow{"SlashForHyphen", "2024/075", true},
                      RefusalRow{"DigitForHyphen", "20240075", true},
                      RefusalRow{"LetterForHyphen", "2024x075", true},
                      RefusalRow{"YearZero", "0000-001", true, ParseStatus::OutOfRange},
                      RefusalRow{"YearZeroCompact", "0000366", false, ParseStatus::OutOfRange},
                      RefusalRow{"DayIsTestedBeforeTheYear", "0000-367", true}),
    RowName<RefusalRow>);

TEST(ParseOrdinalDate, DeliberatelyTakesOnlyTheChosenForm) {
    DateRecord record;
    EXPECT_EQ(ParseOrdinalDate("2024075", true, record), ParseStatus::NotValid);
    EXPECT_EQ(ParseOrdinalDate("2024-075", false, record), ParseStatus::NotValid);
    EXPECT_EQ(record, DateRecord{});
    EXPECT_EQ(ParseOrdinalDate("2024-075", true, record), ParseStatus::Valid);
    EXPECT_EQ(ParseOrdinalDate("2024075", false, record), ParseStatus::Valid);
}

TEST(ParseOrdinalDate, RefusesHostileTextsOfAnyLength) {
    for (const std::string& text : HostileTexts()) {
        for (const bool hyphen : {false, true}) {
            DateRecord record;
            EXPECT_EQ(ParseOrdinalDate(text, hyphen, record), ParseStatus::NotValid);
            EXPECT_EQ(record, DateRecord{});
        }
        EXPECT_EQ(OrdinalShape(text), TextShape::None);
    }
}

TEST(FormatOrdinalDate, PadsYearAndDay) {
    EXPECT_EQ(FormatOrdinalDate(2024, 75, true), "2024-075");
    EXPECT_EQ(FormatOrdinalDate(2024, 75, false), "2024075");
    EXPECT_EQ(FormatOrdinalDate(5, 1, true), "0005-001");
    EXPECT_EQ(FormatOrdinalDate(9999, 365, false), "9999365");
}

}  // namespace
}  // namespace calvoro
