#include "compute/DifferenceBreakdown.h"

#include <gtest/gtest.h>

#include "tests/compute/OutputCase.h"

namespace calvoro {
namespace {

void IncludeFirstDate(ComputeOptions& options) {
    options.includeFirstDate = true;
}
void WeekdaysOnly(ComputeOptions& options) {
    options.countWeekendDays = false;
}
void Spanish(ComputeOptions& options) {
    options.texts.InterfaceLanguage = LanguageSpanish;
}

class BreakdownTest : public OutputTest {};

TEST_P(BreakdownTest, FollowsTheNumberOfDays) {
    ExpectOutput(GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    CommonEraAndJulian, BreakdownTest,
    testing::Values(
        OutputCase{"ThirtyDays", "2021-03-01", "", "2021-03-31", kCE, kCE,
                   "2021-03-01 CE to 2021-03-31 CE = 30 days"},
        OutputCase{"ThirtyOneDays", "2021-03-01", "", "2021-04-01", kCE, kCE,
                   "2021-03-01 CE to 2021-04-01 CE = 31 days (1 month)"},
        OutputCase{"ThirtyOneDaysWithinAMonth", "2021-03-01", "", "2021-03-31", kCE, kCE,
                   "2021-03-01 CE to 2021-03-31 CE = 31 days (30 days)", IncludeFirstDate},
        OutputCase{"AllParts", "2019-12-15", "", "2021-03-20", kCE, kCE,
                   "2019-12-15 CE to 2021-03-20 CE = 461 days (1 year, 3 months, 5 days)"},
        OutputCase{"YearsAlone", "2020-03-01", "", "2022-03-01", kCE, kCE,
                   "2020-03-01 CE to 2022-03-01 CE = 730 days (2 years)"},
        OutputCase{"YearsAndDaysWithoutMonths", "2020-03-01", "", "2021-03-02", kCE, kCE,
                   "2020-03-01 CE to 2021-03-02 CE = 366 days (1 year, 1 day)"},
        OutputCase{"MonthsAndDays", "2021-01-15", "", "2021-12-31", kCE, kCE,
                   "2021-01-15 CE to 2021-12-31 CE = 350 days (11 months, 16 days)"},
        OutputCase{"PlainDigitsInTheParts", "1000-01-01", "", "2021-03-04", kCE, kCE,
                   "1000-01-01 CE to 2021-03-04 CE = 372,975 days (1021 years, 2 months, 3 days)"},
        OutputCase{"ThirtyDaysJulian", "1900-02-01", "", "1900-03-02", kJC, kJC,
                   "1900-02-01 JC to 1900-03-02 JC = 30 days"},
        OutputCase{"ThirtyOneDaysJulian", "1900-03-01", "", "1900-04-01", kJC, kJC,
                   "1900-03-01 JC to 1900-04-01 JC = 31 days (1 month)"},
        OutputCase{"Julian", "1900-02-01", "", "1900-03-03", kJC, kJC,
                   "1900-02-01 JC to 1900-03-03 JC = 31 days (1 month, 2 days)"},
        OutputCase{"DeliberateNegativeDaysStayAndArePlural", "2023-01-31", "", "2024-03-01", kCE, kCE,
                   "2023-01-31 CE to 2024-03-01 CE = 395 days (1 year, 1 month, -1 days)"},
        OutputCase{"DeliberateMoreNegativeDaysStay", "2022-01-31", "", "2023-03-01", kCE, kCE,
                   "2022-01-31 CE to 2023-03-01 CE = 394 days (1 year, 1 month, -2 days)"},
        OutputCase{"German", "2019-12-15", "", "2021-03-20", kCE, kCE,
                   "2019-12-15 CE bis 2021-03-20 CE = 461 Tage (1 Jahr, 3 Monate, 5 Tage)", InGerman},
        OutputCase{"EnglishWhereSpanishHasNone", "2019-12-15", "", "2021-03-20", kCE, kCE,
                   "2019-12-15 CE to 2021-03-20 CE = 461 days (1 year, 3 months, 5 days)", Spanish}),
    RowName<OutputCase>);

INSTANTIATE_TEST_SUITE_P(
    WeekDates, BreakdownTest,
    testing::Values(OutputCase{"SixDays", "2021-W01-1", "", "2021-W01-7", kISO, kISO,
                               "2021-W01-1 ISO to 2021-W01-7 ISO = 6 days"},
                    OutputCase{"SevenDays", "2021-W01-1", "", "2021-W02-1", kISO, kISO,
                               "2021-W01-1 ISO to 2021-W02-1 ISO = 7 days (1 week)"},
                    OutputCase{"WeeksAndADay", "2021-W01-1", "", "2021-W03-2", kISO, kISO,
                               "2021-W01-1 ISO to 2021-W03-2 ISO = 15 days (2 weeks, 1 day)"},
                    OutputCase{"AYear", "2021-W01-1", "", "2022-W01-1", kISO, kISO,
                               "2021-W01-1 ISO to 2022-W01-1 ISO = 364 days (1 year)"},
                    OutputCase{"AcrossALongYear", "2020-W53-7", "", "2021-W02-1", kISO, kISO,
                               "2020-W53-7 ISO to 2021-W02-1 ISO = 8 days (1 week, 1 day)"},
                    OutputCase{"DeliberateFiftyThreeWeeksForAYearOfFiftyTwo", "2020-W10-5", "", "2021-W10-3",
                               kISO, kISO, "2020-W10-5 ISO to 2021-W10-3 ISO = 369 days (53 weeks, 5 days)"},
                    OutputCase{"German", "2021-W01-1", "", "2021-W03-2", kISO, kISO,
                               "2021-W01-1 ISO bis 2021-W03-2 ISO = 15 Tage (2 Wochen, 1 Tag)", InGerman}),
    RowName<OutputCase>);

INSTANTIATE_TEST_SUITE_P(OrdinalDates, BreakdownTest,
                         testing::Values(OutputCase{"Days364", "2021-001", "", "2021-365", kORD, kORD,
                                                    "2021-001 to 2021-365 = 364 days"},
                                         OutputCase{"Days365", "2021-001", "", "2022-001", kORD, kORD,
                                                    "2021-001 to 2022-001 = 365 days (1 year)"},
                                         OutputCase{"YearsAndDays", "2019-100", "", "2022-050", kORD, kORD,
                                                    "2019-100 to 2022-050 = 1,046 days (2 years, 315 days)"},
                                         OutputCase{"Days365WithinAYear", "2020-061", "", "2021-059", kORD,
                                                    kORD, "2020-061 to 2021-059 = 365 days (364 days)",
                                                    IncludeFirstDate}),
                         RowName<OutputCase>);

INSTANTIATE_TEST_SUITE_P(None, BreakdownTest,
                         testing::Values(OutputCase{"UnequalCalendars", "2000-03-04", "", "2021-02-19", kCE,
                                                    kJC, "2000-03-04 CE to 2021-02-19 JC = 7,670 days"},
                                         OutputCase{"DayNumbers", "0", "", "2459278", kJDN, kJDN,
                                                    "0 JDN to 2,459,278 JDN = 2,459,278 days"},
                                         OutputCase{"LeapWeekMonths", "2020-03-04", "", "2021-03-04", kLPM,
                                                    kLPM, "2020-03-04 LPM to 2021-03-04 LPM = 371 days"},
                                         OutputCase{"LeapWeekWeeks", "2020-10-4", "", "2021-10-4", kLPW, kLPW,
                                                    "2020-10-4 LPW to 2021-10-4 LPW = 371 days"},
                                         OutputCase{"WeekdaysOnly", "2021-03-01", "", "2022-03-01", kCE, kCE,
                                                    "2021-03-01 CE to 2022-03-01 CE = 261 days",
                                                    WeekdaysOnly},
                                         OutputCase{"Backwards", "2022-03-01", "", "2021-03-01", kCE, kCE,
                                                    "2022-03-01 CE to 2021-03-01 CE = -365 days"},
                                         OutputCase{"SameDay", "2022-03-01", "", "2022-03-01", kCE, kCE,
                                                    "2022-03-01 CE to 2022-03-01 CE = 0 days"}),
                         RowName<OutputCase>);

TEST(DifferenceBreakdown, IsEmptyWhenEveryPartIsZero) {
    ComputeState state;
    state.FirstDateRecord = {.year = 2021, .month = 3, .day = 4, .calendar = CalendarCode::G, .jdn = 2459278};
    state.SecondDateRecord = state.FirstDateRecord;
    state.DateDifference = 31;
    EXPECT_EQ(DifferenceBreakdown(state), "");
}

TEST(DifferenceParts, AreShownUnlessAllOfThemAreZero) {
    EXPECT_FALSE(DifferenceParts{}.AreShown());
    for (const DifferenceParts& parts : {DifferenceParts{.years = 1}, DifferenceParts{.months = -1},
                                         DifferenceParts{.weeks = 2}, DifferenceParts{.days = -6}}) {
        EXPECT_TRUE(parts.AreShown()) << PartsText(parts, Texts());
    }
}

TEST(DifferenceBreakdown, LeavesTheRecordsAsTheyAre) {
    ComputeState state;
    state.options.firstCalendar = state.options.secondCalendar = kORD;
    state.FirstDateRecord = {.year = 2021, .month = 1, .day = 1, .calendar = CalendarCode::G, .jdn = 1};
    state.SecondDateRecord = {.year = 2022, .month = 1, .day = 1, .calendar = CalendarCode::G, .jdn = 2};
    state.DateDifference = 365;
    EXPECT_EQ(DifferenceBreakdown(state), " (1 year)");
    EXPECT_EQ(state.FirstDateRecord.jdn, 1);
    EXPECT_EQ(state.SecondDateRecord.jdn, 2);
}

}  // namespace
}  // namespace calvoro
