#include "compute/ComputeClick.h"

#include <gtest/gtest.h>

#include "tests/compute/ClickCase.h"

namespace calvoro {
namespace {

// Which boxes hold text decides what happens. "scroll" is the caret put before the end of the output.

class FillingTest : public ClickTest {};

TEST_P(FillingTest, DecidesTheTask) {
    ExpectClick(GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    Fillings, FillingTest,
    testing::Values(
        ClickCase{"NothingMeansToday",
                  "",
                  "",
                  "",
                  [](FakeComputeWindow& window) { window.todayJdn = 2459278; },
                  {"today", "first := 2021-03-04", "focus", "output: 2021-03-04 CE = 2021-03-04 CE\r\n",
                   "scroll", "focus"},
                  ClickOutcome::Result},
        ClickCase{"NothingMeansTodayInTheFirstCalendar",
                  "",
                  "",
                  "",
                  [](FakeComputeWindow& window) { window.options.firstCalendar = CalendarNumber::ISO; },
                  {"today", "first := 2021-W09-4", "focus", "output: 2021-W09-4 ISO = 2021-03-04 CE\r\n",
                   "scroll", "focus"},
                  ClickOutcome::Result},
        ClickCase{"NothingMeansTodayInMonthsToo",
                  "",
                  "",
                  "",
                  [](FakeComputeWindow& window) { window.options.unit = DifferenceUnit::Months; },
                  {"today", "first := 2021-03-04", "focus", "output: 2021-03-04 CE = 2021-03-04 CE\r\n",
                   "scroll", "focus"},
                  ClickOutcome::Result},
        ClickCase{
            "ADifferenceAloneMovesTheFocusOnly", "", "10", "", nullptr, {"focus"}, ClickOutcome::Stopped},
        ClickCase{
            "AWrongDifferenceAloneMovesTheFocusOnly", "", "x", "", nullptr, {"focus"}, ClickOutcome::Stopped},
        ClickCase{
            "AFirstDateAloneIsConverted",
            "2021-03-04",
            "",
            "",
            [](FakeComputeWindow& window) { window.options.secondCalendar = CalendarNumber::JC; },
            {"first := 2021-03-04", "focus", "output: 2021-03-04 CE = 2021-02-19 JC\r\n", "scroll", "focus"},
            ClickOutcome::Result},
        ClickCase{
            "ASecondDateAloneIsConverted",
            "",
            "",
            "2021-03-04",
            [](FakeComputeWindow& window) { window.options.firstCalendar = CalendarNumber::JC; },
            {"second := 2021-03-04", "focus", "output: 2021-03-04 CE = 2021-02-19 JC\r\n", "scroll", "focus"},
            ClickOutcome::Result},
        ClickCase{
            "AFirstDateAloneIsConvertedInMonthsToo",
            "2021-03-04",
            "",
            "",
            [](FakeComputeWindow& window) {
                window.options.unit = DifferenceUnit::Months;
                window.options.secondCalendar = CalendarNumber::JC;
            },
            {"first := 2021-03-04", "focus", "output: 2021-03-04 CE = 2021-02-19 JC\r\n", "scroll", "focus"},
            ClickOutcome::Result},
        ClickCase{
            "ASecondDateAloneIsConvertedInMonthsToo",
            "",
            "",
            "2021-03-04",
            [](FakeComputeWindow& window) {
                window.options.unit = DifferenceUnit::Months;
                window.options.firstCalendar = CalendarNumber::JC;
            },
            {"second := 2021-03-04", "focus", "output: 2021-03-04 CE = 2021-02-19 JC\r\n", "scroll", "focus"},
            ClickOutcome::Result},
        ClickCase{"FirstDateAndDifference",
                  "2021-03-04",
                  "10",
                  "",
                  nullptr,
                  {"difference := 10", "first := 2021-03-04", "focus",
                   "output: 2021-03-04 CE plus 10 days = 2021-03-14 CE\r\n", "scroll", "focus"},
                  ClickOutcome::Result},
        ClickCase{"SecondDateAndDifference",
                  "",
                  "10",
                  "2021-03-14",
                  nullptr,
                  {"second := 2021-03-14", "difference := 10", "focus",
                   "output: 2021-03-14 CE minus 10 days = 2021-03-04 CE\r\n", "scroll", "focus"},
                  ClickOutcome::Result},
        ClickCase{"BothDates",
                  "2021-03-04",
                  "",
                  "2021-03-14",
                  nullptr,
                  {"second := 2021-03-14", "first := 2021-03-04", "focus",
                   "output: 2021-03-04 CE to 2021-03-14 CE = 10 days\r\n", "scroll", "focus"},
                  ClickOutcome::Result},
        ClickCase{"AllThreeAndNoneIsGivenUp",
                  "2021-03-04",
                  "10",
                  "2021-03-14",
                  nullptr,
                  {"ask", "focus"},
                  ClickOutcome::Stopped},
        ClickCase{"AllThreeAndTheFirstDateIsGivenUp",
                  "2021-03-04",
                  "10",
                  "2021-03-14",
                  [](FakeComputeWindow& window) { window.boxToClear = InputBox::FirstDate; },
                  {"ask", "second := 2021-03-14", "difference := 10", "focus",
                   "output: 2021-03-14 CE minus 10 days = 2021-03-04 CE\r\n", "scroll", "focus"},
                  ClickOutcome::Result},
        ClickCase{"AllThreeAndTheDifferenceIsGivenUp",
                  "2021-03-04",
                  "10",
                  "2021-03-14",
                  [](FakeComputeWindow& window) { window.boxToClear = InputBox::Difference; },
                  {"ask", "second := 2021-03-14", "first := 2021-03-04", "focus",
                   "output: 2021-03-04 CE to 2021-03-14 CE = 10 days\r\n", "scroll", "focus"},
                  ClickOutcome::Result},
        ClickCase{"AllThreeAndTheSecondDateIsGivenUp",
                  "2021-03-04",
                  "10",
                  "2021-03-14",
                  [](FakeComputeWindow& window) { window.boxToClear = InputBox::SecondDate; },
                  {"ask", "difference := 10", "first := 2021-03-04", "focus",
                   "output: 2021-03-04 CE plus 10 days = 2021-03-14 CE\r\n", "scroll", "focus"},
                  ClickOutcome::Result},
        ClickCase{"AllThreeInMonthsAndTheDifferenceIsGivenUp",
                  "2021-03-04",
                  "10",
                  "2021-03-14",
                  [](FakeComputeWindow& window) {
                      window.options.unit = DifferenceUnit::Months;
                      window.boxToClear = InputBox::Difference;
                  },
                  {"ask",
                   "Compute: The number of months between two dates is not available.\r\n"
                   "The difference is now counted in days: please click again.",
                   "days", "focus"},
                  ClickOutcome::NoResult}),
    RowName<ClickCase>);

TEST(ComputeClick, TrimsBlanksOnlyAndWritesTheTextsBackInOrder) {
    FakeComputeWindow window("  2021-03-04 ", "   ", " \t ");
    ComputeState state;
    EXPECT_EQ(cmdCompute_Click(window, state), ClickOutcome::NoResult);
    ASSERT_GE(window.log.size(), 4U);
    EXPECT_EQ(window.log[0], "first := 2021-03-04");
    EXPECT_EQ(window.log[1], "difference := ");
    EXPECT_EQ(window.log[2], "second := \t");
    EXPECT_EQ(window.log[3],
              "Error!: Second date is not valid in specified calendar using specified date format.")
        << "a tab is no blank, so a second date was given";
}

TEST(ComputeClick, TakesBoxesOfBlanksAsEmpty) {
    FakeComputeWindow window("   ", " 5 ", "  ");
    ComputeState state;
    EXPECT_EQ(cmdCompute_Click(window, state), ClickOutcome::Stopped);
    EXPECT_EQ(window.Difference(), "5");
    EXPECT_EQ(window.output, "");
    EXPECT_TRUE(window.messages.empty());
}

TEST(ComputeClick, ReadsTheOptionsOnceAndOnlyWhenItComputes) {
    FakeComputeWindow stopped("", "5", "");
    ComputeState state;
    cmdCompute_Click(stopped, state);
    EXPECT_EQ(stopped.optionSnapshots, 0);

    FakeComputeWindow window("2021-03-04", "5", "");
    cmdCompute_Click(window, state);
    EXPECT_EQ(window.optionSnapshots, 1);
}

TEST(ComputeClick, PutsTheCaretBeforeTheLastCharacterOfTheOutput) {
    FakeComputeWindow window("2021-03-04", "5", "");
    ComputeState state;
    cmdCompute_Click(window, state);
    ASSERT_FALSE(window.output.empty());
    EXPECT_EQ(window.caret, window.output.size() - 1);
}

TEST(ComputeClick, AppendsLineAfterLine) {
    FakeComputeWindow window("2021-03-04", "5", "");
    window.options.verbose = false;
    ComputeState state;
    cmdCompute_Click(window, state);
    cmdCompute_Click(window, state);
    EXPECT_EQ(window.output,
              "2021-03-04 CE plus 5 days = 2021-03-09 CE\r\n2021-03-04 CE plus 5 days = 2021-03-09 CE\r\n");
}

TEST(ComputeClick, KeepsRecordsDifferenceAndEchoesForTheNextRoutine) {
    FakeComputeWindow window("2021-03-04", "-10", "");
    ComputeState state;
    cmdCompute_Click(window, state);
    EXPECT_EQ(state.FirstDateRecord.jdn, 2459278);
    EXPECT_EQ(state.FirstDateRecord.year, 2021);
    EXPECT_EQ(state.SecondDateRecord.jdn, 2459268);
    EXPECT_EQ(state.DateDifference, -10);
    EXPECT_EQ(state.FirstDateEcho, "2021-03-04 CE");

    FakeComputeWindow stopped("", "7", "");
    EXPECT_EQ(cmdCompute_Click(stopped, state), ClickOutcome::Stopped);
    EXPECT_EQ(state.DateDifference, -10);
    EXPECT_EQ(state.FirstDateEcho, "2021-03-04 CE");
}

struct SameCalendarCase {
    std::string name;
    std::string first;
    std::string difference;
    std::string second;
    CalendarNumber firstCalendar;
    CalendarNumber secondCalendar;
    bool expected;
};

void PrintTo(const SameCalendarCase& row, std::ostream* out) {
    *out << row.name;
}

class SingleDateSameCalendarTest : public testing::TestWithParam<SameCalendarCase> {};

TEST_P(SingleDateSameCalendarTest, IsTrueForOneDateAndOneCalendar) {
    const SameCalendarCase& row = GetParam();
    FakeComputeWindow window(row.first, row.difference, row.second);
    window.options.firstCalendar = row.firstCalendar;
    window.options.secondCalendar = row.secondCalendar;
    ComputeState state;
    state.SingleDateSameCalendar = !row.expected;
    EXPECT_EQ(cmdCompute_Click(window, state), ClickOutcome::Result);
    EXPECT_EQ(state.SingleDateSameCalendar, row.expected);
}

constexpr auto kCE = CalendarNumber::CE;
constexpr auto kJC = CalendarNumber::JC;

INSTANTIATE_TEST_SUITE_P(
    Fillings, SingleDateSameCalendarTest,
    testing::Values(SameCalendarCase{"FirstAlone", "2021-03-04", "", "", kCE, kCE, true},
                    SameCalendarCase{"SecondAlone", "", "", "2021-03-04", kCE, kCE, true},
                    SameCalendarCase{"Today", "", "", "", kCE, kCE, true},
                    SameCalendarCase{"FirstAloneInJC", "2021-03-04", "", "", kJC, kJC, true},
                    SameCalendarCase{"FirstAloneInISO", "2021-W09-4", "", "", CalendarNumber::ISO,
                                     CalendarNumber::ISO, true},
                    SameCalendarCase{"FirstAloneInORD", "2021-063", "", "", CalendarNumber::ORD,
                                     CalendarNumber::ORD, true},
                    SameCalendarCase{"FirstAloneInJDN", "2459278", "", "", CalendarNumber::JDN,
                                     CalendarNumber::JDN, true},
                    SameCalendarCase{"FirstAloneInLPM", "2021-03-04", "", "", CalendarNumber::LPM,
                                     CalendarNumber::LPM, true},
                    SameCalendarCase{"FirstAloneInLPW", "2021-10-4", "", "", CalendarNumber::LPW,
                                     CalendarNumber::LPW, true},
                    SameCalendarCase{"FirstAloneIntoAnotherCalendar", "2021-03-04", "", "", kCE, kJC, false},
                    SameCalendarCase{"SecondAloneIntoAnotherCalendar", "", "", "2021-03-04", kJC, kCE, false},
                    SameCalendarCase{"FirstAndDifference", "2021-03-04", "0", "", kCE, kCE, false},
                    SameCalendarCase{"SecondAndDifference", "", "0", "2021-03-04", kCE, kCE, false},
                    SameCalendarCase{"BothDates", "2021-03-04", "", "2021-03-04", kCE, kCE, false}),
    [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace calvoro
