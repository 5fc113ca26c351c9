#include "datetext/IsoWeekText.h"

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
    *out << '"' << row.text.substr(0, 80) << '"';
}

class IsoShapeOf : public ::testing::TestWithParam<ShapeRow> {};

TEST_P(IsoShapeOf, AText) {
    EXPECT_EQ(IsoShape(GetParam().text), GetParam().shape);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, IsoShapeOf,
    ::testing::Values(
        ShapeRow{"Compact", "2024W053", TextShape::Compact},
        ShapeRow{"Hyphenated", "2024-W05-3", TextShape::Hyphenated},
        ShapeRow{"CompactNegative", "-44W053", TextShape::Compact},
        ShapeRow{"HyphenatedNegative", "-44-W05-3", TextShape::Hyphenated},
        ShapeRow{"PlusSign", "+2024W053", TextShape::Compact},
        ShapeRow{"ShortYear", "5-W01-1", TextShape::Hyphenated},
        ShapeRow{"FirstWeekFirstDay", "2024W011", TextShape::Compact},
        ShapeRow{"LastWeekLastDay", "2024W537", TextShape::Compact},
        ShapeRow{"HyphenOnlyBeforeTheW", "2024-W053", TextShape::Hyphenated},
        ShapeRow{"Empty", "", TextShape::None}, ShapeRow{"NoW", "2024-05-3", TextShape::None},
        ShapeRow{"LowerCaseW", "2024w053", TextShape::None}, ShapeRow{"NoYear", "W053", TextShape::None},
        ShapeRow{"OnlySignOfYear", "-W053", TextShape::None},
        ShapeRow{"OnlySignAndHyphenOfYear", "--W05-3", TextShape::None},
        ShapeRow{"TwoSigns", "--44-W05-3", TextShape::None},
        ShapeRow{"YearWithLetter", "20x4W053", TextShape::None},
        ShapeRow{"YearWithComma", "12,345W053", TextShape::None},
        ShapeRow{"HyphenOnlyBehindTheW", "2024W05-3", TextShape::None},
        ShapeRow{"HyphenInsideTheYear", "20-24W053", TextShape::None},
        ShapeRow{"TwoHyphensBeforeTheW", "2024--W053", TextShape::None},
        ShapeRow{"WeekZero", "2024W003", TextShape::None}, ShapeRow{"Week54", "2024W543", TextShape::None},
        ShapeRow{"DayZero", "2024W050", TextShape::None}, ShapeRow{"DayEight", "2024W058", TextShape::None},
        ShapeRow{"TwoCharactersBehindW", "2024W05", TextShape::None},
        ShapeRow{"FourCharactersBehindW", "2024W0531", TextShape::None},
        ShapeRow{"TwoWs", "2024WW05", TextShape::None},
        ShapeRow{"SecondWAtTheEnd", "2024W053W", TextShape::None},
        ShapeRow{"LetterForDay", "2024W05x", TextShape::None},
        ShapeRow{"BlankBehindW", "2024W05 3", TextShape::None},
        ShapeRow{"TrailingHyphenOnly", "2024-W05", TextShape::None}),
    RowName<ShapeRow>);

TEST(IsoShape, DeliberatelyIgnoresHyphensBehindTheW) {
    EXPECT_EQ(IsoShape("2024-W-0-5-3"), TextShape::Hyphenated);
    EXPECT_EQ(IsoShape("2024-W05-3-"), TextShape::Hyphenated);
}

struct ReadRow {
    std::string name;
    std::string text;
    std::int32_t year;
    std::int32_t week;
    std::int32_t day;
    std::int32_t jdn;
};

void PrintTo(const ReadRow& row, std::ostream* out) {
    *out << '"' << row.text << '"';
}

class ParseIsoWeekDateReads : public ::testing::TestWithParam<ReadRow> {};

TEST_P(ParseIsoWeekDateReads, DateAndDayNumber) {
    const ReadRow& row = GetParam();
    IsoWeekDate date;
    EXPECT_EQ(ParseIsoWeekDate(row.text, date), ParseStatus::Valid);
    EXPECT_EQ(date, (IsoWeekDate{row.year, row.week, row.day, row.jdn, 1})) << date.jdn;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ParseIsoWeekDateReads,
    ::testing::Values(ReadRow{"Week53", "2020-W53-5", 2020, 53, 5, 2459216},
                      ReadRow{"WeekOne", "2021-W01-1", 2021, 1, 1, 2459219},
                      ReadRow{"Blanks", " 2024 - W 05 - 3 ", 2024, 5, 3, 2460341},
                      ReadRow{"PlusSign", "+2024W053", 2024, 5, 3, 2460341},
                      ReadRow{"ZerosInFront", "0000000000002024-W05-3", 2024, 5, 3, 2460341},
                      ReadRow{"YearOne", "1-W01-1", 1, 1, 1, 1721426},
                      ReadRow{"YearZero", "0-W52-7", 0, 52, 7, 1721425},
                      ReadRow{"MinusZero", "-0W527", 0, 52, 7, 1721425},
                      ReadRow{"DayZero", "-4713-W48-1", -4713, 48, 1, 0},
                      ReadRow{"SmallestDayNumber", "-5754317-W10-1", -5'754'317, 10, 1, -2'100'000'000},
                      ReadRow{"LargestYear", "5799999-W01-1", 5'799'999, 1, 1, 2'120'127'198}),
    RowName<ReadRow>);

TEST(ParseIsoWeekDate, DeliberatelyTakesBothForms) {
    IsoWeekDate hyphenated;
    IsoWeekDate compact;
    EXPECT_EQ(ParseIsoWeekDate("2024-W05-3", hyphenated), ParseStatus::Valid);
    EXPECT_EQ(ParseIsoWeekDate("2024W053", compact), ParseStatus::Valid);
    EXPECT_EQ(hyphenated, compact);
    EXPECT_EQ(compact.jdn, 2460341);
}

struct RefusalRow {
    std::string name;
    std::string text;
    ParseStatus status;
};

void PrintTo(const RefusalRow& row, std::ostream* out) {
    *out << '"' << row.text.substr(0, 80) << '"';
}

class ParseIsoWeekDateRefuses : public ::testing::TestWithParam<RefusalRow> {};

TEST_P(ParseIsoWeekDateRefuses, AndLeavesTheRecordZeroed) {
    IsoWeekDate date;
    EXPECT_EQ(ParseIsoWeekDate(GetParam().text, date), GetParam().status);
    EXPECT_EQ(date, IsoWeekDate{});
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ParseIsoWeekDateRefuses,
    ::testing::Values(RefusalRow{"Week53OfAShortYear", "2021-W53-1", ParseStatus::NotValid},
                      RefusalRow{"LowerCaseW", "2024w053", ParseStatus::NotValid},
                      RefusalRow{"Week54", "2024-W54-1", ParseStatus::NotValid},
                      RefusalRow{"TagBehind", "2024-W05-3 ISO", ParseStatus::NotValid},
                      RefusalRow{"Tab", "2024-W05-3\t", ParseStatus::NotValid},
                      RefusalRow{"YearAtTheLimit", "5800000-W01-1", ParseStatus::OutOfRange},
                      RefusalRow{"NegativeYearAtTheLimit", "-5800000W011", ParseStatus::OutOfRange},
                      RefusalRow{"YearBeyondBeforeWeek53", "5800001-W53-1", ParseStatus::OutOfRange},
                      RefusalRow{"YearOfAMillionDigits", std::string(1'000'000, '9') + "-W01-1",
                                 ParseStatus::OutOfRange},
                      RefusalRow{"NegativeYearOfAMillionDigits", "-" + std::string(1'000'000, '9') + "W011",
                                 ParseStatus::OutOfRange},
                      RefusalRow{"ShapeBeforeYear", std::string(100, '9') + "-W54-1", ParseStatus::NotValid}),
    RowName<RefusalRow>);

TEST(ParseIsoWeekDate, DeliberatelyRefusesWeek53BelowYearOne) {
    IsoWeekDate written;
    written.jdn = 33271;
    JdnToIsoWeekDate(written);
    const std::string text = FormatIsoWeekDate(written, true);
    EXPECT_EQ(text, "-4622-W53-1");
    IsoWeekDate read;
    EXPECT_EQ(ParseIsoWeekDate(text, read), ParseStatus::NotValid);
}

TEST(ParseIsoWeekDate, RefusesHostileTextsOfAnyLength) {
    for (const std::string& text : HostileTexts()) {
        IsoWeekDate date;
        EXPECT_EQ(ParseIsoWeekDate(text, date), ParseStatus::NotValid);
        EXPECT_EQ(date, IsoWeekDate{});
        EXPECT_EQ(IsoShape(text), TextShape::None);
    }
}

TEST(FormatIsoWeekDate, WritesBothForms) {
    const IsoWeekDate date{2024, 5, 3, 0, 0};
    EXPECT_EQ(FormatIsoWeekDate(date, true), "2024-W05-3");
    EXPECT_EQ(FormatIsoWeekDate(date, false), "2024W053");
}

TEST(FormatIsoWeekDate, WritesTheYearWithoutPaddingAndGrouping) {
    EXPECT_EQ(FormatIsoWeekDate({5, 1, 1, 0, 0}, true), "5-W01-1");
    EXPECT_EQ(FormatIsoWeekDate({0, 53, 7, 0, 0}, false), "0W537");
    EXPECT_EQ(FormatIsoWeekDate({-44, 10, 2, 0, 0}, true), "-44-W10-2");
    EXPECT_EQ(FormatIsoWeekDate({-5754317, 10, 1, 0, 0}, false), "-5754317W101");
}

}  // namespace
}  // namespace calvoro
