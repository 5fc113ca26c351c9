// Arbitrary bytes as lines of requests: every line gets one answer, which is one line of JSON with the keys
// that belong to it, and the boxes it tells are accepted as a request again.

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "cli/JsonLines.h"
#include "platform/Clock.h"

namespace {

using nlohmann::ordered_json;

void Require(bool condition) {
    if (!condition) std::abort();
}

class ClockOfOneDay : public calvoro::Clock {
public:
    calvoro::LocalDate Today() const override { return {2024, 2, 29}; }
};

void CheckAnswer(const ordered_json& answer) {
    constexpr std::array<std::string_view, 8> kKeys = {"first",    "difference", "second", "output",
                                                       "messages", "unit",       "result", "value"};
    Require(answer.size() == kKeys.size());
    std::size_t index = 0;
    for (const auto& member : answer.items()) Require(member.key() == kKeys[index++]);
    for (const char* key : {"first", "difference", "second", "output"}) Require(answer[key].is_string());
    Require(answer["unit"] == "days" || answer["unit"] == "months");
    Require(answer["result"].is_boolean() || answer["result"].is_null());
    Require(answer["value"].is_null() || (answer["value"].is_object() && answer["result"] == true));
    for (const ordered_json& message : answer["messages"]) {
        Require(message.size() == 2 && message["title"].is_string() && message["text"].is_string());
    }
}

void CheckLine(std::string_view line) {
    const ClockOfOneDay clock;
    std::string response;
    const bool isRequest = calvoro::AnswerJsonLine(line, 7, clock, response);
    Require(response.find('\n') == std::string::npos);
    const ordered_json answer = ordered_json::parse(response);
    if (!isRequest) {
        Require(answer.size() == 2 && answer["error"].is_string() && answer["line"] == 7);
        return;
    }
    CheckAnswer(answer);
    const ordered_json again = {
        {"first", answer["first"]}, {"difference", answer["difference"]}, {"second", answer["second"]}};
    std::string secondResponse;
    Require(calvoro::AnswerJsonLine(again.dump(), 8, clock, secondResponse));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string lines(size, '\0');
    for (std::size_t i = 0; i < size; ++i) lines[i] = static_cast<char>(data[i]);
    std::string_view rest = lines;
    for (;;) {
        const std::size_t end = rest.find('\n');
        CheckLine(rest.substr(0, end));
        if (end == std::string_view::npos) return 0;
        rest.remove_prefix(end + 1);
    }
}
