#include "datetext/AnyNotation.h"

#include <set>

#include "calendar/DayNumber.h"
#include "calendar/EuroDate.h"
#include "datetext/Tags.h"
#include "tests/datetext/TextRows.h"

namespace calvoro {
namespace {

constexpr ParseStatus kValid = ParseStatus::Valid;
constexpr ParseStatus kNotValid = ParseStatus::NotValid;
constexpr ParseStatus kOutOfRange = ParseStatus::OutOfRange;
constexpr DateFormat kMDY = DateFormat::MDY;
constexpr DateFormat kDMY = DateFormat::DMY;
constexpr DateFormat kYMD = DateFormat::YMD;
constexpr CalendarNumber kCE = CalendarNumber::CE;
constexpr CalendarNumber kJC = CalendarNumber::JC;
constexpr CalendarNumber kISO = CalendarNumber::ISO;
constexpr CalendarNumber kORD = CalendarNumber::ORD;
constexpr CalendarNumber kLPM = CalendarNumber::LPM;
constexpr CalendarNumber kLPW = CalendarNumber::LPW;
constexpr CalendarNumber kJDN = CalendarNumber::JDN;

// --- the table ---

TEST(Notations, StandInTheirFixedOrder) {
    const CalendarNumber expected[] = {kCE, kISO, kJC, kORD, kLPM, kLPW, kJDN};
    std::size_t row = 0;
    for (const Notation& notation : Notations()) {
        EXPECT_EQ(notation.number, expected[row++]);
        EXPECT_EQ(notation.tag, TagText(notation.number));
        EXPECT_EQ(&NotationOf(notation.number), &notation);
    }
    EXPECT_EQ(row, 7U);
}

TEST(Notations, AnswerWithTheCommonEraForCalendarsThatAreNotOffered) {
    for (const CalendarNumber number : {CalendarNumber::AN, CalendarNumber::VLW, CalendarNumber::ARC,
                                        static_cast<CalendarNumber>(-1), static_cast<CalendarNumber>(10)}) {
        EXPECT_EQ(NotationOf(number).number, kCE);
    }
}

// --- what is read, and what then stands in the box ---

struct ReadRow {
    std::string name;
    CalendarNumber notation;
    std::string text;
    TextOptions options;
    std::int32_t jdn;
    std::string canonical;
};

void PrintTo(const ReadRow& row, std::ostream* out) {
    *out << '"' << row.text << '"';
}

class ReadDateReads : public ::testing::TestWithParam<ReadRow> {};

TEST_P(ReadDateReads, TheDayAndRewritesTheText) {
    const ReadRow& row = GetParam();
    DateRecord record;
    std::string canonical;
    EXPECT_EQ(ReadDate(row.notation, row.text, row.options, record, &canonical), kValid);
    EXPECT_EQ(record.jdn, row.jdn);
    EXPECT_EQ(canonical, row.canonical);

    DateRecord again;
    EXPECT_EQ(ReadDate(row.notation, row.canonical, row.options, again), kValid);
    EXPECT_EQ(again, record) << "the rewritten text is the same date";
}

const TextOptions kDefaults;
const TextOptions kNoHyphen{kYMD, '-', ',', false, ","};
const TextOptions kDots{kYMD, '.', ',', true, ","};
const TextOptions kDotsAndDots{kYMD, '.', '.', true, "."};
const TextOptions kDotsDayFirst{kDMY, '.', '.', true, ","};
const TextOptions kDotsMonthFirst{kMDY, '.', kNoSeparator, true, ","};
const TextOptions kHyphensDayFirst{kDMY, '-', '.', true, ","};
const TextOptions kSlashesMonthFirst{kMDY, '/', ',', true, ","};

INSTANTIATE_TEST_SUITE_P(
    EuroDates, ReadDateReads,
    ::testing::Values(
        ReadRow{"Plain", kCE, "2021-03-04", kDefaults, 2459278, "2021-03-04"},
        ReadRow{"BlanksAround", kCE, "   2021-03-04  ", kDefaults, 2459278, "2021-03-04"},
        ReadRow{"Sloppy", kCE, "2021 - 3 - 4.", kDefaults, 2459278, "2021-03-04"},
        ReadRow{"Tag", kCE, "2021-03-04 CE", kDefaults, 2459278, "2021-03-04"},
        ReadRow{"TagWithBlanks", kJC, "  2021-02-19   JC ", kDefaults, 2459278, "2021-02-19"},
        ReadRow{"ParenthesesAfterHyphen", kCE, "15-03-(-44)", kHyphensDayFirst, 1705063, "15-03-(-44)"},
        ReadRow{"MinusAfterHyphen", kJC, "15-03--44", kHyphensDayFirst, 1705061, "15-03-(-44)"},
        ReadRow{"ParenthesesAfterSlash", kCE, "03/15/(-12,345)", kSlashesMonthFirst, -2787785,
                "03/15/(-12,345)"},
        ReadRow{"GroupedYearFirst", kCE, "12345-03-15", kDefaults, 6230052, "12,345-03-15"},
        ReadRow{"DottedYearFirst", kCE, "12.345.03.15", kDotsAndDots, 6230052, "12.345.03.15"},
        ReadRow{"DottedNegativeYearFirst", kCE, "-12.345.03.15", kDotsAndDots, -2787785, "-12.345.03.15"},
        ReadRow{"DottedYearUnderCommas", kCE, "12.345.03.15", kDots, 6230052, "12,345.03.15"},
        ReadRow{"DottedYearUnderNone", kCE, "03.15.12.345", kDotsMonthFirst, 6230052, "03.15.12345"},
        ReadRow{"CommasBetweenDots", kCE, "12,345.03.15", kDotsAndDots, 6230052, "12.345.03.15"},
        ReadRow{"DottedYearLast", kJC, "15.03.12.345", kDotsDayFirst, 6230143, "15.03.12.345"},
        ReadRow{"DottedYearInParentheses", kCE, "15.03.(-12.345)", kDotsDayFirst, -2787785,
                "15.03.(-12.345)"},
        ReadRow{"DottedYearOfTwoGroups", kCE, "01.01.1.234.567", kDotsDayFirst, 452637398, "01.01.1.234.567"},
        ReadRow{"DottedYearWithTag", kCE, "12.345.03.15 CE", kDotsAndDots, 6230052, "12.345.03.15"},
        ReadRow{"DottedYearAmongForeignCharacters", kCE, "x12.345.03.15!", kDots, 6230052, "12,345.03.15"},
        ReadRow{"BeyondTheDayLimit", kCE, "5800000-12-31", kDefaults, 2'120'127'925, "5,800,000-12-31"},
        ReadRow{"BeforeTheDayLimit", kJC, "-5800000-01-01", kDefaults, -2'116'728'942, "-5,800,000-01-01"}),
    RowName<ReadRow>);

INSTANTIATE_TEST_SUITE_P(
    OtherDates, ReadDateReads,
    ::testing::Values(
        ReadRow{"IsoHyphenated", kISO, "2024-W05-3", kDefaults, 2460341, "2024-W05-3"},
        ReadRow{"IsoCompactIsRewritten", kISO, "2024W053", kDefaults, 2460341, "2024-W05-3"},
        ReadRow{"IsoHyphenatedIsRewritten", kISO, "2024-W05-3", kNoHyphen, 2460341, "2024W053"},
        ReadRow{"IsoTag", kISO, "2024-W05-3 ISO", kDefaults, 2460341, "2024-W05-3"},
        ReadRow{"IsoTagBehindCompact", kISO, " 2024W053 ISO ", kNoHyphen, 2460341, "2024W053"},
        ReadRow{"IsoSignAndZeros", kISO, "+0005-W01-1", kDefaults, 1722889, "5-W01-1"},
        ReadRow{"OrdinalHyphenated", kORD, "2024-075", kDefaults, 2460385, "2024-075"},
        ReadRow{"OrdinalCompact", kORD, "2024075", kNoHyphen, 2460385, "2024075"},
        ReadRow{"OrdinalTag", kORD, "2024-075 ORD", kDefaults, 2460385, "2024-075"},
        ReadRow{"WeekForm", kLPW, "2024-02-1", kDefaults, 2460311, "2024-02-1"},
        ReadRow{"WeekFormTag", kLPW, "2024-02-1 LPW", kDefaults, 2460311, "2024-02-1"},
        ReadRow{"WeekFormOfTheFirstDay", kLPW, "0001-02-1", kDefaults, 1721426, "1-02-1"},
        ReadRow{"MonthForm", kLPM, "2024-1-8", kDefaults, 2460311, "2024-01-08"},
        ReadRow{"MonthFormTag", kLPM, "2024-01-08 LPM", kDefaults, 2460311, "2024-01-08"},
        ReadRow{"LeapWeekSeparatorIsAlwaysHyphen", kLPM, "2024-01-08", kDotsDayFirst, 2460311, "2024-01-08"},
        ReadRow{"LeapWeekSystemGrouping", kLPM, "12345-01-01", kDotsAndDots, 6229972, "12.345-01-01"},
        ReadRow{"DayMinusTwo", kLPW, "-4713-48-6", kDefaults, -2, "-4713-48-6"},
        ReadRow{"DayMinusThree", kLPM, "-4713-11-26", kDefaults, -3, "-4713-11-26"}),
    RowName<ReadRow>);

INSTANTIATE_TEST_SUITE_P(
    DayNumbers, ReadDateReads,
    ::testing::Values(
        ReadRow{"Plain", kJDN, "2460370", kDefaults, 2460370, "2,460,370"},
        ReadRow{"Commas", kJDN, "2,460,370", kDefaults, 2460370, "2,460,370"},
        ReadRow{"CommasUnderDots", kJDN, "2,460,370", kDotsAndDots, 2460370, "2.460.370"},
        ReadRow{"DotsUnderCommas", kJDN, "2.460.370", kDefaults, 2460370, "2,460,370"},
        ReadRow{"DotsUnderDots", kJDN, "2.460.370", kDotsAndDots, 2460370, "2.460.370"},
        ReadRow{"DotsUnderNone", kJDN, "2.460.370", kDotsMonthFirst, 2460370, "2460370"},
        ReadRow{"NegativeUnderHyphen", kJDN, "-2,460,370", kDefaults, -2460370, "-2,460,370"},
        ReadRow{"NegativeUnderSlash", kJDN, "-2.460.370", kSlashesMonthFirst, -2460370, "-2,460,370"},
        ReadRow{"NegativeUnderDot", kJDN, "-2.460.370", kDotsAndDots, -2460370, "-2.460.370"},
        ReadRow{"Smallest", kJDN, "-2,100,000,000", kDefaults, -2'100'000'000, "-2,100,000,000"},
        ReadRow{"Largest", kJDN, "2.100.000.000", kDotsAndDots, 2'100'000'000, "2.100.000.000"},
        ReadRow{"Tag", kJDN, "2,460,370 JDN", kDefaults, 2460370, "2,460,370"},
        ReadRow{"TagUnderDots", kJDN, "-2.460.370 JDN", kDotsAndDots, -2460370, "-2.460.370"},
        ReadRow{"BlanksInside", kJDN, " - 2 460 370 ", kDefaults, -2460370, "-2,460,370"},
        ReadRow{"Zero", kJDN, "0", kDefaults, 0, "0"}),
    RowName<ReadRow>);

// --- what the record holds ---

TEST(ReadDate, FillsTheRecordAsItsNotationHasIt) {
    const auto recordOf = [](CalendarNumber notation, std::string_view text) {
        DateRecord record;
        EXPECT_EQ(ReadDate(notation, text, kDefaults, record), kValid) << text;
        return record;
    };
    EXPECT_EQ(recordOf(kCE, "2024-03-15"), (DateRecord{2024, 3, 15, CalendarCode::G, 2460385, 0}));
    EXPECT_EQ(recordOf(kJC, "2024-03-02"), (DateRecord{2024, 3, 2, CalendarCode::J, 2460385, 0}));
    EXPECT_EQ(recordOf(kORD, "2024-075"), (DateRecord{2024, 3, 15, CalendarCode::G, 2460385, 0}));
    EXPECT_EQ(recordOf(kLPM, "2024-03-19"), (DateRecord{2024, 3, 19, CalendarCode::Unset, 2460385, 0}));
    EXPECT_EQ(recordOf(kLPW, "2024-12-5"), (DateRecord{0, 0, 0, CalendarCode::Unset, 2460385, 0}));
    EXPECT_EQ(recordOf(kISO, "2024-W11-5"), (DateRecord{0, 0, 0, CalendarCode::Unset, 2460385, 0}));
    EXPECT_EQ(recordOf(kJDN, "2460385"), (DateRecord{0, 0, 0, CalendarCode::Unset, 2460385, 0}));
}

// --- refusals ---

struct RefusalRow {
    std::string name;
    CalendarNumber notation;
    std::string text;
    TextOptions options = kDefaults;
    ParseStatus status = kNotValid;
};

void PrintTo(const RefusalRow& row, std::ostream* out) {
    *out << '"' << row.text.substr(0, 80) << '"';
}

class ReadDateRefuses : public ::testing::TestWithParam<RefusalRow> {};

TEST_P(ReadDateRefuses, AndTouchesNothing) {
    const RefusalRow& row = GetParam();
    DateRecord record;
    std::string canonical = "untouched";
    EXPECT_EQ(ReadDate(row.notation, row.text, row.options, record, &canonical), row.status);
    EXPECT_EQ(record, DateRecord{});
    EXPECT_EQ(canonical, "untouched");
}

INSTANTIATE_TEST_SUITE_P(
    EuroDates, ReadDateRefuses,
    ::testing::Values(RefusalRow{"TagAlone", kCE, "CE"}, RefusalRow{"BlankAndTagAlone", kCE, " CE"},
                      RefusalRow{"NoLeapDay", kCE, "2023-02-29"},
                      RefusalRow{"IllGroupedDottedYear", kCE, "1.2345.03.15", kDots},
                      RefusalRow{"IllGroupedDottedYearLast", kCE, "15.03.12.34", kDotsDayFirst},
                      RefusalRow{"DotAtTheEnd", kCE, "2024.03.15.", kDots},
                      RefusalRow{"DotAtTheBegin", kCE, ".2024.03.15", kDots},
                      RefusalRow{"OnlyDots", kCE, ".....", kDots},
                      RefusalRow{"CommasInsideADottedYear", kCE, "1,234.567.03.15", kDots},
                      RefusalRow{"WrongEndGrouped", kCE, "12.345.03.15", kDotsDayFirst},
                      RefusalRow{"YearBeyond", kJC, "5800001-01-01", kDefaults, kOutOfRange},
                      RefusalRow{"DottedYearBeyond", kCE, "5.800.001.01.01", kDots, kOutOfRange},
                      RefusalRow{"MillionDigits", kCE, std::string(1'000'000, '9') + "-01-01", kDefaults,
                                 kOutOfRange}),
    RowName<RefusalRow>);

INSTANTIATE_TEST_SUITE_P(
    OtherDates, ReadDateRefuses,
    ::testing::Values(
        RefusalRow{"IsoForeignTag", kISO, "2024-W05-3 CE"},
        RefusalRow{"IsoTagInLowerCase", kISO, "2024-W05-3 iso"},
        RefusalRow{"IsoTagWithoutBlank", kISO, "2024-W05-3ISO"},
        RefusalRow{"IsoTagTwice", kISO, "2024-W05-3 ISO ISO"}, RefusalRow{"IsoWeek53", kISO, "2021-W53-1"},
        RefusalRow{"IsoWeek53BelowYearOne", kISO, "-4622-W53-1"},
        RefusalRow{"IsoYearBeyond", kISO, "5800000-W01-1", kDefaults, kOutOfRange},
        RefusalRow{"OrdinalOtherForm", kORD, "2024075"},
        RefusalRow{"OrdinalOtherFormWithoutHyphen", kORD, "2024-075", kNoHyphen},
        RefusalRow{"OrdinalForeignTag", kORD, "2024-075 CE"},
        RefusalRow{"OrdinalYearZero", kORD, "0000-001", kDefaults, kOutOfRange},
        RefusalRow{"Weekday8", kLPW, "2024-02-8"}, RefusalRow{"Weekday8OfDayZero", kLPW, "-4713-49-8"},
        RefusalRow{"Month13", kLPM, "2024-13-01"}, RefusalRow{"LeapDecember", kLPM, "2021-12-35"},
        RefusalRow{"DayZeroWeekForm", kLPW, "-4713-49-1"},
        RefusalRow{"DayZeroMonthForm", kLPM, "-4713-12-01"},
        RefusalRow{"LeapWeekYearBeyond", kLPW, "5800001-01-1", kDefaults, kOutOfRange},
        RefusalRow{"WeekBeyond16Bits", kLPW, "2024-40000-1", kDefaults, kOutOfRange}),
    RowName<RefusalRow>);

INSTANTIATE_TEST_SUITE_P(
    DayNumbers, ReadDateRefuses,
    ::testing::Values(RefusalRow{"Empty", kJDN, ""}, RefusalRow{"Letters", kJDN, "abc"},
                      RefusalRow{"LettersBehind", kJDN, "2460370x"}, RefusalRow{"ShortGroup", kJDN, "12,34"},
                      RefusalRow{"ShortDottedGroup", kJDN, "12.34"},
                      RefusalRow{"MisplacedDots", kJDN, "24.60.370", kDotsAndDots},
                      RefusalRow{"MisplacedDotsUnderHyphen", kJDN, "24.60.370"},
                      RefusalRow{"MixedGrouping", kJDN, "2.460,370"}, RefusalRow{"Plus", kJDN, "+5"},
                      RefusalRow{"PlusGrouped", kJDN, "+2,460,370"}, RefusalRow{"TwoMinuses", kJDN, "--5"},
                      RefusalRow{"MinusBehind", kJDN, "5-"}, RefusalRow{"MinusAlone", kJDN, "-"},
                      RefusalRow{"Slash", kJDN, "5/", kSlashesMonthFirst}, RefusalRow{"Comma", kJDN, ","},
                      RefusalRow{"TagAlone", kJDN, "JDN"}, RefusalRow{"ForeignTag", kJDN, "2460370 CE"},
                      RefusalRow{"NulInside", kJDN,
                                 std::string("24\0"
                                             "60",
                                             5)},
                      RefusalRow{"BeyondLargest", kJDN, "2,100,000,001", kDefaults, kOutOfRange},
                      RefusalRow{"BeyondSmallest", kJDN, "-2.100.000.001", kDotsAndDots, kOutOfRange},
                      RefusalRow{"ElevenDigits", kJDN, "00000000005", kDefaults, kOutOfRange},
                      RefusalRow{"MillionDigits", kJDN, std::string(1'000'000, '9'), kDefaults, kOutOfRange}),
    RowName<RefusalRow>);

TEST(ReadDate, DeliberatelyKeepsTheLeapWeekFieldsAsTheyWereTyped) {
    for (const std::string_view text : {"2024-54-1", "2024-00-1", "2024-02-0", "2024-540-7"}) {
        DateRecord record;
        std::string canonical;
        EXPECT_EQ(ReadDate(kLPW, text, kDefaults, record, &canonical), kValid) << text;
        EXPECT_EQ(canonical, text);
    }
    for (const std::string_view text : {"2024-00-08", "2024-03-00", "2024-00-00"}) {
        DateRecord record;
        std::string canonical;
        EXPECT_EQ(ReadDate(kLPM, text, kDefaults, record, &canonical), kValid) << text;
        EXPECT_EQ(canonical, text);
    }
}

TEST(ReadDate, AnswersThatADayNumberLeaves32Bits) {
    const Notation far{CalendarNumber::CE, "CE",
                       [](std::string_view, const TextOptions&, DateRecord& record, std::string*) {
                           record = {.year = 2'147'483'647, .month = 12, .day = 31};
                           euro_date_to_jdn(record);
                           return kValid;
                       },
                       nullptr};
    DateRecord record;
    EXPECT_EQ(ReadDate(far, "2147483647-12-31", kDefaults, record), kOutOfRange);
    EXPECT_EQ(record, DateRecord{});
}

TEST(ReadDate, RefusesHostileTextsInEveryNotation) {
    const std::set<DateFormat> formats{kMDY, kDMY, kYMD};
    int reads = 0;
    for (const std::string& text : HostileTexts()) {
        for (const Notation& notation : Notations()) {
            for (const char separator : {'-', '/', '.'}) {
                for (const DateFormat format : formats) {
                    const TextOptions options{format, separator, ',', true, ","};
                    DateRecord record;
                    EXPECT_EQ(ReadDate(notation.number, text, options, record), kNotValid);
                    EXPECT_EQ(record, DateRecord{});
                    ++reads;
                }
            }
        }
    }
    EXPECT_EQ(reads, static_cast<int>(HostileTexts().size()) * 7 * 3 * 3);
}

// --- writing ---

TEST(CanWriteDate, KnowsTheLimitsOfOrdinalDates) {
    EXPECT_TRUE(CanWriteDate(kORD, kFirstFourDigitDay));
    EXPECT_TRUE(CanWriteDate(kORD, kLastFourDigitDay));
    EXPECT_FALSE(CanWriteDate(kORD, kFirstFourDigitDay - 1));
    EXPECT_FALSE(CanWriteDate(kORD, kLastFourDigitDay + 1));
    for (const Notation& notation : Notations()) {
        if (notation.number == kORD) continue;
        EXPECT_TRUE(CanWriteDate(notation.number, kMaxDayNumber));
        EXPECT_TRUE(CanWriteDate(notation.number, kMinDayNumber));
    }
}

TEST(WriteDate, WritesOneDayInEveryNotation) {
    const auto all = [](std::int32_t jdn, const TextOptions& options) {
        std::string texts;
        for (const Notation& notation : Notations()) {
            if (CanWriteDate(notation.number, jdn)) texts += WriteDate(notation.number, jdn, options) + " | ";
        }
        return texts;
    };
    EXPECT_EQ(all(2459278, kDefaults),
              "2021-03-04 | 2021-W09-4 | 2021-02-19 | 2021-063 | 2021-03-04 | 2021-10-4 | 2,459,278 | ");
    EXPECT_EQ(all(kFirstFourDigitDay, kNoHyphen),
              "1-01-01 | 1W011 | 1-01-03 | 0001001 | 1-01-08 | 1-02-1 | 1,721,426 | ");
    EXPECT_EQ(all(kLastFourDigitDay + 1, kDotsDayFirst),
              "01.01.10.000 | 9999-W52-6 | 20.10.9999 | 10,000-01-06 | 10,000-01-6 | 5.373.485 | ");
    EXPECT_EQ(all(kMinDayNumber, kSlashesMonthFirst),
              "03/08/(-5,754,317) | -5754317-W10-1 | 05/07/(-5,754,199) | -5,754,317-03-08 | "
              "-5,754,317-11-1 | -2,100,000,000 | ");
}

// --- differences ---

struct DifferenceRow {
    std::string name;
    std::string text;
    ParseStatus status;
    std::int32_t number = 0;
};

void PrintTo(const DifferenceRow& row, std::ostream* out) {
    *out << '"' << row.text.substr(0, 80) << '"';
}

class ReadDifferenceOf : public ::testing::TestWithParam<DifferenceRow> {};

TEST_P(ReadDifferenceOf, AText) {
    const DifferenceRow& row = GetParam();
    std::int32_t number = 4711;
    EXPECT_EQ(ReadDifference(row.text, number), row.status);
    EXPECT_EQ(number, row.status == kValid ? row.number : 4711);
}

INSTANTIATE_TEST_SUITE_P(Rows, ReadDifferenceOf,
                         ::testing::Values(DifferenceRow{"Plain", "10", kValid, 10},
                                           DifferenceRow{"Dots", "1.000", kValid, 1000},
                                           DifferenceRow{"MinusDots", "-1.234.567", kValid, -1234567},
                                           DifferenceRow{"PlusDots", "+12.345", kValid, 12345},
                                           DifferenceRow{"BlanksAroundDots", "  -1.000 ", kValid, -1000},
                                           DifferenceRow{"Commas", "1,000", kValid, 1000},
                                           DifferenceRow{"CommasAnywhere", "10,00", kValid, 1000},
                                           DifferenceRow{"ShortDottedGroup", "10.00", kNotValid},
                                           DifferenceRow{"DotsAndCommas", "1.000,000", kNotValid},
                                           DifferenceRow{"Fraction", "1.5", kNotValid},
                                           DifferenceRow{"Empty", "", kNotValid},
                                           DifferenceRow{"DotsBeyond", "2.100.000.000", kOutOfRange},
                                           DifferenceRow{"Largest", "2.099.999.999", kValid, 2'099'999'999}),
                         RowName<DifferenceRow>);

}  // namespace
}  // namespace calvoro
