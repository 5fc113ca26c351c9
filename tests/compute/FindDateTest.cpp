#include "compute/FindDate.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "calendar/DayNumber.h"
#include "compute/ComputeMessages.h"
#include "tests/support/FakeComputeWindow.h"

namespace calvoro {
namespace {

constexpr std::int32_t kMonday = 2459275;  // 2021-03-01 CE
constexpr std::int32_t kFriday = kMonday + 4;
constexpr std::int32_t kSaturday = kMonday + 5;
constexpr std::int32_t kSunday = kMonday + 6;

// One search: FindSecondDate from the first date, FindFirstDate from the second.
enum class Search { Second, First };

struct Outcome {
    bool found = false;
    std::int32_t day = 0;
    FakeComputeWindow window;
};

Outcome Find(Search search, std::int32_t given, std::int32_t difference, bool countWeekendDays,
             bool includeFirstDate, LanguageNumber language = LanguageEnglish) {
    ComputeState state;
    state.DateDifference = difference;
    state.options.countWeekendDays = countWeekendDays;
    state.options.includeFirstDate = includeFirstDate;
    state.options.texts.InterfaceLanguage = language;
    Outcome outcome;
    if (search == Search::Second) {
        state.FirstDateRecord.jdn = given;
        outcome.found = FindSecondDate(outcome.window, state);
        outcome.day = state.SecondDateRecord.jdn;
    } else {
        state.SecondDateRecord.jdn = given;
        outcome.found = FindFirstDate(outcome.window, state);
        outcome.day = state.FirstDateRecord.jdn;
    }
    return outcome;
}

struct FindCase {
    std::string name;
    Search search;
    std::int32_t given;
    std::int32_t difference;
    bool countWeekendDays;
    bool includeFirstDate;
    std::int32_t found;
};

void PrintTo(const FindCase& row, std::ostream* out) {
    *out << row.name;
}

class FindDateTest : public testing::TestWithParam<FindCase> {};

TEST_P(FindDateTest, FindsTheDay) {
    const FindCase& row = GetParam();
    const Outcome outcome =
        Find(row.search, row.given, row.difference, row.countWeekendDays, row.includeFirstDate);
    EXPECT_TRUE(outcome.found);
    EXPECT_EQ(outcome.day, row.found);
    EXPECT_EQ(outcome.window.log, std::vector<std::string>{"focus"});
}

INSTANTIATE_TEST_SUITE_P(
    SecondDate, FindDateTest,
    testing::Values(
        FindCase{"Zero", Search::Second, kMonday, 0, true, false, kMonday},
        FindCase{"PlusTen", Search::Second, kMonday, 10, true, false, kMonday + 10},
        FindCase{"MinusTen", Search::Second, kMonday, -10, true, false, kMonday - 10},
        FindCase{"PlusTenWithTheFirst", Search::Second, kMonday, 10, true, true, kMonday + 9},
        FindCase{"MinusTenWithTheFirst", Search::Second, kMonday, -10, true, true, kMonday - 9},
        FindCase{"PlusOneWithTheFirst", Search::Second, kMonday, 1, true, true, kMonday},
        FindCase{"MondayPlusFiveWeekdays", Search::Second, kMonday, 5, false, false, kMonday + 7},
        FindCase{"MondayMinusFiveWeekdays", Search::Second, kMonday, -5, false, false, kMonday - 7},
        FindCase{"FridayPlusOneWeekday", Search::Second, kFriday, 1, false, false, kMonday + 7},
        FindCase{"MondayMinusOneWeekday", Search::Second, kMonday, -1, false, false, kFriday - 7},
        FindCase{"MondayPlusOneWeekdayWithTheFirst", Search::Second, kMonday, 1, false, true, kMonday},
        FindCase{"MondayPlusSixWeekdaysWithTheFirst", Search::Second, kMonday, 6, false, true, kMonday + 7},
        FindCase{"SaturdayPlusOneWeekday", Search::Second, kSaturday, 1, false, false, kMonday + 7},
        FindCase{"SaturdayPlusSixWeekdays", Search::Second, kSaturday, 6, false, false, kMonday + 14},
        FindCase{"FourWeekdays", Search::Second, kFriday, 4, false, false, kFriday + 6},
        FindCase{"ManyWeekdays", Search::Second, kMonday, 1000000, false, false, kMonday + 1400000}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    FirstDate, FindDateTest,
    testing::Values(
        FindCase{"Zero", Search::First, kMonday, 0, true, false, kMonday},
        FindCase{"MinusTen", Search::First, kMonday, 10, true, false, kMonday - 10},
        FindCase{"PlusTen", Search::First, kMonday, -10, true, false, kMonday + 10},
        FindCase{"MinusTenWithTheFirst", Search::First, kMonday, 10, true, true, kMonday - 9},
        FindCase{"PlusTenWithTheFirst", Search::First, kMonday, -10, true, true, kMonday + 9},
        FindCase{"MondayMinusFiveWeekdays", Search::First, kMonday, 5, false, false, kMonday - 7},
        FindCase{"MondayPlusFiveWeekdays", Search::First, kMonday, -5, false, false, kMonday + 7},
        FindCase{"SundayMinusOneWeekday", Search::First, kSunday, 1, false, false, kMonday + 3},
        FindCase{"SundayPlusOneWeekday", Search::First, kSunday, -1, false, false, kMonday + 7},
        FindCase{"MondayMinusOneWeekdayWithTheFirst", Search::First, kMonday, 1, false, true, kMonday},
        FindCase{"MondayPlusOneWeekdayWithTheFirst", Search::First, kMonday, -1, false, true, kMonday},
        FindCase{"TuesdayMinusSixWeekdaysWithTheFirst", Search::First, kMonday + 1, 6, false, true,
                 kMonday - 6},
        FindCase{"ManyWeekdays", Search::First, kMonday, 1000000, false, false, kMonday - 1400000}),
    [](const auto& row) { return row.param.name; });

// Deliberate: the two directions are no mirrors of each other.
INSTANTIATE_TEST_SUITE_P(
    DeliberateAsymmetries, FindDateTest,
    testing::Values(
        // A weekend date that is given first keeps its weekday when no rest is stepped; one that is given
        // second is moved to Friday.
        FindCase{"SaturdayPlusFiveWeekdaysStaysSaturday", Search::Second, kSaturday, 5, false, false,
                 kSaturday + 7},
        FindCase{"SaturdayMinusFiveWeekdaysStaysSaturday", Search::Second, kSaturday, -5, false, false,
                 kSaturday - 7},
        FindCase{"SaturdayMinusFiveWeekdaysBecomesFriday", Search::First, kSaturday, 5, false, false,
                 kFriday - 7},
        FindCase{"SundayPlusFiveWeekdaysBecomesFriday", Search::First, kSunday, -5, false, false,
                 kFriday + 7},
        // The first date is taken off the count beforehand when it is given, and moved when it is found.
        FindCase{"SaturdayGivenFirstIsNotTakenOff", Search::Second, kSaturday, 1, false, true, kMonday + 7},
        FindCase{"MondayGivenFirstIsTakenOff", Search::Second, kMonday, 2, false, true, kMonday + 1},
        FindCase{"FoundFridayMovesOnToMonday", Search::First, kMonday, 1, false, true, kMonday},
        FindCase{"FoundMondayMovesBackToFriday", Search::First, kFriday, -1, false, true, kFriday},
        // A difference of 0 is no count of weekdays: a weekend stays a weekend.
        FindCase{"ZeroKeepsASaturday", Search::Second, kSaturday, 0, false, true, kSaturday},
        FindCase{"ZeroKeepsASunday", Search::First, kSunday, 0, false, true, kSunday}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Limits, FindDateTest,
    testing::Values(
        FindCase{"LargestSecond", Search::Second, 2000000000, 100000000, true, false, 2100000000},
        FindCase{"SmallestSecond", Search::Second, -2000000000, -100000000, true, false, -2100000000},
        FindCase{"LargestSecondBackFromBeyond", Search::Second, 2000000000, 100000001, true, true,
                 2100000000},
        FindCase{"LargestFirst", Search::First, 2000000000, -100000000, true, false, 2100000000},
        FindCase{"SmallestFirst", Search::First, -2000000000, 100000000, true, false, -2100000000},
        FindCase{"DeliberateZeroNeverFailsForASecondDate", Search::Second, 2120000000, 0, true, false,
                 2120000000},
        FindCase{"DeliberateZeroNeverFailsForAFirstDate", Search::First, -2120000000, 0, false, true,
                 -2120000000}),
    [](const auto& row) { return row.param.name; });

class ResultOutOfRangeTest : public testing::TestWithParam<FindCase> {};

TEST_P(ResultOutOfRangeTest, IsRefusedInTheLanguageOfTheInterface) {
    const FindCase& row = GetParam();
    for (const LanguageNumber language : {LanguageEnglish, LanguageGerman, LanguageSpanish}) {
        const Outcome outcome =
            Find(row.search, row.given, row.difference, row.countWeekendDays, row.includeFirstDate, language);
        EXPECT_FALSE(outcome.found);
        ASSERT_EQ(outcome.window.log.size(), 2U);
        ASSERT_EQ(outcome.window.messages.size(), 1U);
        EXPECT_EQ(outcome.window.messages[0].prompt,
                  ComputeMessageText(ComputeMessage::ResultOutOfRange, language));
        EXPECT_EQ(outcome.window.log[1], "focus");
        if (row.found != 0) {
            EXPECT_EQ(outcome.day, row.found) << "the record keeps the day that was refused";
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Days, ResultOutOfRangeTest,
    testing::Values(
        FindCase{"SecondAboveTheLimit", Search::Second, 2000000000, 100000001, true, false, 2100000001},
        FindCase{"SecondBelowTheLimit", Search::Second, -2000000000, -100000001, true, false, -2100000001},
        FindCase{"FirstAboveTheLimit", Search::First, 2000000000, -100000001, true, false, 2100000001},
        FindCase{"FirstBelowTheLimit", Search::First, -2000000000, 100000001, true, false, -2100000001},
        FindCase{"SecondBeyond32Bits", Search::Second, 2000000000, 2000000000, true, false, 0},
        FindCase{"FirstBeyond32Bits", Search::First, -2000000000, 2000000000, true, false, 0},
        FindCase{"SecondOfWeekdays", Search::Second, 2100000000, 5, false, false, 2100000007},
        FindCase{"FirstOfWeekdays", Search::First, -2100000000, 5, false, false, 0},
        // Each of these would end inside the limits, were it not for a step that leaves 32 bits.
        FindCase{"WeeksBeyond32Bits", Search::Second, -2100000000, 1600000000, false, false, 0},
        FindCase{"WeeksBackBeyond32Bits", Search::Second, 2100000000, -1600000000, false, false, 0},
        FindCase{"WeeksBeyond32BitsForAFirstDate", Search::First, 2100000000, 1600000000, false, false, 0},
        FindCase{"FirstDateIncludedAfterOverflow", Search::Second, 2100000000, 47483648, true, true, 0}),
    [](const auto& row) { return row.param.name; });

TEST(FindDate, LeavesTheRecordAloneWhenAStepLeaves32Bits) {
    // With the first date included the last step would lead back into 32 bits.
    FakeComputeWindow window;
    ComputeState state;
    state.options.includeFirstDate = true;
    state.FirstDateRecord.jdn = 2100000000;
    state.SecondDateRecord.jdn = 7;
    state.DateDifference = 47483648;
    EXPECT_FALSE(FindSecondDate(window, state));
    EXPECT_EQ(state.SecondDateRecord.jdn, 7);

    state.SecondDateRecord.jdn = -2100000000;
    state.FirstDateRecord.jdn = 7;
    state.DateDifference = 47483649;
    EXPECT_FALSE(FindFirstDate(window, state));
    EXPECT_EQ(state.FirstDateRecord.jdn, 7);
}

bool IsWorkingDay(std::int32_t day) {
    return ((day - kMonday) % 7 + 7) % 7 < 5;
}

// Steps weekday by weekday, without weeks.
std::int32_t Walk(std::int32_t day, std::int32_t weekdays, std::int32_t step) {
    while (weekdays > 0) {
        day += step;
        if (IsWorkingDay(day)) --weekdays;
    }
    return day;
}

std::int32_t NaiveSecond(std::int32_t first, std::int32_t difference, bool includeFirstDate) {
    const std::int32_t step = difference > 0 ? 1 : -1;
    std::int32_t count = difference * step;
    if (includeFirstDate && IsWorkingDay(first)) --count;
    // A start on a weekend that is left in whole weeks alone never meets a weekday to stop at.
    if (!IsWorkingDay(first) && count % 5 == 0) return first + step * (count / 5) * 7;
    return Walk(first, count, step);
}

std::int32_t NaiveFirst(std::int32_t second, std::int32_t difference, bool includeFirstDate) {
    const std::int32_t towardSecond = difference > 0 ? 1 : -1;
    std::int32_t start = second;
    while (!IsWorkingDay(start)) --start;
    const std::int32_t found = Walk(start, difference * towardSecond, -towardSecond);
    return includeFirstDate ? Walk(found, 1, towardSecond) : found;
}

TEST(FindDate, AgreesWithSteppingDayByDay) {
    int steps = 0;
    for (std::int32_t given = kMonday; given < kMonday + 7; ++given) {
        for (std::int32_t difference = -40; difference <= 40; ++difference) {
            if (difference == 0) continue;
            for (const bool includeFirstDate : {false, true}) {
                const Outcome second = Find(Search::Second, given, difference, false, includeFirstDate);
                ASSERT_TRUE(second.found);
                ASSERT_EQ(second.day, NaiveSecond(given, difference, includeFirstDate))
                    << given << " plus " << difference << ", first " << includeFirstDate;
                const Outcome first = Find(Search::First, given, difference, false, includeFirstDate);
                ASSERT_TRUE(first.found);
                ASSERT_EQ(first.day, NaiveFirst(given, difference, includeFirstDate))
                    << given << " minus " << difference << ", first " << includeFirstDate;
                ++steps;
            }
        }
    }
    EXPECT_EQ(steps, 7 * 80 * 2);
}

TEST(FindDate, SetsTheDayNumberAlone) {
    FakeComputeWindow window;
    ComputeState state;
    state.FirstDateRecord = {.year = 2021, .month = 3, .day = 1, .calendar = CalendarCode::G, .jdn = kMonday};
    state.DateDifference = 3;
    ASSERT_TRUE(FindSecondDate(window, state));
    EXPECT_EQ(state.SecondDateRecord, (DateRecord{.jdn = kMonday + 3}));
}

struct RecordRow {
    std::string name;
    CalendarNumber calendar;
    DateRecord record;  // of 29 February 2024 CE
};

void PrintTo(const RecordRow& row, std::ostream* out) {
    *out << row.name;
}

class RecordWithMonthOf : public testing::TestWithParam<RecordRow> {};

TEST_P(RecordWithMonthOf, HasTheDayInItsCalendar) {
    EXPECT_TRUE(HasMonths(GetParam().calendar));
    EXPECT_EQ(RecordWithMonth(2460370, GetParam().calendar), GetParam().record);
}

INSTANTIATE_TEST_SUITE_P(
    Calendars, RecordWithMonthOf,
    testing::Values(RecordRow{"CommonEra", CalendarNumber::CE, {2024, 2, 29, CalendarCode::G, 2460370}},
                    RecordRow{"Julian", CalendarNumber::JC, {2024, 2, 16, CalendarCode::J, 2460370}},
                    RecordRow{
                        "LeapWeekMonths", CalendarNumber::LPM, {2024, 3, 4, CalendarCode::Unset, 2460370}}),
    [](const auto& row) { return row.param.name; });

TEST(RecordWithMonth, IsWantedForCalendarsWithMonthsAlone) {
    for (const CalendarNumber calendar :
         {CalendarNumber::ISO, CalendarNumber::ORD, CalendarNumber::LPW, CalendarNumber::JDN}) {
        EXPECT_FALSE(HasMonths(calendar)) << static_cast<int>(calendar);
    }
}

TEST(FindDateByMonths, FillsTheWholeRecord) {
    FakeComputeWindow window;
    ComputeState state;
    state.FirstDateRecord = {
        .year = 2024, .month = 1, .day = 31, .calendar = CalendarCode::G, .jdn = 2460341};
    state.DateDifference = 1;
    ASSERT_TRUE(FindSecondDateByMonths(window, state));
    EXPECT_EQ(state.SecondDateRecord,
              (DateRecord{.year = 2024, .month = 2, .day = 29, .calendar = CalendarCode::G, .jdn = 2460370}));
    ASSERT_TRUE(FindFirstDateByMonths(window, state));
    EXPECT_EQ(state.FirstDateRecord,
              (DateRecord{.year = 2024, .month = 1, .day = 29, .calendar = CalendarCode::G, .jdn = 2460339}));
    EXPECT_TRUE(window.log.empty());
}

}  // namespace
}  // namespace calvoro
