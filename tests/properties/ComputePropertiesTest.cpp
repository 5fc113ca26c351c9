// What holds for every click: laws that link one result to another, over random days, notations and options.

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <string>
#include <string_view>

#include "calendar/DayNumber.h"
#include "calendar/IsoWeekDate.h"
#include "compute/ComputeClick.h"
#include "datetext/AnyNotation.h"
#include "tests/support/FakeComputeWindow.h"

namespace calvoro {
namespace {

// A day within the limits, often near ours, sometimes at the ends.
rc::Gen<std::int32_t> Day() {
    return rc::gen::oneOf(rc::gen::inRange(kMinDayNumber, kMaxDayNumber + 1),
                          rc::gen::inRange(kFirstFourDigitDay, kLastFourDigitDay + 1),
                          rc::gen::inRange(2'400'000, 2'500'000), rc::gen::inRange(-1'000, 1'000),
                          rc::gen::inRange(kMaxDayNumber - 1'000, kMaxDayNumber + 1),
                          rc::gen::inRange(kMinDayNumber, kMinDayNumber + 1'000));
}

CalendarNumber AnyCalendar() {
    return Notations()[*rc::gen::inRange<std::size_t>(0, Notations().size())].number;
}

TextOptions AnyTextOptions() {
    TextOptions options;
    options.dateFormat = *rc::gen::element(DateFormat::MDY, DateFormat::DMY, DateFormat::YMD);
    options.dateSeparator = *rc::gen::element('-', '/', '.');
    options.thousandsSeparator = *rc::gen::element(',', '.', kNoSeparator);
    options.hyphen = *rc::gen::arbitrary<bool>();
    return options;
}

ComputeOptions AnyOptions() {
    ComputeOptions options;
    options.text = AnyTextOptions();
    options.firstCalendar = AnyCalendar();
    options.secondCalendar = AnyCalendar();
    options.includeFirstDate = *rc::gen::arbitrary<bool>();
    options.countWeekendDays = *rc::gen::arbitrary<bool>();
    options.verbose = *rc::gen::arbitrary<bool>();
    options.texts.InterfaceLanguage = *rc::gen::element(LanguageEnglish, LanguageGerman, LanguageSpanish);
    return options;
}

// Whether a day can be typed in a notation. Two kinds of days are written but refused: week 53 of ISO years
// below 1, and day 0 in the leap-week notations.
bool CanBeTyped(CalendarNumber calendar, std::int32_t jdn) {
    if (calendar == CalendarNumber::ISO) {
        IsoWeekDate date{.jdn = jdn};
        JdnToIsoWeekDate(date);
        return date.year >= 1 || date.week < 53;
    }
    if (calendar == CalendarNumber::LPM || calendar == CalendarNumber::LPW) return jdn != 0;
    return CanWriteDate(calendar, jdn);
}

// A day that can be typed in the notation.
std::int32_t TypedDay(CalendarNumber calendar) {
    return *rc::gen::suchThat(Day(), [calendar](std::int32_t jdn) { return CanBeTyped(calendar, jdn); });
}

struct Click {
    FakeComputeWindow window;
    ComputeState state;
    ClickOutcome outcome;
};

Click ClickOn(std::string_view first, std::string_view difference, std::string_view second,
              const ComputeOptions& options) {
    Click click{FakeComputeWindow(first, difference, second), {}, ClickOutcome::Stopped};
    click.window.options = options;
    click.outcome = cmdCompute_Click(click.window, click.state);
    return click;
}

Click CountBetween(std::int32_t first, std::int32_t second, const ComputeOptions& options) {
    return ClickOn(WriteDate(options.firstCalendar, first, options.text), "",
                   WriteDate(options.secondCalendar, second, options.text), options);
}

// The date at the end of a line that was written without Verbose.
std::string ResultDate(const std::string& output) {
    const std::size_t begin = output.rfind(" = ") + 3;
    return output.substr(begin, output.size() - begin - 2);
}

TEST(ComputeProperties, CountingThenAddingGivesTheSecondDateAgain) {
    EXPECT_TRUE(rc::check([] {
        ComputeOptions options = AnyOptions();
        options.includeFirstDate = false;
        options.countWeekendDays = true;
        const std::int32_t first = TypedDay(options.firstCalendar);
        const std::int32_t second = TypedDay(options.secondCalendar);
        const std::int64_t distance = std::int64_t{second} - first;
        RC_PRE(distance > kMinDayNumber && distance < kMaxDayNumber);  // can be typed

        const Click count = CountBetween(first, second, options);
        RC_ASSERT(count.outcome == ClickOutcome::Result);
        RC_ASSERT(count.state.DateDifference == distance);
        RC_ASSERT(count.state.FirstDateRecord.jdn == first);
        RC_ASSERT(count.state.SecondDateRecord.jdn == second);

        const std::string difference = std::to_string(count.state.DateDifference);
        const Click sum = ClickOn(count.window.First(), difference, "", options);
        RC_ASSERT(sum.outcome == ClickOutcome::Result);
        RC_ASSERT(sum.state.SecondDateRecord.jdn == second);
        const Click back = ClickOn("", difference, count.window.Second(), options);
        RC_ASSERT(back.outcome == ClickOutcome::Result);
        RC_ASSERT(back.state.FirstDateRecord.jdn == first);
    }));
}

TEST(ComputeProperties, SwappedDatesNegate) {
    EXPECT_TRUE(rc::check([] {
        ComputeOptions options = AnyOptions();
        options.includeFirstDate = false;
        options.secondCalendar = options.firstCalendar;
        const std::int32_t first = TypedDay(options.firstCalendar);
        const std::int32_t second = TypedDay(options.firstCalendar);
        const std::int64_t distance = std::int64_t{second} - first;
        RC_PRE(distance >= -2'147'483'647 && distance <= 2'147'483'647);

        const Click there = CountBetween(first, second, options);
        const Click back = CountBetween(second, first, options);
        RC_ASSERT(there.outcome == ClickOutcome::Result);
        RC_ASSERT(back.outcome == ClickOutcome::Result);
        RC_ASSERT(there.state.DateDifference == -back.state.DateDifference);
    }));
}

TEST(ComputeProperties, EveryWrittenDateReadsBack) {
    EXPECT_TRUE(rc::check([] {
        ComputeOptions options = AnyOptions();
        options.verbose = false;
        const std::int32_t first = TypedDay(options.firstCalendar);
        const std::int32_t difference = *rc::gen::inRange(-2'000'000, 2'000'001);
        const Click click = ClickOn(WriteDate(options.firstCalendar, first, options.text),
                                    std::to_string(difference), "", options);
        RC_PRE(click.window.messages.empty());
        const std::int32_t result = click.state.SecondDateRecord.jdn;
        RC_PRE(CanBeTyped(options.secondCalendar, result));

        DateRecord record;
        const std::string written = ResultDate(click.window.output);
        RC_ASSERT(ReadDate(options.secondCalendar, written, options.text, record) == ParseStatus::Valid);
        RC_ASSERT(record.jdn == result);
    }));
}

TEST(ComputeProperties, EveryNotationOfASingleDateReadsBack) {
    EXPECT_TRUE(rc::check([] {
        ComputeOptions options = AnyOptions();
        options.verbose = true;
        options.secondCalendar = options.firstCalendar;
        const std::int32_t day = TypedDay(options.firstCalendar);
        const Click click = ClickOn(WriteDate(options.firstCalendar, day, options.text), "", "", options);
        RC_ASSERT(click.outcome == ClickOutcome::Result);

        std::string_view rest = click.window.output;
        rest.remove_prefix(rest.find("\r\n") + 2);
        for (const Notation& notation : Notations()) {
            if (notation.number == options.firstCalendar || !CanWriteDate(notation.number, day)) continue;
            const std::string_view line = rest.substr(0, rest.find("\r\n"));
            rest.remove_prefix(line.size() + 2);
            if (!CanBeTyped(notation.number, day)) continue;
            DateRecord record;
            RC_ASSERT(ReadDate(notation.number, line, options.text, record) == ParseStatus::Valid);
            RC_ASSERT(record.jdn == day);
        }
        RC_ASSERT(rest.empty());
    }));
}

TEST(ComputeProperties, AddingMonthsAndTakingThemAwayGivesTheDateAgain) {
    EXPECT_TRUE(rc::check([] {
        ComputeOptions options = AnyOptions();
        options.verbose = false;
        options.unit = DifferenceUnit::Months;
        options.firstCalendar =
            *rc::gen::element(CalendarNumber::CE, CalendarNumber::JC, CalendarNumber::LPM);
        options.secondCalendar = options.firstCalendar;
        const std::int32_t first = TypedDay(options.firstCalendar);
        const std::string months = std::to_string(*rc::gen::inRange(-100'000, 100'001));

        const Click sum = ClickOn(WriteDate(options.firstCalendar, first, options.text), months, "", options);
        RC_PRE(sum.outcome == ClickOutcome::Result);
        RC_PRE(sum.state.FirstDateRecord.day <= 28);  // no month is too short for it
        RC_PRE(CanBeTyped(options.secondCalendar, sum.state.SecondDateRecord.jdn));
        const Click back = ClickOn("", months, ResultDate(sum.window.output), options);
        RC_ASSERT(back.outcome == ClickOutcome::Result);
        RC_ASSERT(back.state.FirstDateRecord.jdn == first);
    }));
}

TEST(ComputeProperties, ClickingAgainWritesTheSameLineAgain) {
    EXPECT_TRUE(rc::check([] {
        ComputeOptions options = AnyOptions();
        options.unit = *rc::gen::element(DifferenceUnit::Days, DifferenceUnit::Months);
        const std::string first =
            WriteDate(options.firstCalendar, TypedDay(options.firstCalendar), options.text);
        const std::string difference = std::to_string(*rc::gen::inRange(-3'000'000, 3'000'001));
        Click click = ClickOn(first, difference, "", options);

        const std::string line = click.window.output;
        const std::string rewritten = click.window.Difference();
        const ClickOutcome again = cmdCompute_Click(click.window, click.state);
        RC_ASSERT(again == click.outcome);
        RC_ASSERT(click.window.output == line + line);
        RC_ASSERT(click.window.First() == first);
        RC_ASSERT(click.window.Difference() == rewritten);
    }));
}

// Characters that dates and numbers are made of, and a few that they are not.
std::string Garbage() {
    return *rc::gen::container<std::string>(rc::gen::elementOf(std::string("0123456789 -/.,+WwCEJ\tx\xC3")));
}

std::string AnyDateText(CalendarNumber calendar, const TextOptions& options) {
    switch (*rc::gen::inRange(0, 6)) {
        case 0: return "";
        case 1: return Garbage();
        case 2: return *rc::gen::element<std::string>("5800000-12-31", "-5800000-01-01", "2099999999");
        default: return WriteDate(calendar, TypedDay(calendar), options);
    }
}

std::string AnyDifferenceText() {
    switch (*rc::gen::inRange(0, 6)) {
        case 0: return Garbage();
        case 1:
        case 2: return std::to_string(*rc::gen::inRange(-2'099'999'999, 2'100'000'000));
        default: return "";
    }
}

TEST(ComputeProperties, AnyTextsEndInAResultOrOneMessage) {
    EXPECT_TRUE(rc::check([] {
        ComputeOptions options = AnyOptions();
        options.unit = *rc::gen::element(DifferenceUnit::Days, DifferenceUnit::Months);
        const std::string first = AnyDateText(options.firstCalendar, options.text);
        const std::string second = AnyDateText(options.secondCalendar, options.text);
        Click click{FakeComputeWindow(first, AnyDifferenceText(), second), {}, ClickOutcome::Stopped};
        click.window.options = options;
        click.window.boxToClear =
            *rc::gen::element(InputBox::FirstDate, InputBox::Difference, InputBox::SecondDate);
        click.outcome = cmdCompute_Click(click.window, click.state);

        RC_CLASSIFY(click.outcome == ClickOutcome::Result, "result");
        const std::size_t messages = click.window.messages.size();
        if (click.outcome == ClickOutcome::Stopped) RC_ASSERT(messages == 0U);
        if (click.outcome == ClickOutcome::NoResult) RC_ASSERT(messages == 1U);
        if (click.outcome == ClickOutcome::Result) {
            RC_ASSERT(click.window.output.ends_with("\r\n"));
            const bool isRefusedOrdinalDate = click.window.output.ends_with(" = \r\n");
            RC_ASSERT(messages == (isRefusedOrdinalDate ? 1U : 0U));
        }
    }));
}

}  // namespace
}  // namespace calvoro
