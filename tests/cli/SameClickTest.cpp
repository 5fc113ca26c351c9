// The same click through a window of tests and through a line of JSON: boxes, output, messages, unit and
// result must be the same.

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <random>
#include <string>
#include <vector>

#include "calendar/Today.h"
#include "cli/Choices.h"
#include "cli/JsonLines.h"
#include "compute/ComputeClick.h"
#include "tests/support/FakeComputeWindow.h"

namespace calvoro {
namespace {

using nlohmann::json;

class ClockOfOneDay : public Clock {
public:
    LocalDate Today() const override {
        ++asked;
        return {2024, 2, 29};
    }
    mutable int asked = 0;
};

json Answer(const json& request, const Clock& clock) {
    std::string response;
    EXPECT_TRUE(AnswerJsonLine(request.dump(), 1, clock, response)) << request;
    return json::parse(response);
}

/// The value as the result line tells it.
void ExpectValueOfLine(const json& answer) {
    const std::string output = answer["output"];
    const std::size_t sign = output.find(" = ");
    const json& value = answer["value"];
    if (answer["result"] != true || output.compare(sign, std::string::npos, " = \r\n") == 0) {
        EXPECT_TRUE(value.is_null()) << answer;
        return;
    }
    if (value["kind"] == "days") {
        const std::int32_t days = value["days"];
        std::string digits = output.substr(sign + 3, output.find(' ', sign + 3) - sign - 3);
        std::erase_if(digits, [](char character) { return character == ',' || character == '.'; });
        EXPECT_EQ(digits, std::to_string(days)) << answer;
        EXPECT_EQ(value["breakdown"].is_null(), output.find('(') == std::string::npos) << answer;
        return;
    }
    const std::string text = value["text"];
    EXPECT_EQ(output.compare(sign + 3, text.size(), text), 0) << answer;
    const CalendarNumber calendar =
        *ChosenValue(kNotationChoices, value["calendar"].get<std::string>(), NameCase::Exact);
    if (calendar != CalendarNumber::ORD) {
        const std::string tag = " " + value["calendar"].get<std::string>();
        EXPECT_EQ(output.compare(sign + 3 + text.size(), tag.size(), tag), 0) << answer;
    }
    const std::int64_t jdn = value["day_number"];
    EXPECT_EQ(value["weekday"], ((jdn % 7) + 7) % 7 + 1) << answer;
}

json AnswerOfWindow(FakeComputeWindow& window) {
    ComputeState state;
    const ClickOutcome outcome = cmdCompute_Click(window, state);
    json messages = json::array();
    for (const FakeComputeWindow::Message& message : window.messages) {
        messages.push_back({{"title", message.title}, {"text", message.prompt}});
    }
    const json result = outcome == ClickOutcome::Stopped ? json() : json(outcome == ClickOutcome::Result);
    return {{"first", window.First()},
            {"difference", window.Difference()},
            {"second", window.Second()},
            {"output", window.output},
            {"messages", messages},
            {"unit", window.options.unit == DifferenceUnit::Days ? "days" : "months"},
            {"result", result}};
}

/// One click, told to both; every value is taken from a list, so that all of them meet.
class Clicks {
public:
    FakeComputeWindow window;
    json request = json::object();

    explicit Clicks(std::mt19937& random) : random_(random) {
        const std::vector<std::string> dates = {"",
                                                "",
                                                "2021-03-04",
                                                "2024-02-29",
                                                " 2024 - 01 - 31 ",
                                                "-44-03-15",
                                                "15.03.2024",
                                                "03/04/2021",
                                                "12.345.03.15",
                                                "2021-W09-4",
                                                "2021W537",
                                                "2021-063",
                                                "2021063",
                                                "2021-03-04 CE",
                                                "2459278",
                                                "2,459,278",
                                                "2.100.000.000",
                                                "-2100000000",
                                                "5800000-12-31",
                                                "99999999-01-01",
                                                "2024-54-1",
                                                "nonsense",
                                                "M\xC3\xA4rz \"2024\"",
                                                std::string("2024-01-01\0", 11)};
        const std::vector<std::string> differences = {
            "",       "",        "",           "0",        "1",           "-1", "7",
            "+1,000", "-12.345", "1600000000", "69000000", "99999999999", "x"};
        Box("first", InputBox::FirstDate, dates);
        Box("difference", InputBox::Difference, differences);
        Box("second", InputBox::SecondDate, dates);
        ComputeOptions& options = window.options;
        Name("first_calendar", kNotationChoices, options.firstCalendar);
        Name("second_calendar", kNotationChoices, options.secondCalendar);
        if (random_() % 2 == 0) {
            options.secondCalendar = options.firstCalendar;
            request["second_calendar"] = request["first_calendar"];
        }
        Name("date_format", kDateFormatChoices, options.text.dateFormat);
        Name("date_separator", kDateSeparatorChoices, options.text.dateSeparator);
        Name("thousands_separator", kJsonThousands, options.text.thousandsSeparator);
        Name("unit", kUnitChoices, options.unit);
        Name("language", kLanguageChoices, options.texts.InterfaceLanguage);
        Truth("hyphen", options.text.hyphen);
        Truth("verbose", options.verbose);
        Truth("include_first_date", options.includeFirstDate);
        Truth("count_weekend_days", options.countWeekendDays);
        Clear();
        window.todayJdn = TodayJdn({2024, 2, 29});
    }

private:
    static constexpr std::array<Choice<char>, 3> kJsonThousands = {
        {{",", ','}, {".", '.'}, {"", kNoSeparator}}};

    template <typename List>
    const auto& OneOf(const List& list) {
        return list[random_() % list.size()];
    }

    void Box(const char* key, InputBox box, const std::vector<std::string>& texts) {
        const std::string& text = OneOf(texts);
        window.Type(box, text);
        request[key] = text;
    }

    template <typename Value, std::size_t count>
    void Name(const char* key, const std::array<Choice<Value>, count>& choices, Value& value) {
        const Choice<Value>& choice = OneOf(choices);
        value = choice.value;
        request[key] = choice.name;
    }

    void Truth(const char* key, bool& value) {
        value = random_() % 2 == 0;
        request[key] = value;
    }

    void Clear() {
        const std::array<std::optional<InputBox>, 4> boxes = {std::nullopt, InputBox::FirstDate,
                                                              InputBox::Difference, InputBox::SecondDate};
        const std::size_t index = random_() % boxes.size();
        window.boxToClear = boxes[index];
        request["clear"] = kClearChoices[index].name;
    }

    std::mt19937& random_;
};

TEST(SameClick, GivesTheSameThroughAWindowAndThroughJson) {
    const ClockOfOneDay clock;
    std::mt19937 random(20240229);
    int clicks = 0;
    int results = 0;
    int withMessages = 0;
    int stopped = 0;
    while (clicks < 60000 && !testing::Test::HasFailure()) {
        Clicks click(random);
        const json expected = AnswerOfWindow(click.window);
        json answer = Answer(click.request, clock);
        ExpectValueOfLine(answer);
        answer.erase("value");
        EXPECT_EQ(answer, expected) << click.request;
        ++clicks;
        results += expected["result"] == true ? 1 : 0;
        stopped += expected["result"].is_null() ? 1 : 0;
        withMessages += expected["messages"].empty() ? 0 : 1;
    }
    EXPECT_EQ(clicks, 60000);
    EXPECT_GT(results, 1000);
    EXPECT_GT(withMessages, 1000);
    EXPECT_GT(stopped, 100);
    EXPECT_GT(clock.asked, 10);
}

TEST(SameClick, HasTheSettingsOfANewWindowWhereARequestTellsNone) {
    const ClockOfOneDay clock;
    const std::array<std::array<std::string, 3>, 8> fillings = {{{"", "", ""},
                                                                 {"2021-03-04", "", ""},
                                                                 {"2021-03-04", "12345", ""},
                                                                 {"2021-03-04", "", "2024-02-29"},
                                                                 {"", "-7", "2024-02-29"},
                                                                 {"", "7", ""},
                                                                 {"2021-03-04", "7", "2024-02-29"},
                                                                 {"x", "", ""}}};
    for (const auto& [first, difference, second] : fillings) {
        FakeComputeWindow window(first, difference, second);
        window.todayJdn = TodayJdn({2024, 2, 29});
        const json request = {{"first", first}, {"difference", difference}, {"second", second}};
        json answer = Answer(request, clock);
        answer.erase("value");
        EXPECT_EQ(answer, AnswerOfWindow(window)) << request;
    }
}

TEST(AnswerJsonLine, WritesItsKeysInTheirOrder) {
    const ClockOfOneDay clock;
    std::string response;
    ASSERT_TRUE(AnswerJsonLine(R"({"first":"x"})", 1, clock, response));
    const auto answer = nlohmann::ordered_json::parse(response);
    std::vector<std::string> keys;
    for (const auto& member : answer.items()) keys.push_back(member.key());
    EXPECT_EQ(keys, (std::vector<std::string>{"first", "difference", "second", "output", "messages", "unit",
                                              "result", "value"}));
}

TEST(AnswerJsonLine, AsksTheClockOnlyWhenItMust) {
    const ClockOfOneDay clock;
    std::string response;
    EXPECT_TRUE(AnswerJsonLine(R"({"first":"2021-03-04"})", 1, clock, response));
    EXPECT_TRUE(AnswerJsonLine(R"({"today":"2021-03-04"})", 1, clock, response));
    EXPECT_EQ(clock.asked, 0);
    EXPECT_TRUE(AnswerJsonLine("{}", 1, clock, response));
    EXPECT_EQ(clock.asked, 1);
}

TEST(AnswerJsonLine, AppendsToTheResponse) {
    const ClockOfOneDay clock;
    std::string response = "before ";
    EXPECT_FALSE(AnswerJsonLine("x", 1, clock, response));
    EXPECT_TRUE(response.starts_with("before {\"error\":"));
}

}  // namespace
}  // namespace calvoro
