#include "datetext/LeapWeekText.h"

#include <string>

#include "tests/datetext/TextRows.h"

namespace calvoro {
namespace {

constexpr ParseStatus kValid = ParseStatus::Valid;
constexpr ParseStatus kNotValid = ParseStatus::NotValid;
constexpr ParseStatus kOutOfRange = ParseStatus::OutOfRange;

// --- reading ---

struct ReadRow {
    std::string name;
    std::string text;
    std::int32_t year;
    std::int16_t second;  // week or month
    std::int16_t third;   // weekday or day
    std::int32_t jdn;
};

void PrintTo(const ReadRow& row, std::ostream* out) {
    *out << '"' << row.text << '"';
}

class ParseLpwTextReads : public ::testing::TestWithParam<ReadRow> {};

TEST_P(ParseLpwTextReads, WeekFormAndDayNumber) {
    const ReadRow& row = GetParam();
    LeapWeekDate date;
    EXPECT_EQ(ParseLpwText(row.text, date), kValid);
    EXPECT_EQ(date.year, row.year);
    EXPECT_EQ(date.week, row.second);
    EXPECT_EQ(date.weekday, row.third);
    EXPECT_EQ(date.jdn, row.jdn);
    EXPECT_EQ(date.status, kLeapWeekOk);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ParseLpwTextReads,
    ::testing::Values(ReadRow{"NewYearOf2024", "2024-02-1", 2024, 2, 1, 2460311},
                      ReadRow{"SilvesterOf2020", "2021-01-4", 2021, 1, 4, 2459215},
                      ReadRow{"FirstOfTheCommonEra", "1-02-1", 1, 2, 1, 1721426},
                      ReadRow{"ZerosInFront", "0001-01-1", 1, 1, 1, 1721419},
                      ReadRow{"NegativeYear", "-4713-48-7", -4713, 48, 7, -1},
                      ReadRow{"SmallestDayNumber", "-5754317-11-1", -5'754'317, 11, 1, -2'100'000'000},
                      ReadRow{"GroupedYear", "-5,754,317-11-1", -5'754'317, 11, 1, -2'100'000'000},
                      ReadRow{"YearGroupedByNarrowBlanks", "-5\u202f754\u202f317-11-1", -5'754'317, 11, 1,
                              -2'100'000'000},
                      ReadRow{"LargestYear", "5800000-01-1", 5'800'000, 1, 1, 2120127555},
                      ReadRow{"SmallestYear", "-5800000-01-1", -5'800'000, 1, 1, -2116685445},
                      ReadRow{"LastWeekOfALeapYear", "2020-53-7", 2020, 53, 7, 2459211}),
    RowName<ReadRow>);

class ParseLpmTextReads : public ::testing::TestWithParam<ReadRow> {};

TEST_P(ParseLpmTextReads, MonthFormWeekFormAndDayNumber) {
    const ReadRow& row = GetParam();
    LeapWeekDate date;
    EXPECT_EQ(ParseLpmText(row.text, date), kValid);
    EXPECT_EQ(date.year, row.year);
    EXPECT_EQ(date.month, row.second);
    EXPECT_EQ(date.day, row.third);
    EXPECT_EQ(date.jdn, row.jdn);
    EXPECT_EQ(date.status, kLeapWeekOk);
}

INSTANTIATE_TEST_SUITE_P(Rows, ParseLpmTextReads,
                         ::testing::Values(ReadRow{"NewYearOf2024", "2024-01-08", 2024, 1, 8, 2460311},
                                           ReadRow{"LeapDecember", "2020-12-35", 2020, 12, 35, 2459211},
                                           ReadRow{"FirstOfAll", "1-1-1", 1, 1, 1, 1721419},
                                           ReadRow{"NegativeYear", "-4713-11-27", -4713, 11, 27, -2},
                                           ReadRow{"GroupedYear", "12'345-01-01", 12345, 1, 1, 6229972}),
                         RowName<ReadRow>);

TEST(LeapWeekText, ReadsTheDaysWhoseNumbersAreFailureCodesElsewhere) {
    LeapWeekDate date;
    EXPECT_EQ(ParseLpwText("-4713-48-6", date), kValid);
    EXPECT_EQ(date.jdn, -2);
    EXPECT_EQ(date.status, kLeapWeekOk);
    EXPECT_EQ(ParseLpwText("-4713-48-5", date), kValid);
    EXPECT_EQ(date.jdn, -3);
    EXPECT_EQ(date.status, kLeapWeekOk);
    EXPECT_EQ(ParseLpmText("-4713-11-26", date), kValid);
    EXPECT_EQ(date.jdn, -3);
    EXPECT_EQ(date.status, kLeapWeekOk);
}

struct RefusalRow {
    std::string name;
    std::string text;
    ParseStatus status = kNotValid;
};

void PrintTo(const RefusalRow& row, std::ostream* out) {
    *out << '"' << row.text.substr(0, 80) << '"';
}

class LeapWeekReadersRefuse : public ::testing::TestWithParam<RefusalRow> {};

TEST_P(LeapWeekReadersRefuse, InBothForms) {
    const RefusalRow& row = GetParam();
    LeapWeekDate week;
    EXPECT_EQ(ParseLpwText(row.text, week), row.status);
    EXPECT_EQ(week, LeapWeekDate{});
    LeapWeekDate month;
    EXPECT_EQ(ParseLpmText(row.text, month), row.status);
    EXPECT_EQ(month, LeapWeekDate{});
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LeapWeekReadersRefuse,
    ::testing::Values(
        RefusalRow{"NoHyphen", "2024021"}, RefusalRow{"OneHyphen", "2024-021"},
        RefusalRow{"ThreeHyphens", "2024-02-1-"}, RefusalRow{"TwoSigns", "--2024-02-1"},
        RefusalRow{"SignOfTheWeek", "2024--02-1"}, RefusalRow{"SignOfTheWeekday", "2024-02--1"},
        RefusalRow{"OnlySignForYearOfAMonth", "--01-08"}, RefusalRow{"OnlySignForYear", "--02-1"},
        RefusalRow{"NegativeWithoutThird", "-2024-02"}, RefusalRow{"EmptyWeek", "2024--1"},
        RefusalRow{"EmptyWeekday", "2024-02-"}, RefusalRow{"LettersOnly", "a-b-c"},
        RefusalRow{"Slashes", "2024/02/1"}, RefusalRow{"YearBeyond", "5800001-02-1", kOutOfRange},
        RefusalRow{"NegativeYearBeyond", "-5,800,001-02-1", kOutOfRange},
        RefusalRow{"YearBeyondBeforeEmptyWeek", "5800001--1", kOutOfRange},
        RefusalRow{"YearOfAMillionDigits", std::string(1'000'000, '9') + "-02-1", kOutOfRange},
        RefusalRow{"WeekBeyond16Bits", "2024-32768-1", kOutOfRange},
        RefusalRow{"WeekThatWouldWrapToTwo", "2024-65538-1", kOutOfRange},
        RefusalRow{"WeekdayBeyond16Bits", "2024-02-65537", kOutOfRange},
        RefusalRow{"WeekOfAMillionDigits", "2024-" + std::string(1'000'000, '9') + "-1", kOutOfRange},
        RefusalRow{"WeekdayOfAMillionDigits", "2024-02-" + std::string(1'000'000, '9'), kOutOfRange}),
    RowName<RefusalRow>);

TEST(ParseLpmText, RefusesMonthsAndDaysThatTheCalendarLacks) {
    for (const std::string_view text : {"2024-13-01", "2024-99-01", "2021-12-35", "2024-01-36", "2024-02-29",
                                        "2020-12-36", "2024-01-99", "2024-32767-1", "2024-1-32767"}) {
        LeapWeekDate date;
        EXPECT_EQ(ParseLpmText(text, date), kNotValid) << text;
        EXPECT_LT(date.status, 0) << text;
    }
}

TEST(ParseLpwText, DeliberatelyLeavesARefusedWeekdayToTheRecordsStatus) {
    for (const std::string_view text : {"2024-02-8", "2024-02-9", "2024-02-32767"}) {
        LeapWeekDate date;
        EXPECT_EQ(ParseLpwText(text, date), kValid) << text;
        EXPECT_EQ(date.status, kLeapWeekBadDay) << text;
    }
}

TEST(ParseLpwText, DeliberatelyLeavesTheWeekUnchecked) {
    LeapWeekDate date;
    EXPECT_EQ(ParseLpwText("2024-54-1", date), kValid);
    EXPECT_EQ(date.jdn, 2460675);
    EXPECT_EQ(date.week, 54);
    EXPECT_EQ(ParseLpwText("2024-00-1", date), kValid);
    EXPECT_EQ(date.jdn, 2460297);
    EXPECT_EQ(ParseLpwText("2024-32767-7", date), kValid);
    EXPECT_EQ(date.jdn, 2460304 + 32766 * 7 + 6);
    EXPECT_EQ(date.status, kLeapWeekOk);
}

TEST(LeapWeekText, DeliberatelyTakesWeekdayZeroMonthZeroAndDayZero) {
    LeapWeekDate date;
    EXPECT_EQ(ParseLpwText("2024-02-0", date), kValid);
    EXPECT_EQ(date.jdn, 2460310);
    EXPECT_EQ(ParseLpmText("2024-00-08", date), kValid);
    EXPECT_EQ(date.jdn, 2460311);
    EXPECT_EQ(ParseLpmText("2024-03-00", date), kValid);
    EXPECT_EQ(date.jdn, 2460366);
    EXPECT_EQ(ParseLpmText("2024-00-00", date), kValid);
    EXPECT_EQ(date.jdn, 2460303);
}

TEST(LeapWeekText, DeliberatelyRefusesDayNumberZero) {
    LeapWeekDate week;
    EXPECT_EQ(ParseLpwText("-4713-49-1", week), kNotValid);
    EXPECT_EQ(week.status, kLeapWeekOk) << "a real day, which its number hides";
    LeapWeekDate month;
    EXPECT_EQ(ParseLpmText("-4713-12-01", month), kNotValid);
    EXPECT_EQ(month.status, kLeapWeekOk);
}

TEST(LeapWeekText, DeliberatelyDropsForeignCharactersSilently) {
    using namespace std::string_literals;
    for (const std::string& text : {"2024-02-1 LPW"s, " 2024 - 02 - 1 "s, "2,0,2,4-02-1"s, "2024-02-1."s,
                                    "year 2024-week 02-day 1"s, "2024-\0"s + "02-1"s, "2024-02-1\u00a0"s}) {
        LeapWeekDate date;
        EXPECT_EQ(ParseLpwText(text, date), kValid) << text;
        EXPECT_EQ(date.jdn, 2460311) << text;
    }
    LeapWeekDate date;
    EXPECT_EQ(ParseLpmText("2024-01-08 LPM", date), kValid);
    EXPECT_EQ(date.jdn, 2460311);
}

TEST(LeapWeekText, RefusesHostileTextsOfAnyLength) {
    for (const std::string& text : HostileTexts()) {
        LeapWeekDate date;
        EXPECT_EQ(ParseLpwText(text, date), kNotValid);
        EXPECT_EQ(ParseLpmText(text, date), kNotValid);
        EXPECT_EQ(date, LeapWeekDate{});
    }
}

// --- writing ---

LeapWeekDate Date(std::int32_t year, std::int16_t second, std::int16_t third) {
    return {.year = year, .month = second, .day = third, .week = second, .weekday = third};
}

TEST(FormatLpwText, WritesYearWeekAndWeekday) {
    EXPECT_EQ(FormatLpwText(Date(2024, 2, 1), false, ","), "2024-02-1");
    EXPECT_EQ(FormatLpwText(Date(2024, 2, 1), true, ","), "2024-02-1 LPW");
    EXPECT_EQ(FormatLpwText(Date(1, 53, 7), true, ","), "1-53-7 LPW");
    EXPECT_EQ(FormatLpwText(Date(-44, 10, 0), false, ","), "-44-10-0");
    EXPECT_EQ(FormatLpwText(Date(2024, 540, 1), false, ","), "2024-540-1");
}

TEST(FormatLpmText, WritesYearMonthAndDay) {
    EXPECT_EQ(FormatLpmText(Date(2024, 1, 8), false, ","), "2024-01-08");
    EXPECT_EQ(FormatLpmText(Date(2024, 1, 8), true, ","), "2024-01-08 LPM");
    EXPECT_EQ(FormatLpmText(Date(0, 12, 35), true, ","), "0-12-35 LPM");
    EXPECT_EQ(FormatLpmText(Date(-4713, 0, 0), false, ","), "-4713-00-00");
}

struct GroupingRow {
    std::string name;
    std::int32_t year;
    std::string grouping;
    std::string text;  // of the year
};

void PrintTo(const GroupingRow& row, std::ostream* out) {
    *out << '"' << row.text << '"';
}

class LeapWeekYearWith : public ::testing::TestWithParam<GroupingRow> {};

TEST_P(LeapWeekYearWith, TheSystemsGrouping) {
    const GroupingRow& row = GetParam();
    EXPECT_EQ(FormatLpwText(Date(row.year, 2, 1), false, row.grouping), row.text + "-02-1");
    EXPECT_EQ(FormatLpmText(Date(row.year, 2, 1), true, row.grouping), row.text + "-02-01 LPM");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LeapWeekYearWith,
    ::testing::Values(GroupingRow{"FourDigits", 9999, ",", "9999"},
                      GroupingRow{"FourNegativeDigits", -9999, ",", "-9999"},
                      GroupingRow{"FiveDigits", 10000, ",", "10,000"},
                      GroupingRow{"FiveNegativeDigits", -10000, ".", "-10.000"},
                      GroupingRow{"SixNegativeDigits", -123456, ",", "-123,456"},
                      GroupingRow{"SevenDigits", 5'800'000, "'", "5'800'000"},
                      GroupingRow{"NarrowBlank", -5'754'317, "\u202f", "-5\u202f754\u202f317"},
                      GroupingRow{"None", 12345, "", "12345"},
                      GroupingRow{"SmallestNumber", -2147483647 - 1, ",", "-2,147,483,648"}),
    RowName<GroupingRow>);

}  // namespace
}  // namespace calvoro
