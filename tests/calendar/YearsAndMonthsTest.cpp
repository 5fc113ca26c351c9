#include "calendar/YearsAndMonths.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "calendar/CheckedInt.h"
#include "calendar/EuroDate.h"
#include "tests/calendar/Records.h"
#include "tests/support/Limits32.h"
#include "tests/support/RowName.h"

namespace calvoro {

namespace {

struct DayOfYearRow {
    const char* name;
    DateRecord date;
    std::int16_t day;
};

void PrintTo(const DayOfYearRow& row, std::ostream* out) {
    *out << row.name;
}

constexpr DayOfYearRow kDaysOfYear[] = {
    {"NewYear", On(CalendarCode::G, 2024, 1, 1), 1},
    {"LastOfLeapYear", On(CalendarCode::G, 2024, 12, 31), 366},
    {"LastOfPlainYear", On(CalendarCode::G, 2023, 12, 31), 365},
    {"AfterLeapDay", On(CalendarCode::G, 2024, 3, 1), 61},
    {"AfterPlainFebruary", On(CalendarCode::G, 1900, 3, 1), 60},
    {"JulianKeepsItsCalendar", On(CalendarCode::J, 1900, 3, 1), 61},
    {"JulianLastOf1900", On(CalendarCode::J, 1900, 12, 31), 366},
    {"UnsetIsCommonEra", On(CalendarCode::Unset, 1900, 12, 31), 365},
    {"YearZero", On(CalendarCode::G, 0, 12, 31), 366},
    {"NegativeYear", On(CalendarCode::J, -1, 12, 31), 365},
};

struct LengthRow {
    const char* name;
    DateRecord date;
    std::int16_t length;
};

void PrintTo(const LengthRow& row, std::ostream* out) {
    *out << row.name;
}

constexpr LengthRow kLengths[] = {
    {"January", On(CalendarCode::G, 2023, 1, 0), 31},
    {"February", On(CalendarCode::G, 2023, 2, 99), 28},
    {"LeapFebruary", On(CalendarCode::G, 2024, 2, 31), 29},
    {"April", On(CalendarCode::G, 2023, 4, 1), 30},
    {"December", On(CalendarCode::G, 2023, 12, 1), 31},
    {"DecemberBeforeYearZero", On(CalendarCode::G, -1, 12, 1), 31},
    {"February1900", On(CalendarCode::G, 1900, 2, 1), 28},
    {"JulianFebruary1900", On(CalendarCode::J, 1900, 2, 1), 29},
    {"UnsetFebruary1900", On(CalendarCode::Unset, 1900, 2, 1), 28},
    {"JulianFebruaryMinus100", On(CalendarCode::J, -100, 2, 1), 29},
    {"FebruaryMinus100", On(CalendarCode::G, -100, 2, 1), 28},
};

struct DistanceRow {
    const char* name;
    DateRecord first, second;
    std::int32_t years;
    std::int16_t days;
};

void PrintTo(const DistanceRow& row, std::ostream* out) {
    *out << row.name;
}

constexpr DistanceRow kDistances[] = {
    {"SameDay", On(CalendarCode::G, 2021, 5, 5), On(CalendarCode::G, 2021, 5, 5), 0, 0},
    {"MadeGoodWithALeapYear", On(CalendarCode::G, 2020, 3, 1), On(CalendarCode::G, 2021, 2, 28), 0, 364},
    {"MadeGoodWithAPlainYear", On(CalendarCode::G, 2021, 3, 1), On(CalendarCode::G, 2022, 2, 28), 0, 364},
    {"OneYear", On(CalendarCode::G, 2021, 3, 1), On(CalendarCode::G, 2022, 3, 1), 1, 0},
    {"LeapDayIsDaySixty", On(CalendarCode::G, 2020, 2, 29), On(CalendarCode::G, 2021, 3, 1), 1, 0},
    {"AcrossYearZero", On(CalendarCode::G, -1, 12, 31), On(CalendarCode::G, 1, 1, 1), 1, 2},
    {"Backwards", On(CalendarCode::G, 2022, 3, 1), On(CalendarCode::G, 2021, 3, 1), -1, 0},
};

}  // namespace

class DayOfYearOf : public ::testing::TestWithParam<DayOfYearRow> {};

TEST_P(DayOfYearOf, IsCountedInItsCalendar) {
    DateRecord record = GetParam().date;
    EXPECT_EQ(DayOfYear(record), GetParam().day);
}

TEST_P(DayOfYearOf, RefreshesTheDayNumberAlone) {
    DateRecord record = GetParam().date;
    DateRecord expected = record;
    euro_date_to_jdn(expected);
    record.jdn = -5;
    DayOfYear(record);
    EXPECT_EQ(record, expected);
}

INSTANTIATE_TEST_SUITE_P(Dates, DayOfYearOf, ::testing::ValuesIn(kDaysOfYear), RowName<DayOfYearRow>);

TEST(DayOfYear, IsZeroInACalendarWithoutConversions) {
    DateRecord record = On(CalendarCode::A, 2024, 1, 31);
    const DateRecord before = record;
    EXPECT_EQ(DayOfYear(record), 0);
    EXPECT_EQ(record, before);
}

TEST(DayOfYear, RefusesADayThatDoesNotFit) {
    DateRecord tooManyDays = On(CalendarCode::G, 2024, 1, 32'768);
    EXPECT_THROW(DayOfYear(tooManyDays), ArithmeticOverflow);
    DateRecord tooLate = On(CalendarCode::G, 5'900'000, 1, 1);
    EXPECT_THROW(DayOfYear(tooLate), ArithmeticOverflow);
}

TEST(DaysInYear, Has366InLeapYearsOnly) {
    std::int32_t status = 0;
    EXPECT_EQ(DaysInYear(2000, status), 366);
    EXPECT_EQ(DaysInYear(2024, status), 366);
    EXPECT_EQ(DaysInYear(2023, status), 365);
    EXPECT_EQ(DaysInYear(0, status), 366);
    EXPECT_EQ(DaysInYear(-1, status), 365);
    EXPECT_EQ(DaysInYear(-4, status), 366);
    EXPECT_EQ(status, 0);
}

TEST(DaysInYearDeliberate, CountsByTheCommonEraWhateverTheCallersCalendar) {
    std::int32_t status = 0;
    EXPECT_EQ(DaysInYear(1900, status), 365);
    EXPECT_EQ(DaysInYear(-100, status), 365);
    // So a Julian distance across the end of 1900 is made good with a year that is a day too short.
    DateRecord first = On(CalendarCode::J, 1900, 12, 31);
    DateRecord second = On(CalendarCode::J, 1901, 1, 1);
    std::int32_t years = 9;
    std::int16_t days = 9;
    YearsAndDays(first, second, years, days, status);
    EXPECT_EQ(years, 0);
    EXPECT_EQ(days, 0);
    EXPECT_EQ(status, 0);
}

TEST(DaysInYear, RefusesYearsThatLeaveTheRange) {
    std::int32_t status = 0;
    EXPECT_THROW(DaysInYear(kLargest, status), ArithmeticOverflow);  // there is no next year
    EXPECT_EQ(status, 0);
    EXPECT_THROW(DaysInYear(kSmallest, status), ArithmeticOverflow);
    EXPECT_EQ(status, 2);
}

class MonthLength : public ::testing::TestWithParam<LengthRow> {};

TEST_P(MonthLength, ComesFromYearMonthAndCalendarAlone) {
    std::int32_t status = 0;
    EXPECT_EQ(DaysInMonth(GetParam().date, status), GetParam().length);
    EXPECT_EQ(status, 0);
}

INSTANTIATE_TEST_SUITE_P(Of, MonthLength, ::testing::ValuesIn(kLengths), RowName<LengthRow>);

TEST(DaysInMonth, PassesOnThatARecordCannotBeConverted) {
    for (const std::int32_t month : {1, 10, 12}) {
        std::int32_t status = 0;
        EXPECT_EQ(DaysInMonth(On(CalendarCode::A, 7, month, 1), status), 0);
        EXPECT_EQ(status, 1);
    }
}

TEST(DaysInMonth, RefusesMonthsThatLeaveTheRange) {
    std::int32_t status = 0;
    EXPECT_THROW(DaysInMonth(On(CalendarCode::G, kLargest, 12, 1), status), ArithmeticOverflow);
    EXPECT_THROW(DaysInMonth(On(CalendarCode::G, 2024, kLargest, 1), status), ArithmeticOverflow);
    EXPECT_EQ(status, 0);
    EXPECT_THROW(DaysInMonth(On(CalendarCode::G, kSmallest, 1, 1), status), ArithmeticOverflow);
    EXPECT_EQ(status, 2);
}

class YearsAndDaysBetween : public ::testing::TestWithParam<DistanceRow> {};

TEST_P(YearsAndDaysBetween, IsWhatTheStepsGive) {
    DateRecord first = GetParam().first;
    DateRecord second = GetParam().second;
    std::int32_t years = 99;
    std::int16_t days = 99;
    std::int32_t status = 99;
    YearsAndDays(first, second, years, days, status);
    EXPECT_EQ(years, GetParam().years);
    EXPECT_EQ(days, GetParam().days);
    EXPECT_EQ(status, 0);
}

INSTANTIATE_TEST_SUITE_P(Dates, YearsAndDaysBetween, ::testing::ValuesIn(kDistances), RowName<DistanceRow>);

TEST(YearsAndDaysDeliberate, CorrectsOnceAndNoMore) {
    // The dates lie in different calendars: the Julian day of the year is a day ahead, and the Common Era
    // year that is added is a day short, so that the two days apart vanish.
    DateRecord first = On(CalendarCode::J, 1900, 12, 31);
    DateRecord second = On(CalendarCode::G, 1901, 1, 1);
    std::int32_t years = 9;
    std::int16_t days = 9;
    std::int32_t status = 9;
    YearsAndDays(first, second, years, days, status);
    EXPECT_EQ(years, 0);
    EXPECT_EQ(days, 0);
    // A second date before the first leaves the years negative.
    first = On(CalendarCode::G, 2021, 3, 2);
    second = On(CalendarCode::G, 2020, 3, 1);
    YearsAndDays(first, second, years, days, status);
    EXPECT_EQ(years, -1);
    EXPECT_EQ(days, 0);
    first = On(CalendarCode::G, 2021, 12, 31);
    second = On(CalendarCode::G, 2021, 1, 1);
    YearsAndDays(first, second, years, days, status);
    EXPECT_EQ(years, -1);
    EXPECT_EQ(days, 2);
}

TEST(YearsAndDays, RefreshesTheDayNumbersOfBothRecords) {
    DateRecord first = On(CalendarCode::G, 2020, 3, 1);
    DateRecord second = On(CalendarCode::G, 2021, 2, 28);
    std::int32_t years = 0;
    std::int16_t days = 0;
    std::int32_t status = 0;
    YearsAndDays(first, second, years, days, status);
    EXPECT_EQ(first.jdn, 2458910);
    EXPECT_EQ(second.jdn, 2459274);
}

TEST(YearsAndDays, PassesOnThatARecordCannotBeConverted) {
    DateRecord good = On(CalendarCode::G, 2021, 2, 28);
    DateRecord bad = On(CalendarCode::A, 2020, 3, 1);
    for (const bool badFirst : {true, false}) {
        std::int32_t years = 9;
        std::int16_t days = 9;
        std::int32_t status = 9;
        YearsAndDays(badFirst ? bad : good, badFirst ? good : bad, years, days, status);
        EXPECT_EQ(years, 0);
        EXPECT_EQ(days, 0);
        EXPECT_EQ(status, 1);
    }
}

TEST(YearsAndDays, RaisesOverflow) {
    DateRecord first = On(CalendarCode::G, 5'900'000, 1, 1);
    DateRecord second = On(CalendarCode::G, 2021, 2, 28);
    std::int32_t years = 0;
    std::int16_t days = 0;
    std::int32_t status = 0;
    EXPECT_THROW(YearsAndDays(first, second, years, days, status), ArithmeticOverflow);
    EXPECT_THROW(YearsAndDays(second, first, years, days, status), ArithmeticOverflow);
}

TEST(IsLeapYear, FollowsTheRuleOfItsCalendar) {
    struct {
        std::int32_t year;
        bool commonEra, julian;
    } constexpr kYears[] = {
        {2024, true, true},       {2023, false, false},    {1900, false, true},     {2000, true, true},
        {0, true, true},          {-4, true, true},        {-400, true, true},      {-100, false, true},
        {-1, false, false},       {1, false, false},       {5'800'000, true, true}, {-5'800'100, false, true},
        {kLargest, false, false}, {kSmallest, true, true},
    };
    for (const auto& [year, commonEra, julian] : kYears) {
        EXPECT_EQ(IsLeapYear(year, "CE"), commonEra) << year;
        EXPECT_EQ(IsLeapYear(year, "G"), commonEra) << year;
        EXPECT_EQ(IsLeapYear(year, "JC"), julian) << year;
    }
}

TEST(IsLeapYearDeliberate, GoesByTheFirstLetterInAnyCase) {
    for (const char* text : {"J", "j", "JC", "jc", "JDN", "julian", "January"}) {
        EXPECT_TRUE(IsLeapYear(1900, text)) << text;
    }
    for (const char* text : {"", "CE", "ISO", " J", "xJ", "ORD"}) {
        EXPECT_FALSE(IsLeapYear(1900, text)) << text;
    }
}

}  // namespace calvoro
