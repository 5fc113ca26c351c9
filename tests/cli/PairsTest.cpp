// `between` and `add` against the click on Compute: the same texts through both, the same numbers.

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>

#include "cli/arithmetic/Add.h"
#include "cli/arithmetic/Between.h"
#include "cli/arithmetic/SignedNumber.h"
#include "compute/ComputeClick.h"
#include "datetext/AnyNotation.h"
#include "tests/support/FakeComputeWindow.h"

namespace calvoro {
namespace {

std::string AnswerOf(PairWork& work, const std::string& first, const std::string& second) {
    std::string text(work.Room(), '\0');
    PairRefusal refusal;
    text.resize(static_cast<std::size_t>(work.Answer(first, second, text.data(), refusal) - text.data()));
    return refusal.reason.empty() ? text : "refused";
}

/// Texts and settings of a click, taken at random.
class Draw {
public:
    explicit Draw(std::uint32_t seed) : random_(seed) {}

    bool Coin() { return random_() % 2 == 0; }

    /// Near today, of the last ten thousand years, or anywhere.
    std::int32_t Day() {
        switch (random_() % 3) {
            case 0: return Between(2440000, 2470000);
            case 1: return Between(-2000000, 5000000);
            default: return Between(-2100000000, 2100000000);
        }
    }
    std::int32_t Number() { return Coin() ? Between(-400, 400) : Between(-2099999999, 2099999999); }

    template <typename List>
    auto OneOf(const List& list) {
        return list[random_() % list.size()];
    }

private:
    std::int32_t Between(std::int32_t first, std::int32_t last) {
        return std::uniform_int_distribution<std::int32_t>(first, last)(random_);
    }

    std::mt19937 random_;
};

constexpr std::array<CalendarNumber, 7> kAll = {CalendarNumber::CE,  CalendarNumber::ISO, CalendarNumber::JC,
                                                CalendarNumber::ORD, CalendarNumber::LPM, CalendarNumber::LPW,
                                                CalendarNumber::JDN};
constexpr std::array<CalendarNumber, 3> kWithMonths = {CalendarNumber::CE, CalendarNumber::JC,
                                                       CalendarNumber::LPM};

TextOptions PlainText() {
    TextOptions text;
    text.thousandsSeparator = kNoSeparator;
    text.digitGrouping.clear();
    return text;
}

/// What the click writes behind " = ", without its line end; "refused" when it writes nothing there.
std::string ResultOf(FakeComputeWindow& window) {
    window.options.text = PlainText();
    window.options.verbose = false;
    ComputeState state;
    cmdCompute_Click(window, state);
    const std::size_t sign = window.output.find(" = ");
    if (sign == std::string::npos) return "refused";
    std::string result = window.output.substr(sign + 3);
    result.resize(result.find("\r\n"));
    return result.empty() ? "refused" : result;
}

TEST(Between, CountsWhatAClickCounts) {
    Draw draw(5);
    int counted = 0;
    int withParts = 0;
    for (int round = 0; round < 40000 && !HasFailure(); ++round) {
        BetweenOptions options;
        options.first.from = draw.OneOf(kAll);
        options.second.from = draw.Coin() ? options.first.from : draw.OneOf(kAll);
        options.first.text = options.second.text = PlainText();
        options.includeFirstDate = draw.Coin();
        options.weekdaysOnly = draw.Coin();
        options.breakdown = true;
        const std::int32_t firstDay = draw.Day();
        const std::int32_t secondDay = draw.Day();
        if (!CanWriteDate(options.first.from, firstDay) || !CanWriteDate(options.second.from, secondDay))
            continue;
        const std::string first = WriteDate(options.first.from, firstDay, options.first.text);
        const std::string second = WriteDate(options.second.from, secondDay, options.second.text);

        FakeComputeWindow window(first, "", second);
        window.options.firstCalendar = options.first.from;
        window.options.secondCalendar = options.second.from;
        window.options.includeFirstDate = options.includeFirstDate;
        window.options.countWeekendDays = !options.weekdaysOnly;
        const std::string expected = ResultOf(window);

        Between between(options);
        std::string answer = AnswerOf(between, first, second);
        if (answer != "refused") {
            const std::size_t tab = answer.find('\t');
            const std::string number = answer.substr(0, tab);
            const std::string parts = answer.substr(tab + 1);
            answer = number + (number == "1" || number == "-1" ? " day" : " days");
            if (!parts.empty()) answer += " (" + parts + ")";
            ++counted;
            withParts += parts.empty() ? 0 : 1;
        }
        EXPECT_EQ(answer, expected) << first << " to " << second;
    }
    EXPECT_GT(counted, 20000);
    EXPECT_GT(withParts, 1000);
}

TEST(Add, FindsWhatAClickFinds) {
    Draw draw(7);
    int found = 0;
    int refused = 0;
    for (int round = 0; round < 40000 && !HasFailure(); ++round) {
        AddOptions options;
        const bool inMonths = draw.Coin();
        options.unit = inMonths ? DifferenceUnit::Months : DifferenceUnit::Days;
        options.dates.from = inMonths ? draw.OneOf(kWithMonths) : draw.OneOf(kAll);
        options.dates.targets = {inMonths ? options.dates.from : draw.OneOf(kAll)};
        options.dates.text = PlainText();
        options.includeFirstDate = !inMonths && draw.Coin();
        options.weekdaysOnly = !inMonths && draw.Coin();
        const std::int32_t day = draw.Day();
        if (!CanWriteDate(options.dates.from, day)) continue;
        const std::string date = WriteDate(options.dates.from, day, options.dates.text);
        const std::string number = std::to_string(draw.Number());

        FakeComputeWindow window(date, number, "");
        window.options.firstCalendar = options.dates.from;
        window.options.secondCalendar = options.dates.targets.front();
        window.options.includeFirstDate = options.includeFirstDate;
        window.options.countWeekendDays = !options.weekdaysOnly;
        window.options.unit = options.unit;
        std::string expected = ResultOf(window);
        if (expected != "refused" && options.dates.targets.front() != CalendarNumber::ORD) {
            expected.resize(expected.rfind(' '));
        }
        Add add(options);
        const std::string answer = AnswerOf(add, date, number);
        EXPECT_EQ(answer, expected) << date << " plus " << number;
        found += answer != "refused" ? 1 : 0;
        refused += answer == "refused" ? 1 : 0;
    }
    EXPECT_GT(found, 15000);
    EXPECT_GT(refused, 1000);
}

struct NumberRow {
    std::string name;
    std::string_view text;
    ParseStatus status;
    std::int32_t number = 0;
};
void PrintTo(const NumberRow& row, std::ostream* out) {
    *out << row.name;
}

class SignedNumber : public testing::TestWithParam<NumberRow> {};

TEST_P(SignedNumber, IsReadStrictly) {
    std::int32_t number = 0;
    EXPECT_EQ(ReadSignedNumber(GetParam().text, number), GetParam().status);
    if (GetParam().status == ParseStatus::Valid) {
        EXPECT_EQ(number, GetParam().number);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SignedNumber,
    testing::Values(
        NumberRow{"Digits", "90", ParseStatus::Valid, 90},
        NumberRow{"Blanks", " 90 ", ParseStatus::Valid, 90}, NumberRow{"Zeros", "007", ParseStatus::Valid, 7},
        NumberRow{"Minus", "-90", ParseStatus::Valid, -90}, NumberRow{"Plus", "+90", ParseStatus::Valid, 90},
        NumberRow{"MinusSign",
                  "\xE2\x88\x92"
                  "90",
                  ParseStatus::Valid, -90},
        NumberRow{"Commas", "-1,234,567", ParseStatus::Valid, -1234567},
        NumberRow{"Dots", "1.234", ParseStatus::Valid, 1234},
        NumberRow{"Largest", "2099999999", ParseStatus::Valid, 2099999999},
        NumberRow{"LargestGrouped", "-2,099,999,999", ParseStatus::Valid, -2099999999},
        NumberRow{"TooLarge", "2100000000", ParseStatus::OutOfRange},
        NumberRow{"FarTooLarge", "99999999999999999999", ParseStatus::OutOfRange},
        NumberRow{"Empty", "", ParseStatus::NotValid}, NumberRow{"SignAlone", "-", ParseStatus::NotValid},
        NumberRow{"TwoSigns", "--1", ParseStatus::NotValid},
        NumberRow{"BlankBehindSign", "- 1", ParseStatus::NotValid},
        NumberRow{"BlankInside", "1 000 000 000", ParseStatus::NotValid},
        NumberRow{"BadGroups", "12,34", ParseStatus::NotValid},
        NumberRow{"MixedGroups", "1,234.567", ParseStatus::NotValid},
        NumberRow{"Fraction", "1.5", ParseStatus::NotValid},
        NumberRow{"Letter", "1O", ParseStatus::NotValid}),
    [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace calvoro
