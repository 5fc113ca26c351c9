#include "compute/ComputeInMonths.h"

#include <gtest/gtest.h>

#include "datetext/AnyNotation.h"
#include "tests/compute/ClickCase.h"

namespace calvoro {
namespace {

void Months(FakeComputeWindow& window) {
    window.options.unit = DifferenceUnit::Months;
}

void InMonths(FakeComputeWindow& window, CalendarNumber calendar) {
    window.options.unit = DifferenceUnit::Months;
    window.options.firstCalendar = window.options.secondCalendar = calendar;
}

class MonthsTest : public ClickTest {};

TEST_P(MonthsTest, AreAddedOrRefused) {
    ExpectClick(GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    Results, MonthsTest,
    testing::Values(
        ClickCase{"Plus",
                  "2021-3-4",
                  "1234",
                  "",
                  Months,
                  {"difference := 1,234", "first := 2021-03-04",
                   "output: 2021-03-04 CE plus 1,234 months = 2124-01-04 CE\r\n", "scroll", "focus"},
                  ClickOutcome::Result},
        ClickCase{"Minus",
                  "2021-03-04",
                  "-1",
                  "",
                  Months,
                  {"difference := -1", "first := 2021-03-04",
                   "output: 2021-03-04 CE minus 1 month = 2021-02-04 CE\r\n", "scroll", "focus"},
                  ClickOutcome::Result},
        ClickCase{"DeliberateWordsAreSwappedForASecondDate",
                  "",
                  "1",
                  "2024-3-31",
                  Months,
                  {"difference := 1", "second := 2024-03-31",
                   "output: 2024-03-31 CE minus 1 month = 2024-02-29 CE\r\n", "scroll", "focus"},
                  ClickOutcome::Result},
        ClickCase{"DeliberateNegativeIsPlusForASecondDate",
                  "",
                  "-2",
                  "2023-12-31",
                  Months,
                  {"difference := -2", "second := 2023-12-31",
                   "output: 2023-12-31 CE plus 2 months = 2024-02-29 CE\r\n", "scroll", "focus"},
                  ClickOutcome::Result},
        ClickCase{"DeliberatePlusZero",
                  "2024-01-31",
                  "-0",
                  "",
                  Months,
                  {"difference := 0", "first := 2024-01-31",
                   "output: 2024-01-31 CE plus 0 months = 2024-01-31 CE\r\n", "scroll", "focus"},
                  ClickOutcome::Result},
        ClickCase{"EndOfAMonth",
                  "2024-01-31",
                  "13",
                  "",
                  Months,
                  {"difference := 13", "first := 2024-01-31",
                   "output: 2024-01-31 CE plus 13 months = 2025-02-28 CE\r\n", "scroll", "focus"},
                  ClickOutcome::Result},
        ClickCase{"Julian",
                  "1900-02-29",
                  "12",
                  "",
                  [](FakeComputeWindow& window) { InMonths(window, CalendarNumber::JC); },
                  {"difference := 12", "first := 1900-02-29",
                   "output: 1900-02-29 JC plus 12 months = 1901-02-28 JC\r\n", "scroll", "focus"},
                  ClickOutcome::Result},
        ClickCase{"JulianBackwards",
                  "",
                  "12",
                  "1901-02-28",
                  [](FakeComputeWindow& window) { InMonths(window, CalendarNumber::JC); },
                  {"difference := 12", "second := 1901-02-28",
                   "output: 1901-02-28 JC minus 12 months = 1900-02-28 JC\r\n", "scroll", "focus"},
                  ClickOutcome::Result},
        ClickCase{"LeapWeekMonths",
                  "2024-1-35",
                  "1",
                  "",
                  [](FakeComputeWindow& window) { InMonths(window, CalendarNumber::LPM); },
                  {"difference := 1", "first := 2024-01-35",
                   "output: 2024-01-35 LPM plus 1 month = 2024-02-28 LPM\r\n", "scroll", "focus"},
                  ClickOutcome::Result},
        ClickCase{"LeapWeekMonthsBackwards",
                  "",
                  "2",
                  "2024-03-28",
                  [](FakeComputeWindow& window) { InMonths(window, CalendarNumber::LPM); },
                  {"difference := 2", "second := 2024-03-28",
                   "output: 2024-03-28 LPM minus 2 months = 2024-01-28 LPM\r\n", "scroll", "focus"},
                  ClickOutcome::Result},
        ClickCase{
            "ToTheLargestDay",
            "2024-01-11",
            "68914423",
            "",
            Months,
            {"difference := 68,914,423", "first := 2024-01-11",
             "output: 2024-01-11 CE plus 68,914,423 months = 5,744,892-08-11 CE\r\n", "scroll", "focus"},
            ClickOutcome::Result},
        ClickCase{
            "ToTheSmallestDay",
            "",
            "69076090",
            "2024-01-08",
            Months,
            {"difference := 69,076,090", "second := 2024-01-08",
             "output: 2024-01-08 CE minus 69,076,090 months = -5,754,317-03-08 CE\r\n", "scroll", "focus"},
            ClickOutcome::Result},
        ClickCase{"VerboseNamesTheWeekdayAlone",
                  "2024-01-31",
                  "1",
                  "",
                  [](FakeComputeWindow& window) {
                      Months(window);
                      window.options.verbose = true;
                      window.options.includeFirstDate = true;
                      window.options.countWeekendDays = false;
                  },
                  {"difference := 1", "first := 2024-01-31",
                   "output: 2024-01-31 CE plus 1 month = 2024-02-29 CE, Thursday\r\n", "scroll", "focus"},
                  ClickOutcome::Result},
        ClickCase{"German",
                  "31.01.2024",
                  "2",
                  "",
                  [](FakeComputeWindow& window) {
                      Months(window);
                      window.options.texts.InterfaceLanguage = LanguageGerman;
                      window.options.text.dateFormat = DateFormat::DMY;
                      window.options.text.dateSeparator = '.';
                  },
                  {"difference := 2", "first := 31.01.2024",
                   "output: 31.01.2024 CE plus 2 Monate = 31.03.2024 CE\r\n", "scroll", "focus"},
                  ClickOutcome::Result}),
    RowName<ClickCase>);

constexpr const char* kTwoDates =
    "The number of months between two dates is not available.\r\n"
    "The difference is now counted in days: please click again.";
constexpr const char* kOneCalendar =
    "To add or subtract a number of months\r\nboth dates must be in the same calendar.";
constexpr const char* kOnlyWith =
    "Months can be added or subtracted only with\r\n"
    "Common Era dates, Julian Calendar dates and\r\n"
    "Vantorel Leap Week month dates (LPM).";
constexpr const char* kOutOfRange = "Error!: Result is out of range.";

std::string Titled(const char* title, const char* prompt) {
    return std::string(title) + ": " + prompt;
}

INSTANTIATE_TEST_SUITE_P(
    Refusals, MonthsTest,
    testing::Values(
        ClickCase{"TwoDatesSwitchToDays",
                  "2021-03-04",
                  "",
                  "2021-03-14",
                  Months,
                  {Titled("Compute", kTwoDates), "days", "focus"},
                  ClickOutcome::NoResult},
        ClickCase{"TwoWrongDatesSwitchToDays",
                  "x",
                  "",
                  "y",
                  [](FakeComputeWindow& window) {
                      Months(window);
                      window.options.firstCalendar = CalendarNumber::ISO;
                  },
                  {Titled("Compute", kTwoDates), "days", "focus"},
                  ClickOutcome::NoResult},
        ClickCase{"UnequalCalendarsBeforeAnyInputIsRead",
                  "wrong",
                  "wrong",
                  "",
                  [](FakeComputeWindow& window) {
                      Months(window);
                      window.options.secondCalendar = CalendarNumber::JC;
                  },
                  {Titled("Compute", kOneCalendar), "focus"},
                  ClickOutcome::NoResult},
        ClickCase{"UnequalCalendarsWithASecondDate",
                  "",
                  "1",
                  "2021-03-04",
                  [](FakeComputeWindow& window) {
                      Months(window);
                      window.options.firstCalendar = CalendarNumber::LPM;
                  },
                  {Titled("Compute", kOneCalendar), "focus"},
                  ClickOutcome::NoResult},
        ClickCase{"IsoHasNoMonths",
                  "2024-W05-3",
                  "1",
                  "",
                  [](FakeComputeWindow& window) { InMonths(window, CalendarNumber::ISO); },
                  {Titled("Compute", kOnlyWith), "focus"},
                  ClickOutcome::NoResult},
        ClickCase{"DayNumbersHaveNoMonths",
                  "2459278",
                  "1",
                  "",
                  [](FakeComputeWindow& window) { InMonths(window, CalendarNumber::JDN); },
                  {Titled("Compute", kOnlyWith), "focus"},
                  ClickOutcome::NoResult},
        ClickCase{"LeapWeekWeeksHaveNoMonths",
                  "",
                  "1",
                  "2021-10-4",
                  [](FakeComputeWindow& window) { InMonths(window, CalendarNumber::LPW); },
                  {Titled("Compute", kOnlyWith), "focus"},
                  ClickOutcome::NoResult},
        ClickCase{"OrdinalDatesHaveNoMonths",
                  "2024-075",
                  "wrong",
                  "",
                  [](FakeComputeWindow& window) { InMonths(window, CalendarNumber::ORD); },
                  {Titled("Compute", kOnlyWith), "focus"},
                  ClickOutcome::NoResult},
        ClickCase{"DeliberateNumberedTextsStayEnglishUnderAGermanTitle",
                  "2021-03-04",
                  "",
                  "2021-03-14",
                  [](FakeComputeWindow& window) {
                      Months(window);
                      window.options.texts.InterfaceLanguage = LanguageGerman;
                  },
                  {Titled("Berechnen", kTwoDates), "days", "focus"},
                  ClickOutcome::NoResult},
        ClickCase{"NumberedTextsInGerman",
                  "2021-03-04",
                  "",
                  "2021-03-14",
                  [](FakeComputeWindow& window) {
                      Months(window);
                      window.options.texts = {LanguageGerman, LanguageGerman};
                  },
                  {"Berechnen: Die Anzahl der Monate zwischen zwei Daten ist nicht verfuegbar.\r\n"
                   "Die Differenz wird jetzt in Tagen gezaehlt: bitte nochmals klicken.",
                   "days", "focus"},
                  ClickOutcome::NoResult},
        ClickCase{"DifferenceNotValid",
                  "wrong",
                  "1.5",
                  "",
                  Months,
                  {"Error!: Date difference is not valid.", "focus"},
                  ClickOutcome::NoResult},
        ClickCase{"DifferenceOutOfRange",
                  "2021-03-04",
                  "99999999999",
                  "",
                  Months,
                  {"Error!: Date difference is out of range.", "focus"},
                  ClickOutcome::NoResult},
        ClickCase{
            "DeliberateAcceptedDifferenceIsRewrittenBeforeTheFirstDateIsRefused",
            "2021-02-29",
            "1000",
            "",
            Months,
            {"difference := 1,000",
             "Error!: First date is not valid in specified calendar using specified date format.", "focus"},
            ClickOutcome::NoResult},
        ClickCase{
            "DeliberateAcceptedDifferenceIsRewrittenBeforeTheSecondDateIsRefused",
            "",
            "1000",
            "2021-02-29",
            Months,
            {"difference := 1,000",
             "Error!: Second date is not valid in specified calendar using specified date format.", "focus"},
            ClickOutcome::NoResult},
        ClickCase{"ResultBeyondTheLargestDay",
                  "2024-01-12",
                  "68914423",
                  "",
                  Months,
                  {"difference := 68,914,423", "first := 2024-01-12", kOutOfRange, "output: \r\n", "scroll",
                   "focus"},
                  ClickOutcome::NoResult},
        ClickCase{"ResultBeyondTheSmallestDay",
                  "",
                  "69076090",
                  "2024-01-07",
                  Months,
                  {"difference := 69,076,090", "second := 2024-01-07", kOutOfRange, "output: \r\n", "scroll",
                   "focus"},
                  ClickOutcome::NoResult},
        ClickCase{"ResultBeyond32Bits",
                  "2024-01-31",
                  "2099999999",
                  "",
                  Months,
                  {"difference := 2,099,999,999", "first := 2024-01-31", kOutOfRange, "output: \r\n",
                   "scroll", "focus"},
                  ClickOutcome::NoResult},
        ClickCase{"LeapWeekResultBeyondTheLargestDay",
                  "2024-01-28",
                  "69000000",
                  "",
                  [](FakeComputeWindow& window) { InMonths(window, CalendarNumber::LPM); },
                  {"difference := 69,000,000", "first := 2024-01-28", kOutOfRange, "output: \r\n", "scroll",
                   "focus"},
                  ClickOutcome::NoResult}),
    RowName<ClickCase>);

TEST(MonthsTest, RefuseEveryPairOfUnequalCalendars) {
    int pairs = 0;
    for (const Notation& first : Notations()) {
        for (const Notation& second : Notations()) {
            if (first.number == second.number) continue;
            FakeComputeWindow window("2024-01-28", "1", "");
            Months(window);
            window.options.firstCalendar = first.number;
            window.options.secondCalendar = second.number;
            ComputeState state;
            EXPECT_EQ(cmdCompute_Click(window, state), ClickOutcome::NoResult);
            ASSERT_EQ(window.messages.size(), 1U) << first.tag << second.tag;
            EXPECT_EQ(window.messages[0].prompt, kOneCalendar) << first.tag << second.tag;
            EXPECT_EQ(window.output, "");
            EXPECT_EQ(window.options.unit, DifferenceUnit::Months);
            ++pairs;
        }
    }
    EXPECT_EQ(pairs, 42);
}

TEST(MonthsTest, DeliberateDifferenceOfZeroNeverFails) {
    // 5,800,000-12-31 lies beyond the largest day that may be computed.
    FakeComputeWindow window("5800000-12-31", "0", "");
    Months(window);
    window.options.verbose = false;
    ComputeState state;
    EXPECT_EQ(cmdCompute_Click(window, state), ClickOutcome::Result);
    EXPECT_EQ(window.output, "5,800,000-12-31 CE plus 0 months = 5,800,000-12-31 CE\r\n");
    EXPECT_TRUE(window.messages.empty());
}

TEST(MonthsTest, TwoDatesSwitchTheWindowToDaysAndTheNextClickCounts) {
    FakeComputeWindow window("2021-03-04", "", "2021-03-14");
    Months(window);
    window.options.verbose = false;
    ComputeState state;
    EXPECT_EQ(cmdCompute_Click(window, state), ClickOutcome::NoResult);
    EXPECT_EQ(window.options.unit, DifferenceUnit::Days);
    EXPECT_EQ(cmdCompute_Click(window, state), ClickOutcome::Result);
    EXPECT_EQ(window.output, "2021-03-04 CE to 2021-03-14 CE = 10 days\r\n");
}

}  // namespace
}  // namespace calvoro
