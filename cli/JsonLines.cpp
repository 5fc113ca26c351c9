#include "cli/JsonLines.h"

#include <algorithm>
#include <utility>

#include "cli/ComputeRequest.h"
#include "cli/HeadlessWindow.h"
#include "cli/JsonRequest.h"
#include "cli/JsonValue.h"
#include "compute/ComputeClick.h"

namespace calvoro {
namespace {

bool NeedsEscape(char character) {
    return static_cast<unsigned char>(character) < 0x20 || character == '"' || character == '\\';
}

void AppendEscape(char character, std::string& to) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    const unsigned char code = static_cast<unsigned char>(character);
    switch (character) {
        case '"': to += "\\\""; break;
        case '\\': to += "\\\\"; break;
        case '\r': to += "\\r"; break;
        case '\n': to += "\\n"; break;
        case '\t': to += "\\t"; break;
        default: to.append("\\u00") += {kDigits[code >> 4], kDigits[code & 15]};
    }
}

// text  UTF-8
void AppendJsonString(std::string_view text, std::string& to) {
    to += '"';
    const char* const end = text.data() + text.size();
    const char* at = text.data();
    for (;;) {
        const char* const escaped = std::find_if(at, end, [](char c) { return NeedsEscape(c); });
        to.append(at, escaped);
        if (escaped == end) break;
        AppendEscape(*escaped, to);
        at = escaped + 1;
    }
    to += '"';
}

void AppendMember(std::string_view before, std::string_view text, std::string& to) {
    to += before;
    AppendJsonString(text, to);
}

void AppendMessages(const std::vector<ShownMessage>& messages, std::string& to) {
    for (const ShownMessage& message : messages) {
        AppendMember(&message == messages.data() ? "{\"title\":" : ",{\"title\":", message.title, to);
        AppendMember(",\"text\":", message.text, to);
        to += '}';
    }
}

std::string_view ResultWord(ClickOutcome outcome) {
    switch (outcome) {
        case ClickOutcome::Stopped: return "null";
        case ClickOutcome::Result: return "true";
        case ClickOutcome::NoResult: break;
    }
    return "false";
}

}  // namespace

bool AnswerJsonLine(std::string_view line, std::uint64_t number, const Clock& clock, std::string& response) {
    ComputeRequest request;
    const std::string fault = ReadJsonRequest(line, request);
    if (!fault.empty()) {
        AppendJsonFault(fault, number, response);
        return false;
    }
    AnswerRequest(std::move(request), clock, response);
    return true;
}

void AnswerRequest(ComputeRequest request, const Clock& clock, std::string& response) {
    HeadlessWindow window(std::move(request), clock);
    ComputeState state;
    const ClickOutcome outcome = cmdCompute_Click(window, state);
    AppendMember("{\"first\":", window.InputText(InputBox::FirstDate), response);
    AppendMember(",\"difference\":", window.InputText(InputBox::Difference), response);
    AppendMember(",\"second\":", window.InputText(InputBox::SecondDate), response);
    AppendMember(",\"output\":", window.Output(), response);
    response += ",\"messages\":[";
    AppendMessages(window.Messages(), response);
    response += window.Unit() == DifferenceUnit::Days ? "],\"unit\":\"days\"" : "],\"unit\":\"months\"";
    response.append(",\"result\":").append(ResultWord(outcome)).append(",\"value\":");
    AppendJsonValue(outcome, window, state, response);
    response += '}';
}

void AppendJsonFault(std::string_view fault, std::uint64_t number, std::string& response) {
    AppendMember("{\"error\":", fault, response);
    response.append(",\"line\":").append(std::to_string(number)) += '}';
}

}  // namespace calvoro
