#include "calendar/MonthArithmetic.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <ostream>
#include <string>

#include "calendar/CheckedInt.h"
#include "tests/calendar/Records.h"
#include "tests/support/Limits32.h"
#include "tests/support/NextDay.h"
#include "tests/support/RowName.h"

namespace calvoro::testing {

namespace {

constexpr CalendarCode G = CalendarCode::G;
constexpr CalendarCode J = CalendarCode::J;
constexpr CalendarCode LPM = CalendarCode::Unset;  // leap-week dates carry no code

struct AddRow {
    const char* name;
    DateRecord source;
    std::int32_t months;
    bool leapWeekForm;
    DateRecord expected;
};

void PrintTo(const AddRow& row, std::ostream* out) {
    *out << row.name;
}

constexpr AddRow kAdditions[] = {
    {"EndOfMonthToLeapDay", On(G, 2024, 1, 31), 1, false, On(G, 2024, 2, 29, 2460370)},
    {"EndOfMonthToPlainFebruary", On(G, 2024, 1, 31), 13, false, On(G, 2025, 2, 28, 2460735)},
    {"BackToLeapDay", On(G, 2024, 3, 31), -1, false, On(G, 2024, 2, 29, 2460370)},
    {"BackToPlainFebruary", On(G, 2024, 3, 31), -25, false, On(G, 2022, 2, 28, 2459639)},
    {"JulianMonth", On(J, 2024, 1, 15), 1, false, On(J, 2024, 2, 15, 2460369)},
    {"JulianLeapDayOf1900", On(J, 1900, 2, 29), 12, false, On(J, 1901, 2, 28, 2415457)},
    {"JulianLeapDayStays", On(J, 1896, 2, 29), 48, false, On(J, 1900, 2, 29, 2415092)},
    {"CommonEraLeapDayGoes", On(G, 1896, 2, 29), 48, false, On(G, 1900, 2, 28, 2415079)},
    {"NoMonthIsACopy", On(G, 2024, 1, 31, 12345), 0, false, On(G, 2024, 1, 31, 12345)},
    {"DecemberToJanuary", On(G, 2024, 12, 31), 1, false, On(G, 2025, 1, 31, 2460707)},
    {"JanuaryToDecember", On(G, 2024, 1, 31), -1, false, On(G, 2023, 12, 31, 2460310)},
    {"TwelveOn", On(G, 2024, 12, 5), 12, false, On(G, 2025, 12, 5, 2461015)},
    {"TwelveBack", On(G, 2024, 12, 5), -12, false, On(G, 2023, 12, 5, 2460284)},
    {"AcrossYearZero", On(G, 1, 1, 31), -11, false, On(G, 0, 2, 29, 1721119)},
    {"LongJanuaryToFebruary", On(LPM, 2024, 1, 35), 1, true, On(LPM, 2024, 2, 28, 2460366)},
    {"LeapDecemberToDecember", On(LPM, 2020, 12, 35), 12, true, On(LPM, 2021, 12, 28, 2459575)},
    {"LeapDecemberToLeapDecember", On(LPM, 2020, 12, 35), 72, true, On(LPM, 2026, 12, 35, 2461402)},
    {"LongMonthToLongMonth", On(LPM, 2024, 1, 35), 3, true, On(LPM, 2024, 4, 35, 2460429)},
    {"LeapWeekMonthsBack", On(LPM, 2024, 1, 8), -1, true, On(LPM, 2023, 12, 8, 2460283)},
    {"LeapWeekNoMonth", On(LPM, 2024, 1, 35, 77), 0, true, On(LPM, 2024, 1, 35, 77)},
};

struct DistanceRow {
    const char* name;
    DateRecord first, second;
    std::int32_t years;
    std::int16_t months, days;
};

void PrintTo(const DistanceRow& row, std::ostream* out) {
    *out << row.name;
}

constexpr DistanceRow kDistances[] = {
    {"SameDay", On(G, 2024, 5, 6), On(G, 2024, 5, 6), 0, 0, 0},
    {"WholeYears", On(G, 2020, 5, 6), On(G, 2024, 5, 6), 4, 0, 0},
    {"EverythingLater", On(G, 2020, 5, 6), On(G, 2024, 7, 9), 4, 2, 3},
    {"MonthBefore", On(G, 2020, 5, 6), On(G, 2024, 3, 9), 3, 10, 3},
    {"DayBeforeInTheSameMonth", On(G, 2020, 5, 6), On(G, 2024, 5, 5), 3, 11, 29},
    {"DayBeforeInALaterMonth", On(G, 2020, 5, 6), On(G, 2024, 7, 5), 4, 1, 29},
    {"DayBeforeInAnEarlierMonth", On(G, 2020, 5, 6), On(G, 2024, 3, 5), 3, 9, 28},
    {"DayBeforeInJanuary", On(G, 2023, 5, 20), On(G, 2024, 1, 5), 0, 7, 16},
    {"JulianFebruary", On(J, 1900, 1, 29), On(J, 1900, 3, 28), 0, 1, 28},
    {"CommonEraFebruary", On(G, 1900, 1, 29), On(G, 1900, 3, 28), 0, 1, 27},
    {"AcrossYearZero", On(G, -1, 12, 31), On(G, 1, 1, 1), 1, 0, 1},
};

/// The month `months` later or earlier, one month at a time.
void StepMonths(std::int32_t months, std::int32_t& year, std::int32_t& month) {
    for (; months > 0; --months) {
        if (month == 12) {
            month = 1;
            ++year;
        } else {
            ++month;
        }
    }
    for (; months < 0; ++months) {
        if (month == 1) {
            month = 12;
            --year;
        } else {
            --month;
        }
    }
}

std::int32_t NaiveMonthLength(std::int32_t year, std::int32_t month, CalendarCode calendar, bool leapWeek) {
    if (leapWeek) {
        const std::int32_t share = ((71 * year + 203) % 400 + 400) % 400;
        return LeapWeekStepper{.year = year, .share = share, .month = month}.MonthLength();
    }
    const LeapRule rule = calendar == CalendarCode::J ? LeapRule::Julian : LeapRule::CommonEra;
    return CivilStepper{rule, year, month, 1}.MonthLength();
}

}  // namespace

class MonthsAdded : public ::testing::TestWithParam<AddRow> {};

TEST_P(MonthsAdded, GiveTheWholeRecord) {
    DateRecord result{.year = 1, .month = 1, .day = 1, .calendar = CalendarCode::R, .jdn = 1};
    AddMonths(GetParam().source, GetParam().months, result, GetParam().leapWeekForm);
    EXPECT_EQ(result, GetParam().expected);
}

TEST_P(MonthsAdded, MayReplaceTheirSource) {
    DateRecord record = GetParam().source;
    AddMonths(record, GetParam().months, record, GetParam().leapWeekForm);
    EXPECT_EQ(record, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(To, MonthsAdded, ::testing::ValuesIn(kAdditions), RowName<AddRow>);

TEST(AddMonths, IsTheStepFromMonthToMonthInBothDirections) {
    int compared = 0;
    for (const bool leapWeekForm : {false, true}) {
        for (const CalendarCode calendar : {G, J}) {
            for (const std::int32_t day : {1, 28, 29, 31}) {
                for (std::int32_t start = 1; start <= 12; ++start) {
                    const DateRecord source = On(calendar, 3, start, day);
                    for (std::int32_t months = -300; months <= 300; ++months) {
                        if (months == 0) continue;
                        std::int32_t year = source.year;
                        std::int32_t month = source.month;
                        StepMonths(months, year, month);
                        DateRecord result;
                        AddMonths(source, months, result, leapWeekForm);
                        ASSERT_EQ(result.year, year) << start << " plus " << months;
                        ASSERT_EQ(result.month, month) << start << " plus " << months;
                        ASSERT_EQ(result.day,
                                  std::min(day, NaiveMonthLength(year, month, calendar, leapWeekForm)))
                            << start << " plus " << months;
                        ++compared;
                    }
                }
            }
        }
    }
    EXPECT_EQ(compared, 2 * 2 * 4 * 12 * 600);
}

TEST(AddMonths, IsTheStepFromMonthToMonthOverLongDistances) {
    for (const std::int32_t months :
         {100'000, -100'000, 1'234'567, -1'234'567, 12'000'000, -12'000'000, 60'000'001, -60'000'001}) {
        for (const std::int32_t start : {1, 7, 12}) {
            std::int32_t year = 4;
            std::int32_t month = start;
            StepMonths(months, year, month);
            DateRecord result;
            AddMonths(On(G, 4, start, 15), months, result, false);
            EXPECT_EQ(result.year, year) << months;
            EXPECT_EQ(result.month, month) << months;
            EXPECT_EQ(result.day, 15) << months;
        }
    }
}

TEST(AddMonths, CountsAsTheCommonEraWhereACodeHasNoMonthsOfItsOwn) {
    for (const CalendarCode code : {CalendarCode::V, CalendarCode::I, CalendarCode::R}) {
        DateRecord result;
        AddMonths(On(code, 2024, 1, 31), 1, result, false);
        EXPECT_EQ(result,
                  (DateRecord{.year = 2024, .month = 2, .day = 29, .calendar = code, .jdn = 2460370}));
    }
}

TEST(AddMonths, GivesNoDateInACalendarWithoutConversions) {
    for (const std::int32_t months : {1, -1, 13}) {
        DateRecord result = On(G, 2024, 2, 3);
        AddMonths(On(CalendarCode::A, 2024, 1, 31), months, result, false);
        EXPECT_EQ(result, DateRecord{}) << months;
    }
    DateRecord result;
    AddMonths(On(CalendarCode::A, 2024, 1, 31), 0, result, false);
    EXPECT_EQ(result, On(CalendarCode::A, 2024, 1, 31)) << "nothing is to be added";
}

TEST(AddMonths, RefusesResultsThatDoNotFit) {
    DateRecord result;
    for (const std::int32_t months : {kLargest, kSmallest, 72'000'000, -72'000'000}) {
        EXPECT_THROW(AddMonths(On(G, 2024, 1, 31), months, result, false), ArithmeticOverflow) << months;
        EXPECT_THROW(AddMonths(On(J, 2024, 12, 31), months, result, false), ArithmeticOverflow) << months;
        EXPECT_THROW(AddMonths(On(LPM, 2024, 1, 35), months, result, true), ArithmeticOverflow) << months;
    }
    EXPECT_THROW(AddMonths(On(G, kLargest, 12, 1), 1, result, false), ArithmeticOverflow);
    EXPECT_THROW(AddMonths(On(G, kLargest - 1, 12, 1), kLargest, result, false), ArithmeticOverflow);
    EXPECT_THROW(AddMonths(On(G, kSmallest, 1, 1), -1, result, false), ArithmeticOverflow);
    EXPECT_THROW(AddMonths(On(G, 1, kLargest, 1), 1, result, false), ArithmeticOverflow);
    EXPECT_THROW(AddMonths(On(G, 1, -1, 1), kSmallest, result, false), ArithmeticOverflow);
    EXPECT_THROW(AddMonths(On(LPM, 1, 40'000, 1), -1, result, true), ArithmeticOverflow);
}

class YearsMonthsDaysBetween : public ::testing::TestWithParam<DistanceRow> {};

TEST_P(YearsMonthsDaysBetween, IsWhatTheStepsGive) {
    std::int32_t years = 99;
    std::int16_t months = 99;
    std::int16_t days = 99;
    std::int32_t status = 99;
    YearsMonthsDays(GetParam().first, GetParam().second, years, months, days, status);
    EXPECT_EQ(years, GetParam().years);
    EXPECT_EQ(months, GetParam().months);
    EXPECT_EQ(days, GetParam().days);
    EXPECT_EQ(status, 0);
}

INSTANTIATE_TEST_SUITE_P(Dates, YearsMonthsDaysBetween, ::testing::ValuesIn(kDistances),
                         RowName<DistanceRow>);

TEST(YearsMonthsDaysDeliberate, LeavesANegativeCountOfDays) {
    std::int32_t years = 99;
    std::int16_t months = 99;
    std::int16_t days = 99;
    std::int32_t status = 99;
    YearsMonthsDays(On(G, 2024, 1, 31), On(G, 2024, 3, 1), years, months, days, status);
    EXPECT_EQ(years, 0);
    EXPECT_EQ(months, 1);
    EXPECT_EQ(days, -1);
    YearsMonthsDays(On(G, 2023, 1, 31), On(G, 2023, 3, 1), years, months, days, status);
    EXPECT_EQ(months, 1);
    EXPECT_EQ(days, -2);
    EXPECT_EQ(status, 0);
}

TEST(YearsMonthsDaysDeliberate, DoesNotNoticeASecondDateBeforeTheFirst) {
    std::int32_t years = 99;
    std::int16_t months = 99;
    std::int16_t days = 99;
    std::int32_t status = 99;
    YearsMonthsDays(On(G, 2024, 3, 5), On(G, 2023, 2, 7), years, months, days, status);
    EXPECT_EQ(years, -2);
    EXPECT_EQ(months, 11);
    EXPECT_EQ(days, 2);
    EXPECT_EQ(status, 0);
}

TEST(YearsMonthsDays, CountsTenMonthsInAnAnnusNovusYear) {
    std::int32_t years = 99;
    std::int16_t months = 99;
    std::int16_t days = 99;
    std::int32_t status = 99;
    YearsMonthsDays(On(CalendarCode::A, 5, 9, 3), On(CalendarCode::A, 7, 2, 4), years, months, days, status);
    EXPECT_EQ(years, 1);
    EXPECT_EQ(months, 3);
    EXPECT_EQ(days, 1);
    EXPECT_EQ(status, 0);
}

TEST(YearsMonthsDays, PassesOnThatAMonthHasNoLength) {
    std::int32_t years = 99;
    std::int16_t months = 99;
    std::int16_t days = 99;
    std::int32_t status = 99;
    YearsMonthsDays(On(CalendarCode::A, 5, 9, 4), On(CalendarCode::A, 7, 1, 3), years, months, days, status);
    EXPECT_EQ(days, -1);
    EXPECT_EQ(status, 1);
}

TEST(YearsMonthsDays, RaisesOverflow) {
    std::int32_t years = 0;
    std::int16_t months = 0;
    std::int16_t days = 0;
    std::int32_t status = 0;
    const DateRecord plain = On(G, 2024, 1, 1);
    EXPECT_THROW(YearsMonthsDays(On(G, kSmallest, 1, 1), plain, years, months, days, status),
                 ArithmeticOverflow);
    EXPECT_THROW(YearsMonthsDays(On(G, 2024, 1, 2), On(G, kSmallest, 1, 1), years, months, days, status),
                 ArithmeticOverflow);
    EXPECT_THROW(YearsMonthsDays(plain, On(G, 2024, 40'000, 1), years, months, days, status),
                 ArithmeticOverflow);
    EXPECT_THROW(YearsMonthsDays(plain, On(G, 2024, 1, 40'000), years, months, days, status),
                 ArithmeticOverflow);
}

}  // namespace calvoro::testing
