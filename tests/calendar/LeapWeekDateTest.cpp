#include "calendar/LeapWeekDate.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <ostream>
#include <string>
#include <vector>

#include "calendar/CheckedInt.h"
#include "tests/calendar/LeapWeekWalk.h"
#include "tests/calendar/Records.h"
#include "tests/support/Limits32.h"
#include "tests/support/RowName.h"

namespace calvoro::testing {

namespace {

struct FormsRow {
    const char* name;
    std::int32_t year;
    std::int16_t week, weekday, month, day;
    std::int32_t jdn;
};

void PrintTo(const FormsRow& row, std::ostream* out) {
    *out << row.name;
}

constexpr FormsRow kForms[] = {
    {"NewYear2024OfTheCommonEra", 2024, 2, 1, 1, 8, 2460311},
    {"FirstDayOf2024", 2024, 1, 1, 1, 1, 2460304},
    {"LastDayOf2020OfTheCommonEra", 2021, 1, 4, 1, 4, 2459215},
    {"LeapDay35OfDecember2020", 2020, 53, 7, 12, 35, 2459211},
    {"FirstDayOfTheLeapWeek", 2020, 53, 1, 12, 29, 2459205},
    {"LastDayBeforeTheLeapWeek", 2020, 52, 7, 12, 28, 2459204},
    {"Epoch", 1, 1, 1, 1, 1, 1721419},
    {"NewYearOneOfTheCommonEra", 1, 2, 1, 1, 8, 1721426},
    {"DayBeforeTheEpoch", 0, 52, 7, 12, 28, 1721418},
    {"OneCycleBeforeTheEpoch", -399, 1, 1, 1, 1, 1721419 - 146097},
    {"OneCycleAfterTheEpoch", 401, 1, 1, 1, 1, 1721419 + 146097},
    {"LastDayOfJanuary", 2024, 5, 7, 1, 35, 2460338},
    {"FirstDayOfFebruary", 2024, 6, 1, 2, 1, 2460339},
    {"FirstDayOfMarch", 2024, 10, 1, 3, 1, 2460367},
    {"LastDayOfTheFirstQuarter", 2024, 13, 7, 3, 28, 2460394},
    {"FirstDayOfApril", 2024, 14, 1, 4, 1, 2460395},
    {"FirstDayOfJuly", 2024, 27, 1, 7, 1, 2460486},
    {"FirstDayOfOctober", 2024, 40, 1, 10, 1, 2460577},
    {"DayMinusTwo", -4713, 48, 6, 11, 27, -2},
    {"DayMinusThree", -4713, 48, 5, 11, 26, -3},
    {"DayZero", -4713, 49, 1, 12, 1, 0},
};

LeapWeekDate WeekForm(std::int32_t year, std::int16_t week, std::int16_t weekday) {
    return {.year = year, .week = week, .weekday = weekday};
}

LeapWeekDate MonthForm(std::int32_t year, std::int16_t month, std::int16_t day) {
    return {.year = year, .month = month, .day = day};
}

}  // namespace

class LeapWeekForms : public ::testing::TestWithParam<FormsRow> {};

TEST_P(LeapWeekForms, AreBothFilledFromTheDayNumber) {
    const FormsRow& row = GetParam();
    LeapWeekDate date{.jdn = row.jdn, .status = -3};
    JdnToLpm(date);
    const LeapWeekDate expected{.year = row.year,
                                .month = row.month,
                                .day = row.day,
                                .week = row.week,
                                .weekday = row.weekday,
                                .jdn = row.jdn,
                                .status = kLeapWeekOk};
    EXPECT_EQ(date, expected);
}

TEST_P(LeapWeekForms, WeekFormAloneLeavesTheMonthForm) {
    const FormsRow& row = GetParam();
    LeapWeekDate date{.month = 77, .day = 78, .jdn = row.jdn};
    JdnToWeekForm(date);
    EXPECT_EQ(date.year, row.year);
    EXPECT_EQ(date.week, row.week);
    EXPECT_EQ(date.weekday, row.weekday);
    EXPECT_EQ(date.month, 77);
    EXPECT_EQ(date.day, 78);
}

TEST_P(LeapWeekForms, WeekFormHasTheDayNumberReturnedAndStored) {
    const FormsRow& row = GetParam();
    LeapWeekDate date = WeekForm(row.year, row.week, row.weekday);
    EXPECT_EQ(WeekFormToJdn(date), row.jdn);
    EXPECT_EQ(date.jdn, row.jdn);
    EXPECT_EQ(date.status, kLeapWeekOk);
}

TEST_P(LeapWeekForms, MonthFormHasTheDayNumberReturnedAndStored) {
    const FormsRow& row = GetParam();
    LeapWeekDate date = MonthForm(row.year, row.month, row.day);
    EXPECT_EQ(LpmToJdn(date), row.jdn);
    EXPECT_EQ(date.jdn, row.jdn);
    EXPECT_EQ(date.week, row.week);
    EXPECT_EQ(date.weekday, row.weekday);
    EXPECT_EQ(date.status, kLeapWeekOk);
}

TEST_P(LeapWeekForms, BecomeEachOther) {
    const FormsRow& row = GetParam();
    LeapWeekDate date = WeekForm(row.year, row.week, row.weekday);
    EXPECT_TRUE(WeekFormToMonthForm(date));
    EXPECT_EQ(date.month, row.month);
    EXPECT_EQ(date.day, row.day);
    date.week = 0;
    date.weekday = 0;
    EXPECT_TRUE(MonthFormToWeekForm(date));
    EXPECT_EQ(date.week, row.week);
    EXPECT_EQ(date.weekday, row.weekday);
}

INSTANTIATE_TEST_SUITE_P(Of, LeapWeekForms, ::testing::ValuesIn(kForms), RowName<FormsRow>);

TEST(IsLeapWeekYear, HoldsForEveryFifthOrSixthYear) {
    std::vector<std::int32_t> leapYears;
    for (std::int32_t year = 2000; year <= 2050; ++year) {
        if (IsLeapWeekYear(year)) leapYears.push_back(year);
    }
    EXPECT_EQ(leapYears, (std::vector<std::int32_t>{2003, 2009, 2015, 2020, 2026, 2031, 2037, 2043, 2048}));
    EXPECT_FALSE(IsLeapWeekYear(1));
}

TEST(IsLeapWeekYear, IsTheSameForYearsACycleApart) {
    EXPECT_EQ(IsLeapWeekYear(0), IsLeapWeekYear(400));
    EXPECT_EQ(IsLeapWeekYear(-400), IsLeapWeekYear(400));
    int leapYears = 0;
    for (std::int32_t year = 1; year <= 400; ++year) {
        if (IsLeapWeekYear(year)) ++leapYears;
        for (const std::int32_t cycles : {-5'000'000, -14'500, -2, -1, 1, 2, 14'500, 5'000'000}) {
            EXPECT_EQ(IsLeapWeekYear(year), IsLeapWeekYear(year + 400 * cycles)) << year;
        }
    }
    EXPECT_EQ(leapYears, 71);
    EXPECT_EQ(IsLeapWeekYear(kLargest), IsLeapWeekYear(247));
    EXPECT_EQ(IsLeapWeekYear(kSmallest), IsLeapWeekYear(152));
}

TEST(WeeksInLeapWeekMonth, MakeQuartersOf13Weeks) {
    constexpr std::int16_t kWeeks[] = {5, 4, 4, 5, 4, 4, 5, 4, 4, 5, 4, 4};
    for (std::int16_t month = 1; month <= 12; ++month) {
        EXPECT_EQ(WeeksInLeapWeekMonth(month, false), kWeeks[month - 1]) << month;
        EXPECT_EQ(WeeksInLeapWeekMonth(month, true), month == 12 ? 5 : kWeeks[month - 1]) << month;
    }
    EXPECT_EQ(WeeksInLeapWeekMonth(0, false), 4);
    EXPECT_EQ(WeeksInLeapWeekMonth(0, true), 4);
}

TEST(ValidateWeekForm, RefusesWeekdaysOutside0To7) {
    for (const std::int16_t weekday : std::initializer_list<std::int16_t>{-32'768, -1, 8, 9, 32'767}) {
        LeapWeekDate date = WeekForm(2024, 2, weekday);
        date.jdn = 42;
        EXPECT_EQ(ValidateWeekForm(date), -3) << weekday;
        EXPECT_EQ(date.status, -3);
        date.status = 0;
        EXPECT_EQ(WeekFormToJdn(date), -3);
        EXPECT_EQ(date.status, -3);
        EXPECT_EQ(date.jdn, 42);
        date.status = 0;
        EXPECT_FALSE(WeekFormToMonthForm(date));
        EXPECT_EQ(date.status, -3);
        EXPECT_EQ(date.month, 0);
        EXPECT_EQ(date.day, 0);
    }
}

TEST(ValidateWeekForm, ClearsAnEarlierRefusal) {
    LeapWeekDate date = WeekForm(2024, 2, 7);
    date.status = -3;
    EXPECT_EQ(ValidateWeekForm(date), 0);
    EXPECT_EQ(date.status, 0);
}

TEST(LeapWeekDeliberate, WeekdayZeroPassesAsTheDayBeforeTheWeek) {
    LeapWeekDate date = WeekForm(2024, 2, 0);
    EXPECT_EQ(ValidateWeekForm(date), 0);
    EXPECT_EQ(WeekFormToJdn(date), 2460310);
    EXPECT_TRUE(WeekFormToMonthForm(date));
    EXPECT_EQ(date.month, 1);
    EXPECT_EQ(date.day, 7);
}

TEST(LeapWeekDeliberate, NumbersOfWeeksAreNotChecked) {
    LeapWeekDate week54 = WeekForm(2024, 54, 1);
    EXPECT_EQ(ValidateWeekForm(week54), 0);
    EXPECT_EQ(WeekFormToJdn(week54), 2460304 + 53 * 7);
    EXPECT_EQ(week54.status, 0);
    LeapWeekDate week53 = WeekForm(2024, 53, 1);  // 2024 has 52
    EXPECT_EQ(WeekFormToJdn(week53), 2460304 + 52 * 7);
    LeapWeekDate week0 = WeekForm(2024, 0, 1);
    EXPECT_EQ(WeekFormToJdn(week0), 2460304 - 7);
    LeapWeekDate lastWeek = WeekForm(2024, 32'767, 7);
    EXPECT_EQ(WeekFormToJdn(lastWeek), 2460304 + 32'766 * 7 + 6);
    LeapWeekDate firstWeek = WeekForm(2024, -32'768, 1);
    EXPECT_EQ(WeekFormToJdn(firstWeek), 2460304 - 32'769 * 7);
}

TEST(LeapWeekDeliberate, WeeksBeyondTheYearGoOnInMonthsBeyondDecember) {
    struct {
        std::int32_t year;
        std::int16_t week, month, day;
    } constexpr kRows[] = {
        {2024, 53, 13, 1},  {2024, 57, 13, 29}, {2024, 58, 14, 1}, {2020, 53, 12, 29}, {2020, 54, 13, 1},
        {2020, 58, 13, 29}, {2020, 59, 14, 1},  {2024, 0, 1, -6},  {2024, -4, 1, -34},
    };
    for (const auto& row : kRows) {
        LeapWeekDate date = WeekForm(row.year, row.week, 1);
        EXPECT_TRUE(WeekFormToMonthForm(date)) << row.week;
        EXPECT_EQ(date.month, row.month) << row.week;
        EXPECT_EQ(date.day, row.day) << row.week;
    }
}

TEST(WeekFormToMonthForm, IsTheSubtractionOfMonthAfterMonthForEveryWeek) {
    int compared = 0;
    for (const std::int32_t year : {2020, 2024}) {
        for (std::int32_t week = -400; week <= 32'767; ++week) {
            if (week == 1'000) week = 32'700;  // the middle is like its ends, and slow to walk to
            LeapWeekDate date = WeekForm(year, static_cast<std::int16_t>(week), 3);
            ASSERT_TRUE(WeekFormToMonthForm(date));
            std::int16_t month = 1;
            std::int32_t left = week;
            while (left > WeeksInLeapWeekMonth(month, IsLeapWeekYear(year))) {
                left -= WeeksInLeapWeekMonth(month, IsLeapWeekYear(year));
                ++month;
            }
            ASSERT_EQ(date.month, month) << "week " << week;
            ASSERT_EQ(date.day, (left - 1) * 7 + 3) << "week " << week;
            ++compared;
        }
    }
    EXPECT_EQ(compared, 2 * (1'400 + 68));
}

TEST(WeekFormToMonthForm, RefusesADayThatDoesNotFit16Bits) {
    LeapWeekDate date = WeekForm(2024, -32'768, 1);
    EXPECT_THROW(WeekFormToMonthForm(date), ArithmeticOverflow);
}

TEST(MonthFormToWeekForm, RefusesMonthsOutOfBounds) {
    for (const std::int16_t month : std::initializer_list<std::int16_t>{-32'768, -1, 13, 32'767}) {
        LeapWeekDate date = MonthForm(2024, month, 1);
        EXPECT_FALSE(MonthFormToWeekForm(date)) << month;
        EXPECT_EQ(date.status, -2);
        date.status = 0;
        EXPECT_EQ(LpmToJdn(date), 0);
        EXPECT_EQ(date.status, -2);
        EXPECT_EQ(date.week, 0);
    }
}

TEST(MonthFormToWeekForm, RefusesDaysOutOfBounds) {
    struct {
        std::int32_t year;
        std::int16_t month, last;
    } constexpr kMonths[] = {{2021, 1, 35}, {2021, 2, 28},  {2021, 3, 28},  {2021, 4, 35},  {2021, 7, 35},
                             {2021, 9, 28}, {2021, 10, 35}, {2021, 12, 28}, {2020, 12, 35}, {2021, 0, 28}};
    for (const auto& [year, month, last] : kMonths) {
        LeapWeekDate good = MonthForm(year, month, last);
        EXPECT_TRUE(MonthFormToWeekForm(good)) << month;
        EXPECT_EQ(good.status, 0);
        const auto dayAfter = static_cast<std::int16_t>(last + 1);
        for (const std::int16_t day : std::initializer_list<std::int16_t>{dayAfter, -1, 32'767, -32'768}) {
            LeapWeekDate bad = MonthForm(year, month, day);
            EXPECT_FALSE(MonthFormToWeekForm(bad)) << month << ", " << day;
            EXPECT_EQ(bad.status, -3);
            EXPECT_EQ(LpmToJdn(bad), 0);
            EXPECT_EQ(bad.status, -3);
        }
    }
}

TEST(MonthFormToWeekForm, ClearsAnEarlierRefusal) {
    for (const std::int16_t refusal : {kLeapWeekBadMonth, kLeapWeekBadDay}) {
        LeapWeekDate date = MonthForm(2024, 2, 28);
        date.status = refusal;
        EXPECT_TRUE(MonthFormToWeekForm(date));
        EXPECT_EQ(date.status, kLeapWeekOk);
    }
}

TEST(LeapWeekDeliberate, MonthZeroAndDayZeroPass) {
    LeapWeekDate dayZero = MonthForm(2024, 2, 0);
    EXPECT_TRUE(MonthFormToWeekForm(dayZero));
    EXPECT_EQ(dayZero.week, 6);
    EXPECT_EQ(dayZero.weekday, 0);
    EXPECT_EQ(LpmToJdn(dayZero), 2460338);  // the day before 1 February
    LeapWeekDate monthZero = MonthForm(2024, 0, 3);
    EXPECT_TRUE(MonthFormToWeekForm(monthZero));
    EXPECT_EQ(monthZero.week, 1);
    EXPECT_EQ(monthZero.weekday, 3);
    EXPECT_EQ(LpmToJdn(monthZero), 2460306);
    LeapWeekDate both = MonthForm(2024, 0, 0);
    EXPECT_EQ(LpmToJdn(both), 2460303);
    EXPECT_EQ(both.status, 0);
}

TEST(LeapWeekClosedForm, IsTheWalkOverTheYearsThroughWholeCycles) {
    int compared = 0;
    for (std::int32_t jdn = 1'721'419 - 146'097; jdn < 1'721'419 + 2 * 146'097; ++jdn) {
        const WalkedWeekForm walked = WalkToWeekForm(jdn);
        LeapWeekDate date{.jdn = jdn};
        JdnToWeekForm(date);
        ASSERT_EQ(date.year, walked.year) << "day " << jdn;
        ASSERT_EQ(date.week, walked.week) << "day " << jdn;
        ASSERT_EQ(date.weekday, walked.weekday) << "day " << jdn;
        date.jdn = 0;
        ASSERT_EQ(WeekFormToJdn(date), jdn);
        ++compared;
    }
    EXPECT_EQ(compared, 3 * 146'097);
}

TEST(LeapWeekClosedForm, IsTheSumOfTheYearsForTheFirstAndLastDayOfEachYear) {
    int compared = 0;
    for (std::int32_t year = -1'199; year <= 1'200; ++year) {
        const std::int32_t first = WalkToDayNumber({year, 1, 1});
        LeapWeekDate date = WeekForm(year, 1, 1);
        ASSERT_EQ(WeekFormToJdn(date), first) << year;
        date = WeekForm(year + 1, 1, 1);
        ASSERT_EQ(WeekFormToJdn(date), first + DaysInLeapWeekYear(year)) << year;
        ASSERT_EQ(IsLeapWeekYear(year), DaysInLeapWeekYear(year) == 371) << year;
        ++compared;
    }
    EXPECT_EQ(compared, 2'400);
}

TEST(LeapWeekAtTheEndsOf32Bits, ComesBackInBothFormsAndRefusesTheDayBeyond) {
    for (const std::int32_t sign : {1, -1}) {
        for (std::int32_t steps = 0; steps < 800; ++steps) {
            const std::int32_t jdn = (sign > 0 ? kLargest : kSmallest) - sign * steps;
            const std::int32_t cycles = sign * 14'000;
            LeapWeekDate date{.jdn = jdn};
            LeapWeekDate earlier{.jdn = jdn - cycles * 146'097};
            JdnToLpm(date);
            JdnToLpm(earlier);
            earlier.year += 400 * cycles;
            earlier.jdn = jdn;
            ASSERT_EQ(date, earlier);
            LeapWeekDate monthForm = MonthForm(date.year, date.month, date.day);
            ASSERT_EQ(WeekFormToJdn(date), jdn);
            ASSERT_EQ(LpmToJdn(monthForm), jdn);
            if (steps == 0) {
                date.weekday = static_cast<std::int16_t>(date.weekday + sign);
                EXPECT_THROW(WeekFormToJdn(date), ArithmeticOverflow);
            }
        }
    }
}

TEST(LeapWeekAtTheEndsOf32Bits, RefusesYearsThatDoNotFit) {
    for (const std::int32_t year : {kLargest, kSmallest, 5'900'000, -5'900'000}) {
        LeapWeekDate weekForm = WeekForm(year, 1, 1);
        EXPECT_THROW(WeekFormToJdn(weekForm), ArithmeticOverflow) << year;
        LeapWeekDate monthForm = MonthForm(year, 1, 1);
        EXPECT_THROW(LpmToJdn(monthForm), ArithmeticOverflow) << year;
    }
    for (const std::int32_t year : {5'800'000, -5'800'000}) {
        LeapWeekDate date = WeekForm(year, 52, 7);
        LeapWeekDate back{.jdn = WeekFormToJdn(date)};
        JdnToWeekForm(back);
        EXPECT_EQ(back, date);
    }
}

}  // namespace calvoro::testing
