// The examples by which the whole computation is known.

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "compute/ComputeClick.h"
#include "tests/support/FakeComputeWindow.h"

namespace calvoro {
namespace {

using Messages = std::vector<FakeComputeWindow::Message>;

struct ExampleCase {
    std::string name;
    std::string first;
    std::string difference;
    std::string second;
    void (*choose)(ComputeOptions& options);
    std::string output;
    Messages messages;
};

void PrintTo(const ExampleCase& row, std::ostream* out) {
    *out << row.name;
}

class AcceptanceTest : public testing::TestWithParam<ExampleCase> {};

TEST_P(AcceptanceTest, Holds) {
    const ExampleCase& row = GetParam();
    FakeComputeWindow window(row.first, row.difference, row.second);
    window.options.verbose = false;
    row.choose(window.options);
    ComputeState state;
    const ClickOutcome outcome = cmdCompute_Click(window, state);
    EXPECT_EQ(window.output, row.output);
    EXPECT_EQ(outcome, row.messages.empty() ? ClickOutcome::Result : ClickOutcome::NoResult);
    ASSERT_EQ(window.messages.size(), row.messages.size());
    for (std::size_t i = 0; i < row.messages.size(); ++i) {
        EXPECT_EQ(window.messages[i].prompt, row.messages[i].prompt);
        EXPECT_EQ(window.messages[i].title, row.messages[i].title);
    }
}

void Nothing(ComputeOptions& /*options*/) {}
void Months(ComputeOptions& options) {
    options.unit = DifferenceUnit::Months;
}

const FakeComputeWindow::Message kResultOutOfRange = {"Result is out of range.", "Error!"};

INSTANTIATE_TEST_SUITE_P(
    Examples, AcceptanceTest,
    testing::Values(
        ExampleCase{"DaysAddedAndConverted",
                    "2021-03-04",
                    "10",
                    "",
                    [](ComputeOptions& options) { options.secondCalendar = CalendarNumber::JC; },
                    "2021-03-04 CE plus 10 days = 2021-03-01 JC\r\n",
                    {}},
        ExampleCase{"DaysAddedVerbosely",
                    "2021-03-04",
                    "10",
                    "",
                    [](ComputeOptions& options) {
                        options.secondCalendar = CalendarNumber::JC;
                        options.verbose = true;
                    },
                    "2021-03-04 CE plus 10 days = 2021-03-01 JC, Sunday, excluding 1st date\r\n",
                    {}},
        ExampleCase{"DaysBetween",
                    "2021-03-01",
                    "",
                    "2021-03-08",
                    Nothing,
                    "2021-03-01 CE to 2021-03-08 CE = 7 days\r\n",
                    {}},
        ExampleCase{"ThirtyDaysBetween",
                    "2021-03-01",
                    "",
                    "2021-03-31",
                    Nothing,
                    "2021-03-01 CE to 2021-03-31 CE = 30 days\r\n",
                    {}},
        ExampleCase{"ThirtyOneDaysBetween",
                    "2021-03-01",
                    "",
                    "2021-04-01",
                    Nothing,
                    "2021-03-01 CE to 2021-04-01 CE = 31 days (1 month)\r\n",
                    {}},
        ExampleCase{"WeekdaysBeyond32Bits",
                    "-2100000000",
                    "1600000000",
                    "",
                    [](ComputeOptions& options) {
                        options.firstCalendar = options.secondCalendar = CalendarNumber::JDN;
                        options.countWeekendDays = false;
                    },
                    "\r\n",
                    {kResultOutOfRange}},
        ExampleCase{"OneMonthAfterTheLastOfJanuary",
                    "2024-01-31",
                    "1",
                    "",
                    Months,
                    "2024-01-31 CE plus 1 month = 2024-02-29 CE\r\n",
                    {}},
        ExampleCase{"TooManyMonths", "2024-01-31", "69000000", "", Months, "\r\n", {kResultOutOfRange}},
        ExampleCase{"MonthsBetweenDates",
                    "2024-01-31",
                    "",
                    "2024-02-29",
                    Months,
                    "",
                    {{"The number of months between two dates is not available.\r\n"
                      "The difference is now counted in days: please click again.",
                      "Compute"}}},
        ExampleCase{"MonthsBetweenCalendars",
                    "2024-01-31",
                    "1",
                    "",
                    [](ComputeOptions& options) {
                        options.unit = DifferenceUnit::Months;
                        options.secondCalendar = CalendarNumber::JC;
                    },
                    "",
                    {{"To add or subtract a number of months\r\nboth dates must be in the same calendar.",
                      "Compute"}}},
        ExampleCase{"MonthsWithoutMonths",
                    "2024-W05-3",
                    "1",
                    "",
                    [](ComputeOptions& options) {
                        options.unit = DifferenceUnit::Months;
                        options.firstCalendar = options.secondCalendar = CalendarNumber::ISO;
                    },
                    "",
                    {{"Months can be added or subtracted only with\r\n"
                      "Common Era dates, Julian Calendar dates and\r\n"
                      "Vantorel Leap Week month dates (LPM).",
                      "Compute"}}}),
    [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace calvoro
