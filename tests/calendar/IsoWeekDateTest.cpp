#include "calendar/IsoWeekDate.h"

#include <gtest/gtest.h>

#include <array>
#include <ostream>
#include <string>

#include "calendar/CheckedInt.h"
#include "tests/calendar/Records.h"
#include "tests/support/Limits32.h"
#include "tests/support/RowName.h"

namespace calvoro {

namespace {

struct WeekRow {
    const char* name;
    std::int32_t year, week, day, jdn;
};

void PrintTo(const WeekRow& row, std::ostream* out) {
    *out << row.name;
}

constexpr WeekRow kWeeks[] = {
    {"FridayOfWeek53", 2020, 53, 5, 2459216},            // 1 January 2021
    {"MondayAfterWeek53", 2021, 1, 1, 2459219},          // 4 January 2021
    {"DecemberDayOfTheNextYear", 2015, 1, 1, 2457021},   // 29 December 2014
    {"SundayOfWeek52", 2022, 52, 7, 2459946},            // 1 January 2023
    {"MondayAfterASundayNewYear", 2023, 1, 1, 2459947},  // 2 January 2023
    {"ThursdayNewYear", 2026, 1, 4, 2461042},            // 1 January 2026
    {"LastDayOfALongYear", 2026, 53, 7, 2461409},        // 3 January 2027
    {"FirstDayOfYearOne", 1, 1, 1, 1721426},
    {"LastDayOfYearZero", 0, 52, 7, 1721425},
    {"Week53BelowYearOne", -2, 53, 5, 1720695},  // 1 January -1, a Friday
    {"DayZero", -4713, 48, 1, 0},
};

struct WeekOneRow {
    const char* name;
    std::int32_t year, jdn;
};

void PrintTo(const WeekOneRow& row, std::ostream* out) {
    *out << row.name;
}

// One year for each weekday of 1 January.
constexpr WeekOneRow kWeekOnes[] = {
    {"NewYearOnMonday2024", 2024, 2460311},
    {"NewYearOnTuesday2019", 2019, 2458484},
    {"NewYearOnWednesday2020", 2020, 2458848},
    {"NewYearOnThursday2026", 2026, 2461039},
    {"NewYearOnFriday2021", 2021, 2459219},
    {"NewYearOnSaturday2022", 2022, 2459583},
    {"NewYearOnSunday2023", 2023, 2459947},
    {"YearOne", 1, 1721426},
    {"YearZero", 0, 1721062},
};

struct DifferenceRow {
    const char* name;
    std::array<std::int32_t, 3> first, second;  // year, week, day
    std::array<std::int32_t, 3> expected;       // years, weeks, days
    std::int32_t status;
};

void PrintTo(const DifferenceRow& row, std::ostream* out) {
    *out << row.name;
}

constexpr DifferenceRow kDifferences[] = {
    {"SameDay", {2021, 10, 3}, {2021, 10, 3}, {0, 0, 0}, 0},
    {"OneYear", {2021, 1, 1}, {2022, 1, 1}, {1, 0, 0}, 0},
    {"YearsWeeksDays", {2020, 10, 2}, {2023, 12, 5}, {3, 2, 3}, 0},
    {"WeeksAlone", {2021, 10, 3}, {2021, 12, 3}, {0, 2, 0}, 0},
    {"YearBeforeWithLaterWeekAndDay", {2022, 10, 3}, {2021, 12, 5}, {-1, 2, 2}, -1},
    {"BorrowsAWeek", {2021, 10, 5}, {2021, 12, 3}, {0, 1, 5}, 0},
    {"BorrowsTheOnlyWeek", {2021, 10, 5}, {2021, 11, 3}, {0, 0, 5}, 0},
    {"BorrowsAYear", {2021, 50, 2}, {2022, 3, 4}, {0, 5, 2}, 0},
    {"BorrowsALongYear", {2020, 50, 2}, {2021, 3, 4}, {0, 6, 2}, 0},
    {"BorrowsAYearAndAWeek", {2021, 50, 4}, {2022, 3, 2}, {0, 4, 5}, 0},
    {"BorrowsALongYearAndAWeek", {2020, 50, 4}, {2021, 3, 2}, {0, 5, 5}, 0},
    {"Week53ToWeek53", {2015, 53, 1}, {2020, 53, 1}, {5, 0, 0}, 0},
    {"YearBefore", {2022, 1, 1}, {2021, 1, 1}, {-1, 0, 0}, -1},
    {"WeekBefore", {2021, 10, 3}, {2021, 9, 3}, {-1, 51, 0}, -1},
    {"DayBefore", {2021, 10, 3}, {2021, 10, 2}, {-1, 52, 6}, -1},
    {"WeekAndDayBefore", {2021, 10, 3}, {2021, 9, 2}, {-1, 50, 6}, -1},
    {"AcrossYearZero", {-1, 20, 1}, {1, 20, 1}, {2, 0, 0}, 0},
};

struct Difference {
    std::int32_t years = 99;
    std::int16_t weeks = 99;
    std::int16_t days = 99;
    std::int32_t status = 99;
};

Difference Between(const std::array<std::int32_t, 3>& first, const std::array<std::int32_t, 3>& second) {
    const IsoWeekDate from{.year = first[0], .week = first[1], .day = first[2]};
    const IsoWeekDate to{.year = second[0], .week = second[1], .day = second[2]};
    Difference result;
    IsoDifference(from, to, result.years, result.weeks, result.days, result.status);
    return result;
}

}  // namespace

class IsoWeek : public ::testing::TestWithParam<WeekRow> {};

TEST_P(IsoWeek, HasItsDayNumber) {
    const WeekRow& row = GetParam();
    IsoWeekDate date{.year = row.year, .week = row.week, .day = row.day, .jdn = 3, .set = 1};
    IsoWeekDateToJdn(date);
    EXPECT_EQ(date,
              (IsoWeekDate{.year = row.year, .week = row.week, .day = row.day, .jdn = row.jdn, .set = 1}));
}

TEST_P(IsoWeek, IsFoundFromItsDayNumber) {
    const WeekRow& row = GetParam();
    IsoWeekDate date{.year = 3, .week = 3, .day = 3, .jdn = row.jdn, .set = 1};
    JdnToIsoWeekDate(date);
    EXPECT_EQ(date,
              (IsoWeekDate{.year = row.year, .week = row.week, .day = row.day, .jdn = row.jdn, .set = 1}));
}

INSTANTIATE_TEST_SUITE_P(Of, IsoWeek, ::testing::ValuesIn(kWeeks), RowName<WeekRow>);

class IsoWeekOne : public ::testing::TestWithParam<WeekOneRow> {};

TEST_P(IsoWeekOne, StartsOnTheMondayOfTheFirstThursday) {
    EXPECT_EQ(IsoWeekOneStart(GetParam().year), GetParam().jdn);
}

INSTANTIATE_TEST_SUITE_P(Of, IsoWeekOne, ::testing::ValuesIn(kWeekOnes), RowName<WeekOneRow>);

TEST(HasWeek53, HoldsForYearsWith53Thursdays) {
    for (const std::int32_t year : {2015, 2020, 2026, 4, 9}) EXPECT_TRUE(HasWeek53(year)) << year;
    for (const std::int32_t year : {2021, 2024, 2019, 2022, 2023, 2025, 1, 2, 3}) {
        EXPECT_FALSE(HasWeek53(year)) << year;
    }
}

TEST(HasWeek53Deliberate, IsNeverTrueBelowYearOne) {
    int longYears = 0;
    for (std::int32_t year = 0; year > -4000; --year) {
        EXPECT_FALSE(HasWeek53(year)) << year;
        // The conversion goes on producing the week that the test denies.
        IsoWeekDate lastDay{.jdn = IsoWeekOneStart(year + 1) - 1};
        JdnToIsoWeekDate(lastDay);
        ASSERT_EQ(lastDay.year, year);
        if (lastDay.week == 53) ++longYears;
    }
    EXPECT_EQ(longYears, 710);  // 71 in every 400 years
    EXPECT_FALSE(HasWeek53(kSmallest));
}

TEST(HasWeek53, RepeatsAfter400YearsToTheEnd) {
    int compared = 0;
    for (std::int32_t year = kLargest - 399; year > 0; year += 1) {
        EXPECT_EQ(HasWeek53(year), HasWeek53(year - 400 * 5'000'000)) << year;
        ++compared;
        if (year == kLargest) break;
    }
    EXPECT_EQ(compared, 400);
}

class IsoDifferenceBetween : public ::testing::TestWithParam<DifferenceRow> {};

TEST_P(IsoDifferenceBetween, IsWhatTheStepsGive) {
    const DifferenceRow& row = GetParam();
    const Difference result = Between(row.first, row.second);
    EXPECT_EQ(result.years, row.expected[0]);
    EXPECT_EQ(result.weeks, row.expected[1]);
    EXPECT_EQ(result.days, row.expected[2]);
    EXPECT_EQ(result.status, row.status);
}

INSTANTIATE_TEST_SUITE_P(Dates, IsoDifferenceBetween, ::testing::ValuesIn(kDifferences),
                         RowName<DifferenceRow>);

TEST(IsoDifferenceDeliberate, ALentYearGivesAllItsWeeksToEqualWeeks) {
    // A week of the year lent is lent to the days as well, yet all of its weeks are counted.
    const Difference fromLongYear = Between({2020, 10, 5}, {2021, 10, 3});
    EXPECT_EQ(fromLongYear.years, 0);
    EXPECT_EQ(fromLongYear.weeks, 53);
    EXPECT_EQ(fromLongYear.days, 5);
    EXPECT_EQ(fromLongYear.status, 0);
    const Difference fromShortYear = Between({2021, 10, 5}, {2022, 10, 3});
    EXPECT_EQ(fromShortYear.years, 0);
    EXPECT_EQ(fromShortYear.weeks, 52);
    EXPECT_EQ(fromShortYear.days, 5);
}

TEST(IsoDifferenceDeliberate, WeeksLentAreThoseOfTheFirstDatesYear) {
    // 2020 has 53 weeks, whatever the length of the years up to the second date.
    const Difference fromLongYear = Between({2020, 30, 1}, {2024, 20, 1});
    EXPECT_EQ(fromLongYear.years, 3);
    EXPECT_EQ(fromLongYear.weeks, 43);
    EXPECT_EQ(fromLongYear.days, 0);
    // Below year 1 no year counts as long.
    const Difference fromYearMinusTwo = Between({-2, 30, 1}, {1, 20, 1});
    EXPECT_EQ(fromYearMinusTwo.years, 2);
    EXPECT_EQ(fromYearMinusTwo.weeks, 42);
}

TEST(IsoDifference, TellsAnyCountThatStaysNegative) {
    // Year 0 has a week 53 of which the rule for long years knows nothing, so that two weeks too many are
    // lent.
    const Difference weeks = Between({0, 53, 7}, {2, 1, 1});
    EXPECT_EQ(weeks.years, 1);
    EXPECT_EQ(weeks.weeks, -1);
    EXPECT_EQ(weeks.days, 1);
    EXPECT_EQ(weeks.status, -1);
    // Days that no week has: a week is lent, then a year, and no more.
    const Difference days = Between({2020, 10, 20}, {2022, 11, 1});
    EXPECT_EQ(days.years, 1);
    EXPECT_EQ(days.weeks, 53);
    EXPECT_EQ(days.days, -5);
    EXPECT_EQ(days.status, -1);
}

TEST(IsoDifference, RaisesOverflow) {
    EXPECT_THROW(Between({kSmallest, 1, 1}, {1, 1, 1}), ArithmeticOverflow);
    EXPECT_THROW(Between({1, kSmallest, 1}, {1, 1, 1}), ArithmeticOverflow);
    EXPECT_THROW(Between({1, 1, kSmallest}, {1, 1, 1}), ArithmeticOverflow);
    EXPECT_THROW(Between({1, 1, 1}, {1, 40'000, 1}), ArithmeticOverflow);
    EXPECT_THROW(Between({1, 1, 1}, {1, 1, 40'000}), ArithmeticOverflow);
}

TEST(IsoWeekAtTheEndsOf32Bits, ComesBackAndRefusesTheDayBeyond) {
    for (const std::int32_t sign : {1, -1}) {
        for (std::int32_t steps = 0; steps < 800; ++steps) {
            const std::int32_t jdn = (sign > 0 ? kLargest : kSmallest) - sign * steps;
            const std::int32_t cycles = sign * 14'000;
            IsoWeekDate date{.jdn = jdn};
            IsoWeekDate earlier{.jdn = jdn - cycles * 146'097};
            JdnToIsoWeekDate(date);
            JdnToIsoWeekDate(earlier);
            ASSERT_EQ(date.year, earlier.year + 400 * cycles);
            ASSERT_EQ(date.week, earlier.week);
            ASSERT_EQ(date.day, earlier.day);
            date.jdn = 0;
            IsoWeekDateToJdn(date);
            ASSERT_EQ(date.jdn, jdn);
            if (steps == 0) {
                date.day += sign;
                EXPECT_THROW(IsoWeekDateToJdn(date), ArithmeticOverflow);
            }
        }
    }
}

TEST(IsoWeekAtTheEndsOf32Bits, RefusesYearsThatDoNotFit) {
    for (const std::int32_t year : {kLargest, kSmallest, 5'900'000, -5'900'000}) {
        EXPECT_THROW(IsoWeekOneStart(year), ArithmeticOverflow) << year;
        IsoWeekDate date{.year = year, .week = 1, .day = 1, .jdn = 42};
        EXPECT_THROW(IsoWeekDateToJdn(date), ArithmeticOverflow) << year;
        EXPECT_EQ(date.jdn, 42);
    }
    for (const std::int32_t year : {5'800'000, -5'800'000}) {
        IsoWeekDate date{.jdn = IsoWeekOneStart(year)};
        JdnToIsoWeekDate(date);
        EXPECT_EQ(date.year, year);
        EXPECT_EQ(date.week, 1);
        EXPECT_EQ(date.day, 1);
    }
    IsoWeekDate absurd{.year = 1, .week = kLargest, .day = kLargest};
    EXPECT_THROW(IsoWeekDateToJdn(absurd), ArithmeticOverflow);
    absurd = {.year = 1, .week = kSmallest, .day = kSmallest};
    EXPECT_THROW(IsoWeekDateToJdn(absurd), ArithmeticOverflow);
}

}  // namespace calvoro
