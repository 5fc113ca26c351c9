#include "datetext/StrToDate.h"

#include <string>

#include "tests/datetext/TextRows.h"

namespace calvoro {
namespace {

constexpr std::int32_t kMDY = 0;
constexpr std::int32_t kDMY = 1;
constexpr std::int32_t kYMD = 2;

struct GoodRow {
    std::string name;
    std::string text;
    std::int32_t format;
    std::int32_t calendar;
    std::int32_t year;
    std::int32_t month;
    std::int32_t day;
};

void PrintTo(const GoodRow& row, std::ostream* out) {
    *out << '"' << row.text << '"';
}

class StrToDateReads : public ::testing::TestWithParam<GoodRow> {};

TEST_P(StrToDateReads, YearMonthDayAndCalendar) {
    const GoodRow& row = GetParam();
    DateRecord record;
    record.jdn = 17;
    EXPECT_EQ(str_to_date(row.text, row.format, record, row.calendar), kStrToDateOk);
    const DateRecord expected{row.year, row.month, row.day, static_cast<CalendarCode>(row.calendar), 17, 0};
    EXPECT_EQ(record, expected) << record.year << ' ' << record.month << ' ' << record.day;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, StrToDateReads,
    ::testing::Values(GoodRow{"YearFirst", "2024-03-15", kYMD, 'G', 2024, 3, 15},
                      GoodRow{"DayFirst", "15-03-2024", kDMY, 'G', 2024, 3, 15},
                      GoodRow{"MonthFirst", "03-15-2024", kMDY, 'G', 2024, 3, 15},
                      GoodRow{"Slashes", "2024/3/5", kYMD, 'G', 2024, 3, 5},
                      GoodRow{"Dots", "5.3.2024", kDMY, 'G', 2024, 3, 5},
                      GoodRow{"NegativeYearFirst", "-44-03-15", kYMD, 'G', -44, 3, 15},
                      GoodRow{"NegativeYearLastAfterHyphen", "15-03--44", kDMY, 'G', -44, 3, 15},
                      GoodRow{"NegativeYearLastAfterSlash", "03/15/-44", kMDY, 'G', -44, 3, 15},
                      GoodRow{"NegativeYearFirstWithDots", "-44.03.15", kYMD, 'G', -44, 3, 15},
                      GoodRow{"YearZero", "0-02-29", kYMD, 'G', 0, 2, 29},
                      GoodRow{"MinusZeroIsYearZero", "-0-02-29", kYMD, 'G', 0, 2, 29},
                      GoodRow{"LeadingZerosOfAnyLength", std::string(50, '0') + "2024-0003-00015", kYMD, 'G',
                              2024, 3, 15},
                      GoodRow{"JulianLeapDay", "1900-02-29", kYMD, 'J', 1900, 2, 29},
                      GoodRow{"JulianLeapDayBeforeYearZero", "-100-02-29", kYMD, 'J', -100, 2, 29},
                      GoodRow{"NoCalendarCountsAsCommonEra", "2000-02-29", kYMD, 0, 2000, 2, 29},
                      GoodRow{"LargestYear", "5800000-12-31", kYMD, 'G', 5'800'000, 12, 31},
                      GoodRow{"SmallestYear", "-5800000-01-01", kYMD, 'J', -5'800'000, 1, 1},
                      GoodRow{"OneHyphenAmongSlashesMaySeparate", "2024/03-15", kYMD, 'G', 2024, 3, 15}),
    RowName<GoodRow>);

struct BadRow {
    std::string name;
    std::string text;
    std::int32_t format = kYMD;
    std::int32_t calendar = 'G';
};

void PrintTo(const BadRow& row, std::ostream* out) {
    *out << '"' << row.text.substr(0, 80) << '"';
}

class StrToDateRefuses : public ::testing::TestWithParam<BadRow> {};

TEST_P(StrToDateRefuses, AndLeavesTheRecordAlone) {
    const BadRow& row = GetParam();
    const DateRecord before{1, 2, 3, CalendarCode::V, 4, 0};
    DateRecord record = before;
    const std::int32_t result = str_to_date(row.text, row.format, record, row.calendar);
    EXPECT_NE(result, kStrToDateOk);
    EXPECT_NE(result, kStrToDateYearOutOfRange);
    EXPECT_EQ(record, before);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, StrToDateRefuses,
    ::testing::Values(
        BadRow{"Empty", ""}, BadRow{"OneField", "2024"}, BadRow{"TwoFields", "2024-03"},
        BadRow{"FourFields", "2024-03-15-1"}, BadRow{"SeparatorAtTheEnd", "2024-03-15-"},
        BadRow{"EmptyYear", "-03-15"}, BadRow{"EmptyMonth", "2024//15"}, BadRow{"EmptyDay", "2024-03-"},
        BadRow{"SignOnTheMonth", "2024--03-15"}, BadRow{"SignOnTheDay", "2024-03--15"},
        BadRow{"SignOnTheFirstDay", "-15-03-2024", kDMY}, BadRow{"TwoSigns", "--44-03-15"},
        BadRow{"SignWithoutDigits", "15-03--", kDMY}, BadRow{"SignBehindTheYear", "44--03-15"},
        BadRow{"MonthZero", "2024-00-15"}, BadRow{"Month13", "2024-13-15"}, BadRow{"DayZero", "2024-03-00"},
        BadRow{"Day32", "2024-03-32"}, BadRow{"April31", "2024-04-31"}, BadRow{"NoLeapDay", "2023-02-29"},
        BadRow{"CenturyNoLeapDay", "1900-02-29"}, BadRow{"CenturyBeforeYearZero", "-100-02-29"},
        BadRow{"February30Julian", "1900-02-30", kYMD, 'J'},
        BadRow{"EndlessMonth", "2024-" + std::string(1000, '9') + "-15"},
        BadRow{"EndlessDay", "2024-03-" + std::string(1000, '9')}, BadRow{"TwoOtherSeparators", "2024/03.15"},
        BadRow{"ForeignSeparator", "2024x03x15"}, BadRow{"Blank", " 2024-03-15"},
        BadRow{"NoSuchFormat", "2024-03-15", 3}, BadRow{"NegativeFormat", "2024-03-15", -1}),
    RowName<BadRow>);

TEST(StrToDate, PutsAYearBeyondTheLimitOutOfRange) {
    DateRecord record;
    EXPECT_EQ(str_to_date("5800001-01-01", kYMD, record, 'G'), kStrToDateYearOutOfRange);
    EXPECT_EQ(str_to_date("-5800001-01-01", kYMD, record, 'G'), kStrToDateYearOutOfRange);
    EXPECT_EQ(str_to_date("01/01/" + std::string(1'000'000, '9'), kMDY, record, 'G'),
              kStrToDateYearOutOfRange);
    EXPECT_EQ(str_to_date("01/01/-" + std::string(1'000'000, '9'), kMDY, record, 'J'),
              kStrToDateYearOutOfRange);
    EXPECT_EQ(record, DateRecord{});
}

TEST(StrToDate, LooksAtMonthAndDayBeforeTheYearAndAtTheMonthsLengthAfterIt) {
    DateRecord record;
    for (const std::string_view implausible :
         {"5800001-00-01", "5800001-13-01", "5800001-01-00", "5800001-01-32", "-5800001-00-00"}) {
        const std::int32_t result = str_to_date(implausible, kYMD, record, 'G');
        EXPECT_NE(result, kStrToDateOk) << implausible;
        EXPECT_NE(result, kStrToDateYearOutOfRange) << implausible;
    }
    EXPECT_EQ(str_to_date("5800001-01-01", kYMD, record, 'G'), kStrToDateYearOutOfRange);
    EXPECT_EQ(str_to_date("5800001-12-31", kYMD, record, 'G'), kStrToDateYearOutOfRange);
    EXPECT_EQ(str_to_date("5800001-02-31", kYMD, record, 'G'), kStrToDateYearOutOfRange);
}

TEST(StrToDate, KnowsTheLengthOfEveryMonth) {
    constexpr std::int32_t kLengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    int months = 0;
    for (const std::int32_t year : {2023, 2024, 1900, 2000, -4, -100}) {
        for (const char calendar : {'G', 'J'}) {
            for (std::int32_t month = 1; month <= 12; ++month) {
                const bool leap = year % 4 == 0 && (calendar == 'J' || year % 100 != 0 || year % 400 == 0);
                const std::int32_t length = kLengths[month - 1] + (leap && month == 2 ? 1 : 0);
                const std::string front = std::to_string(year) + "/" + std::to_string(month) + "/";
                DateRecord record;
                EXPECT_EQ(str_to_date(front + std::to_string(length), kYMD, record, calendar), kStrToDateOk);
                EXPECT_NE(str_to_date(front + std::to_string(length + 1), kYMD, record, calendar),
                          kStrToDateOk);
                ++months;
            }
        }
    }
    EXPECT_EQ(months, 6 * 2 * 12);
}

TEST(StrToDate, RefusesHostileTextsOfAnyLength) {
    for (const std::string& text : HostileTexts()) {
        for (std::int32_t format = kMDY; format <= kYMD; ++format) {
            DateRecord record;
            EXPECT_NE(str_to_date(text, format, record, 'G'), kStrToDateOk);
            EXPECT_EQ(record, DateRecord{});
        }
    }
}

}  // namespace
}  // namespace calvoro
