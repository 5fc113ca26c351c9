#include "compute/DateStep.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>
#include <string>

#include "compute/ComputeMessages.h"
#include "tests/support/Calendars.h"
#include "tests/support/FakeComputeWindow.h"

namespace calvoro {
namespace {

struct StepCase {
    std::string name;
    CalendarNumber calendar;
    std::string text;
    std::int32_t days;
    std::string stepped;
};

void PrintTo(const StepCase& row, std::ostream* out) {
    *out << row.name;
}

class DateStepTest : public testing::TestWithParam<StepCase> {};

TEST_P(DateStepTest, StaysInTheNotation) {
    const StepCase& row = GetParam();
    FakeComputeWindow window;
    for (const InputBox box : {InputBox::FirstDate, InputBox::SecondDate}) {
        EXPECT_EQ(DateStep(box, row.text, row.calendar, row.days, window.options, window), row.stepped);
    }
    EXPECT_TRUE(window.log.empty());
}

INSTANTIATE_TEST_SUITE_P(Days, DateStepTest,
                         testing::Values(StepCase{"CEUp", kCE, "2024-02-28", 1, "2024-02-29"},
                                         StepCase{"CEDown", kCE, "2024-03-01", -1, "2024-02-29"},
                                         StepCase{"CEIntoALongYear", kCE, "9999-12-31", 1, "10,000-01-01"},
                                         StepCase{"JC", kJC, "1900-02-28", 1, "1900-02-29"},
                                         StepCase{"ISO", kISO, "2020W537", 1, "2021-W01-1"},
                                         StepCase{"ORD", kORD, "2024-366", 1, "2025-001"},
                                         StepCase{"JDN", kJDN, "999999", 1, "1,000,000"},
                                         StepCase{"JDNBelowZero", kJDN, "0", -1, "-1"},
                                         StepCase{"LPM", kLPM, "2024-01-35", 1, "2024-02-01"},
                                         StepCase{"LPW", kLPW, "2021-10-7", 1, "2021-11-1"},
                                         StepCase{"DeliberateWeekendDaysCountAlways", kISO, "2021-W09-5", 1,
                                                  "2021-W09-6"},
                                         StepCase{"Weeks", kCE, "2021-03-04", 14, "2021-03-18"},
                                         StepCase{"LargestDay", kJDN, "2099999999", 1, "2,100,000,000"},
                                         StepCase{"SmallestDay", kJDN, "-2099999999", -1, "-2,100,000,000"},
                                         StepCase{"LastOrdinalDay", kORD, "9999-364", 1, "9999-365"},
                                         StepCase{"FirstOrdinalDay", kORD, "0001-002", -1, "0001-001"}),
                         [](const auto& row) { return row.param.name; });

struct RefusedStepCase {
    std::string name;
    CalendarNumber calendar;
    std::string text;
    std::int32_t days;
    ComputeMessage first;
    ComputeMessage second;
};

void PrintTo(const RefusedStepCase& row, std::ostream* out) {
    *out << row.name;
}

class RefusedStepTest : public testing::TestWithParam<RefusedStepCase> {};

TEST_P(RefusedStepTest, GivesNoTextAndOneMessage) {
    const RefusedStepCase& row = GetParam();
    for (const LanguageNumber language : {LanguageEnglish, LanguageGerman, LanguageSpanish}) {
        FakeComputeWindow window;
        window.options.texts.InterfaceLanguage = language;
        EXPECT_EQ(DateStep(InputBox::FirstDate, row.text, row.calendar, row.days, window.options, window),
                  "");
        EXPECT_EQ(DateStep(InputBox::SecondDate, row.text, row.calendar, row.days, window.options, window),
                  "");
        ASSERT_EQ(window.messages.size(), 2U);
        EXPECT_EQ(window.messages[0].prompt, ComputeMessageText(row.first, language));
        EXPECT_EQ(window.messages[1].prompt, ComputeMessageText(row.second, language));
        EXPECT_EQ(window.messages[0].title, language == LanguageGerman ? "Fehler!" : "Error!");
        EXPECT_EQ(window.log.size(), 2U) << "nothing but the two messages";
    }
}

using enum ComputeMessage;

INSTANTIATE_TEST_SUITE_P(
    Texts, RefusedStepTest,
    testing::Values(
        RefusedStepCase{"CE", kCE, "2021-02-29", 1, FirstDateNotValid, SecondDateNotValid},
        RefusedStepCase{"JC", kJC, "x", 1, FirstDateNotValid, SecondDateNotValid},
        RefusedStepCase{"ISO", kISO, "2021-W53-1", 1, FirstDateNotValidIso, SecondDateNotValidIso},
        RefusedStepCase{"ORD", kORD, "2021063", 1, FirstDateNotValid, SecondDateNotValid},
        RefusedStepCase{"JDN", kJDN, "abc", 1, FirstDateNotValid, SecondDateNotValid},
        RefusedStepCase{"LPM", kLPM, "2021-13-01", 1, FirstDateNotValid, SecondDateNotValid},
        RefusedStepCase{"LPW", kLPW, "2021-10-8", 1, FirstDateNotValid, SecondDateNotValid},
        RefusedStepCase{"CEOutOfRange", kCE, "5800001-01-01", 1, FirstDateOutOfRange, SecondDateOutOfRange},
        RefusedStepCase{"ISOOutOfRange", kISO, "5800000-W01-1", 1, FirstDateOutOfRange, SecondDateOutOfRange},
        RefusedStepCase{"LPWOutOfRange", kLPW, "99999999-01-1", 1, FirstDateOutOfRange,
                        SecondDateOutOfRange}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Limits, RefusedStepTest,
    testing::Values(
        RefusedStepCase{"AboveTheLargestDay", kJDN, "2100000000", 1, ResultOutOfRange, ResultOutOfRange},
        RefusedStepCase{"BelowTheSmallestDay", kJDN, "-2100000000", -1, ResultOutOfRange, ResultOutOfRange},
        RefusedStepCase{"Beyond32Bits", kJDN, "2000000000", std::numeric_limits<std::int32_t>::max(),
                        ResultOutOfRange, ResultOutOfRange},
        RefusedStepCase{"AfterTheLastOrdinalDay", kORD, "9999-365", 1, ResultOutOfRange, ResultOutOfRange},
        RefusedStepCase{"BeforeTheFirstOrdinalDay", kORD, "0001-001", -1, ResultOutOfRange,
                        ResultOutOfRange}),
    [](const auto& row) { return row.param.name; });

TEST(DateStep, KeepsFormatSeparatorAndHyphen) {
    FakeComputeWindow window;
    window.options.text.dateFormat = DateFormat::DMY;
    window.options.text.dateSeparator = '.';
    window.options.text.hyphen = false;
    EXPECT_EQ(DateStep(InputBox::FirstDate, "28.2.2024", kCE, 1, window.options, window), "29.02.2024");
    EXPECT_EQ(DateStep(InputBox::FirstDate, "2020-W53-7", kISO, 1, window.options, window), "2021W011");
    EXPECT_EQ(DateStep(InputBox::FirstDate, "2024366", kORD, 1, window.options, window), "2025001");
}

}  // namespace
}  // namespace calvoro
