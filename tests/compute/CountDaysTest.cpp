#include "compute/CountDays.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>

#include "compute/ComputeMessages.h"
#include "tests/support/FakeComputeWindow.h"

namespace calvoro {
namespace {

constexpr std::int32_t kMonday = 2459275;  // 2021-03-01 CE

ComputeState TwoDates(std::int32_t first, std::int32_t second, bool countWeekendDays, bool includeFirstDate) {
    ComputeState state;
    state.FirstDateRecord.jdn = first;
    state.SecondDateRecord.jdn = second;
    state.options.countWeekendDays = countWeekendDays;
    state.options.includeFirstDate = includeFirstDate;
    return state;
}

struct CountCase {
    std::string name;
    std::int32_t first;
    std::int32_t second;
    bool countWeekendDays;
    bool includeFirstDate;
    std::int32_t difference;
};

void PrintTo(const CountCase& row, std::ostream* out) {
    *out << row.name;
}

class CountDaysBetweenTest : public testing::TestWithParam<CountCase> {};

TEST_P(CountDaysBetweenTest, Counts) {
    const CountCase& row = GetParam();
    FakeComputeWindow window;
    ComputeState state = TwoDates(row.first, row.second, row.countWeekendDays, row.includeFirstDate);
    EXPECT_TRUE(CountDaysBetween(window, state));
    EXPECT_EQ(state.DateDifference, row.difference);
    EXPECT_EQ(window.log, std::vector<std::string>{"focus"});
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CountDaysBetweenTest,
    testing::Values(CountCase{"AWeek", kMonday, kMonday + 7, true, false, 7},
                    CountCase{"AWeekOfWeekdays", kMonday, kMonday + 7, false, false, 5},
                    CountCase{"AWeekOfWeekdaysWithTheFirst", kMonday, kMonday + 7, false, true, 6},
                    CountCase{"AWeekBackOfWeekdays", kMonday + 7, kMonday, false, false, -5},
                    CountCase{"AWeekBackOfWeekdaysWithTheFirst", kMonday + 7, kMonday, false, true, -6},
                    CountCase{"AWeekBackWithTheFirst", kMonday + 7, kMonday, true, true, -8},
                    CountCase{"SaturdayItself", kMonday + 5, kMonday + 5, true, false, 0},
                    CountCase{"SaturdayItselfWithTheFirst", kMonday + 5, kMonday + 5, true, true, 1},
                    CountCase{"SaturdayItselfOfWeekdaysWithTheFirst", kMonday + 5, kMonday + 5, false, true,
                              0},
                    CountCase{"MondayItself", kMonday, kMonday, false, false, 0},
                    CountCase{"MondayItselfOfWeekdaysWithTheFirst", kMonday, kMonday, false, true, 1},
                    CountCase{"FridayToMonday", kMonday + 4, kMonday + 7, false, false, 1},
                    CountCase{"MondayBackToFriday", kMonday + 7, kMonday + 4, false, false, -1},
                    CountCase{"SaturdayToSunday", kMonday + 5, kMonday + 6, false, false, 0},
                    CountCase{"SundayBackToSaturday", kMonday + 6, kMonday + 5, false, false, 0},
                    CountCase{"SaturdayToSundayWithTheFirst", kMonday + 5, kMonday + 6, false, true, 0},
                    CountCase{"SaturdayToMonday", kMonday + 5, kMonday + 7, false, false, 1},
                    CountCase{"MondayBackToSaturday", kMonday + 7, kMonday + 5, false, false, -1},
                    // Deliberate: an included first date moves the count away from zero, either way.
                    CountCase{"DeliberateNegativeGrowsMoreNegative", kMonday + 2, kMonday, true, true, -3},
                    CountCase{"FridayToSaturdayWithTheFirst", kMonday + 4, kMonday + 5, false, true, 1},
                    CountCase{"TwoDaysBeforeDayZero", 0, -2, true, false, -2},
                    CountCase{"AcrossDayZeroOfWeekdays", -7, 7, false, false, 10},
                    CountCase{"TheLongestSpan", -47483647, 2100000000, true, false, 2147483647},
                    CountCase{"TheLongestSpanBack", 47483648, -2100000000, true, false, -2147483647 - 1},
                    CountCase{"TheLongestSpanOfWeekdays", -47483647, 2100000000, false, false, 1533916891}),
    [](const auto& row) { return row.param.name; });

struct OverflowCase {
    std::string name;
    std::int32_t first;
    std::int32_t second;
    bool countWeekendDays;
    bool includeFirstDate;
};

void PrintTo(const OverflowCase& row, std::ostream* out) {
    *out << row.name;
}

class CountDaysOverflowTest : public testing::TestWithParam<OverflowCase> {};

TEST_P(CountDaysOverflowTest, IsOutOfRange) {
    const OverflowCase& row = GetParam();
    for (const LanguageNumber language : {LanguageEnglish, LanguageGerman, LanguageSpanish}) {
        FakeComputeWindow window;
        ComputeState state = TwoDates(row.first, row.second, row.countWeekendDays, row.includeFirstDate);
        state.options.texts.InterfaceLanguage = language;
        EXPECT_FALSE(CountDaysBetween(window, state));
        ASSERT_EQ(window.messages.size(), 1U);
        EXPECT_EQ(window.messages[0].prompt, ComputeMessageText(ComputeMessage::ResultOutOfRange, language));
        EXPECT_EQ(window.output, "");
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CountDaysOverflowTest,
    testing::Values(OverflowCase{"Difference", -47483648, 2100000000, true, false},
                    OverflowCase{"DifferenceBack", 47483649, -2100000000, true, false},
                    OverflowCase{"DifferenceOfWeekdays", -47483648, 2100000000, false, false},
                    // The magnitude of -2147483648 does not fit, although the count of weekdays would.
                    OverflowCase{"MagnitudeOfWeekdays", 47483648, -2100000000, false, false},
                    OverflowCase{"FirstDateIncluded", -47483647, 2100000000, true, true},
                    OverflowCase{"FirstDateIncludedBack", 47483648, -2100000000, true, true}),
    [](const auto& row) { return row.param.name; });

bool IsWorkingDay(std::int32_t day) {
    const std::int32_t fromMonday = ((day - kMonday) % 7 + 7) % 7;
    return fromMonday < 5;
}

// Counts day by day: what lies after the earlier date up to and including the later one.
std::int32_t NaiveCount(std::int32_t first, std::int32_t second, bool countWeekendDays,
                        bool includeFirstDate) {
    const std::int32_t sign = second < first ? -1 : 1;
    std::int32_t count = 0;
    for (std::int32_t day = std::min(first, second) + 1; day <= std::max(first, second); ++day) {
        if (countWeekendDays || IsWorkingDay(day)) count += sign;
    }
    if (includeFirstDate && (countWeekendDays || IsWorkingDay(first))) count += count < 0 ? -1 : 1;
    return count;
}

TEST(CountDaysBetween, AgreesWithCountingDayByDay) {
    int steps = 0;
    for (std::int32_t first = kMonday; first < kMonday + 7; ++first) {
        for (std::int32_t second = first - 60; second <= first + 60; ++second) {
            for (const bool countWeekendDays : {false, true}) {
                for (const bool includeFirstDate : {false, true}) {
                    FakeComputeWindow window;
                    ComputeState state = TwoDates(first, second, countWeekendDays, includeFirstDate);
                    ASSERT_TRUE(CountDaysBetween(window, state));
                    ASSERT_EQ(state.DateDifference,
                              NaiveCount(first, second, countWeekendDays, includeFirstDate))
                        << first << " to " << second << ", weekends " << countWeekendDays << ", first "
                        << includeFirstDate;
                    ++steps;
                }
            }
        }
    }
    EXPECT_EQ(steps, 7 * 121 * 4);
}

}  // namespace
}  // namespace calvoro
