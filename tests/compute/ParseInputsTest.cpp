#include "compute/ParseInputs.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "compute/ComputeMessages.h"
#include "tests/support/FakeComputeWindow.h"

namespace calvoro {
namespace {

struct AcceptedCase {
    std::string name;
    CalendarNumber calendar;
    std::string typed;
    std::string canonical;
    std::string echo;
    std::int32_t jdn;
    void (*choose)(TextOptions& options) = nullptr;
};

void PrintTo(const AcceptedCase& row, std::ostream* out) {
    *out << row.name;
}

class AcceptedDateTest : public testing::TestWithParam<AcceptedCase> {};

TEST_P(AcceptedDateTest, IsRewrittenInItsBoxAndEchoed) {
    const AcceptedCase& row = GetParam();
    FakeComputeWindow window;
    ComputeState state;
    state.options.firstCalendar = state.options.secondCalendar = row.calendar;
    if (row.choose != nullptr) row.choose(state.options.text);

    std::string text = row.typed;
    state.FirstDateRecord.year = 6'000'000;  // left by an earlier computation
    EXPECT_TRUE(ParseFirstDate(text, window, state));
    EXPECT_EQ(text, row.canonical);
    EXPECT_EQ(window.First(), row.canonical);
    EXPECT_EQ(state.FirstDateEcho, row.echo);
    EXPECT_EQ(state.FirstDateRecord.jdn, row.jdn);
    EXPECT_EQ(window.Second(), "");

    text = row.typed;
    state.SecondDateRecord.year = 6'000'000;
    EXPECT_TRUE(ParseSecondDate(text, window, state));
    EXPECT_EQ(text, row.canonical);
    EXPECT_EQ(window.Second(), row.canonical);
    EXPECT_EQ(state.SecondDateEcho, row.echo);
    EXPECT_EQ(state.SecondDateRecord.jdn, row.jdn);
    EXPECT_TRUE(window.messages.empty());
}

void NoHyphen(TextOptions& options) {
    options.hyphen = false;
}

INSTANTIATE_TEST_SUITE_P(
    Notations, AcceptedDateTest,
    testing::Values(
        AcceptedCase{"CE", CalendarNumber::CE, "2021-3-4", "2021-03-04", "2021-03-04 CE", 2459278},
        AcceptedCase{"CEWithItsTag", CalendarNumber::CE, "2021-03-04 CE", "2021-03-04", "2021-03-04 CE",
                     2459278},
        AcceptedCase{"CEDayFirstWithDots", CalendarNumber::CE, "4.3.2021", "04.03.2021", "04.03.2021 CE",
                     2459278,
                     [](TextOptions& options) {
                         options.dateFormat = DateFormat::DMY;
                         options.dateSeparator = '.';
                     }},
        AcceptedCase{"JC", CalendarNumber::JC, "2021-2-19", "2021-02-19", "2021-02-19 JC", 2459278},
        AcceptedCase{"ISO", CalendarNumber::ISO, "2021W094", "2021-W09-4", "2021-W09-4 ISO", 2459278},
        AcceptedCase{"ISOCompact", CalendarNumber::ISO, "2021-W09-4", "2021W094", "2021W094 ISO", 2459278,
                     NoHyphen},
        AcceptedCase{"JDN", CalendarNumber::JDN, "2459278", "2,459,278", "2,459,278 JDN", 2459278},
        AcceptedCase{"JDNGroupedAlready", CalendarNumber::JDN, "2,459,278", "2,459,278", "2,459,278 JDN",
                     2459278},
        AcceptedCase{"JDNWithoutSeparator", CalendarNumber::JDN, "2459278", "2459278", "2459278 JDN", 2459278,
                     [](TextOptions& options) { options.thousandsSeparator = kNoSeparator; }},
        AcceptedCase{"NegativeJDN", CalendarNumber::JDN, "-1234", "-1,234", "-1,234 JDN", -1234},
        AcceptedCase{"LPM", CalendarNumber::LPM, "2021-3-4", "2021-03-04", "2021-03-04 LPM", 2459278},
        AcceptedCase{"LPW", CalendarNumber::LPW, "2021-10-4", "2021-10-4", "2021-10-4 LPW", 2459278},
        AcceptedCase{"DeliberateOrdinalEchoHasNoTag", CalendarNumber::ORD, "2021-063", "2021-063", "2021-063",
                     2459278},
        AcceptedCase{"DeliberateOrdinalEchoHasNoTagCompact", CalendarNumber::ORD, "2021063", "2021063",
                     "2021063", 2459278, NoHyphen}),
    [](const auto& row) { return row.param.name; });

struct RefusedCase {
    std::string name;
    CalendarNumber calendar;
    std::string typed;
    bool outOfRange;
};

void PrintTo(const RefusedCase& row, std::ostream* out) {
    *out << row.name;
}

class RefusedDateTest : public testing::TestWithParam<RefusedCase> {};

TEST_P(RefusedDateTest, IsReportedInOneMessageAndLeftAsItIs) {
    const RefusedCase& row = GetParam();
    for (const LanguageNumber language : {LanguageEnglish, LanguageGerman, LanguageSpanish}) {
        FakeComputeWindow window(row.typed, "", row.typed);
        ComputeState state;
        state.options.firstCalendar = state.options.secondCalendar = row.calendar;
        state.options.texts.InterfaceLanguage = language;
        const std::string title = language == LanguageGerman ? "Fehler!" : "Error!";

        std::string text = row.typed;
        EXPECT_FALSE(ParseFirstDate(text, window, state));
        EXPECT_FALSE(ParseSecondDate(text, window, state));
        EXPECT_EQ(text, row.typed);
        EXPECT_EQ(window.First(), row.typed);
        EXPECT_EQ(window.Second(), row.typed);
        EXPECT_EQ(window.log.size(), 2U) << "two messages and nothing else";
        ASSERT_EQ(window.messages.size(), 2U);
        const auto first =
            row.outOfRange ? ComputeMessage::FirstDateOutOfRange : ComputeMessage::FirstDateNotValid;
        const auto second =
            row.outOfRange ? ComputeMessage::SecondDateOutOfRange : ComputeMessage::SecondDateNotValid;
        EXPECT_EQ(window.messages[0].prompt, ComputeMessageText(first, language));
        EXPECT_EQ(window.messages[1].prompt, ComputeMessageText(second, language));
        EXPECT_EQ(window.messages[0].title, title);
        EXPECT_EQ(window.messages[1].title, title);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Notations, RefusedDateTest,
    testing::Values(RefusedCase{"CE", CalendarNumber::CE, "2021-02-29", false},
                    RefusedCase{"CEOutOfRange", CalendarNumber::CE, "5800001-01-01", true},
                    RefusedCase{"JC", CalendarNumber::JC, "2021-02-29", false},
                    RefusedCase{"JCOutOfRange", CalendarNumber::JC, "-5800001-01-01", true},
                    // The messages of their own for ISO week dates belong to the spinners.
                    RefusedCase{"ISO", CalendarNumber::ISO, "2021-W53-1", false},
                    RefusedCase{"ISOOutOfRange", CalendarNumber::ISO, "5800000-W01-1", true},
                    RefusedCase{"ORD", CalendarNumber::ORD, "2021063", false},
                    RefusedCase{"ORDOutOfRange", CalendarNumber::ORD, "0000-001", true},
                    RefusedCase{"JDN", CalendarNumber::JDN, "24.60.370", false},
                    RefusedCase{"JDNOutOfRange", CalendarNumber::JDN, "2100000001", true},
                    RefusedCase{"LPM", CalendarNumber::LPM, "2021-13-01", false},
                    RefusedCase{"LPMOutOfRange", CalendarNumber::LPM, "2021-99999-01", true},
                    RefusedCase{"LPW", CalendarNumber::LPW, "2021-10-8", false},
                    RefusedCase{"LPWOutOfRange", CalendarNumber::LPW, "99999999-01-1", true},
                    RefusedCase{"EndlessDayNumber", CalendarNumber::JDN, std::string(10'000, '9'), true},
                    RefusedCase{"Empty", CalendarNumber::CE, "", false}),
    [](const auto& row) { return row.param.name; });

struct DifferenceCase {
    std::string name;
    std::string typed;
    char thousandsSeparator;
    std::string rewritten;
    std::int32_t number;
};

void PrintTo(const DifferenceCase& row, std::ostream* out) {
    *out << row.name;
}

class AcceptedDifferenceTest : public testing::TestWithParam<DifferenceCase> {};

TEST_P(AcceptedDifferenceTest, IsRewrittenWithThousandsSeparators) {
    const DifferenceCase& row = GetParam();
    FakeComputeWindow window;
    ComputeState state;
    state.options.text.thousandsSeparator = row.thousandsSeparator;
    std::string text = row.typed;
    EXPECT_TRUE(ParseDateDifference(text, window, state));
    EXPECT_EQ(text, row.rewritten);
    EXPECT_EQ(window.Difference(), row.rewritten);
    EXPECT_EQ(state.DateDifference, row.number);
    EXPECT_TRUE(window.messages.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, AcceptedDifferenceTest,
    testing::Values(DifferenceCase{"Small", "10", ',', "10", 10},
                    DifferenceCase{"Comma", "1234", ',', "1,234", 1234},
                    DifferenceCase{"NegativeComma", "-1234", ',', "-1,234", -1234},
                    DifferenceCase{"Dot", "1234567", '.', "1.234.567", 1234567},
                    DifferenceCase{"DotAgain", "1.234.567", '.', "1.234.567", 1234567},
                    DifferenceCase{"DotsUnderAComma", "-1.234", ',', "-1,234", -1234},
                    DifferenceCase{"None", "1234", kNoSeparator, "1234", 1234},
                    DifferenceCase{"CommasUnderNone", "1,234", kNoSeparator, "1234", 1234},
                    DifferenceCase{"Plus", "+1,000", ',', "1,000", 1000},
                    DifferenceCase{"DeliberateCommasAnywhere", "1,0,0,", ',', "100", 100},
                    DifferenceCase{"MinusZero", "-0", ',', "0", 0},
                    DifferenceCase{"Largest", "2099999999", ',', "2,099,999,999", 2099999999},
                    DifferenceCase{"Smallest", "-2099999999", ',', "-2,099,999,999", -2099999999}),
    [](const auto& row) { return row.param.name; });

TEST(ParseDateDifference, TakesAnEmptyTextAsZeroAndRewritesNothing) {
    FakeComputeWindow window;
    ComputeState state;
    state.DateDifference = 7;
    std::string text;
    EXPECT_TRUE(ParseDateDifference(text, window, state));
    EXPECT_EQ(state.DateDifference, 0);
    EXPECT_TRUE(window.log.empty());
}

TEST(ParseDateDifference, RefusesInOneMessageAndLeavesTheBox) {
    struct {
        std::string typed;
        ComputeMessage message;
    } const rows[] = {
        {"x", ComputeMessage::DifferenceNotValid},
        {"1.5", ComputeMessage::DifferenceNotValid},
        {"--1", ComputeMessage::DifferenceNotValid},
        {"+", ComputeMessage::DifferenceNotValid},
        {"2100000000", ComputeMessage::DifferenceOutOfRange},
        {"-2100000000", ComputeMessage::DifferenceOutOfRange},
        {std::string(10'000, '1'), ComputeMessage::DifferenceOutOfRange},
    };
    for (const auto& row : rows) {
        FakeComputeWindow window("", row.typed, "");
        ComputeState state;
        std::string text = row.typed;
        EXPECT_FALSE(ParseDateDifference(text, window, state)) << row.typed;
        EXPECT_EQ(window.Difference(), row.typed);
        ASSERT_EQ(window.messages.size(), 1U) << row.typed;
        EXPECT_EQ(window.messages[0].prompt, ComputeMessageText(row.message, LanguageEnglish)) << row.typed;
        EXPECT_EQ(window.messages[0].title, "Error!");
    }
}

TEST(ParseFirstDate, ClearsTheRecordFirst) {
    FakeComputeWindow window("2021-10-4", "", "");
    ComputeState state;
    state.options.firstCalendar = CalendarNumber::LPW;
    state.FirstDateRecord = {.year = 6'000'000, .month = 7, .day = 8, .calendar = CalendarCode::J, .jdn = 9};
    std::string text = "2021-10-4";
    EXPECT_TRUE(ParseFirstDate(text, window, state));
    EXPECT_EQ(state.FirstDateRecord, (DateRecord{.jdn = 2459278}));
}

}  // namespace
}  // namespace calvoro
