#include "cli/JsonValue.h"

#include <array>
#include <cstdint>
#include <string_view>

#include "calendar/Weekday.h"
#include "compute/DifferenceBreakdown.h"
#include "datetext/AnyNotation.h"
#include "datetext/Tags.h"

namespace calvoro {
namespace {

void AppendBreakdown(const DifferenceParts& parts, std::string& to) {
    if (!parts.AreShown()) {
        to += "null";
        return;
    }
    struct Part {
        std::string_view key;
        std::int32_t number;
    };
    const std::array<Part, 4> rows = {
        {{"years", parts.years}, {"months", parts.months}, {"weeks", parts.weeks}, {"days", parts.days}}};
    char separator = '{';
    for (const Part& row : rows) {
        if (row.number == 0) continue;
        to += separator;
        to.append("\"").append(row.key).append("\":").append(std::to_string(row.number));
        separator = ',';
    }
    to += '}';
}

void AppendDays(const ComputeState& state, std::string& to) {
    to.append("{\"kind\":\"days\",\"days\":").append(std::to_string(state.DateDifference));
    to += ",\"breakdown\":";
    AppendBreakdown(PartsOfDifference(state), to);
    to += '}';
}

void AppendDate(CalendarNumber calendar, std::int32_t jdn, const TextOptions& text, std::string& to) {
    constexpr std::int32_t kSunday = 7;
    const std::int32_t weekday = euro_day_of_week(jdn);
    to.append("{\"kind\":\"date\",\"text\":\"").append(WriteDate(calendar, jdn, text));
    to.append("\",\"calendar\":\"").append(TagText(calendar));
    to.append("\",\"day_number\":").append(std::to_string(jdn));
    to.append(",\"weekday\":").append(std::to_string(weekday == 0 ? kSunday : weekday)) += '}';
}

}  // namespace

void AppendJsonValue(ClickOutcome outcome, const HeadlessWindow& window, const ComputeState& state,
                     std::string& to) {
    const bool hasFirst = !window.InputText(InputBox::FirstDate).empty();
    const bool hasSecond = !window.InputText(InputBox::SecondDate).empty();
    const ComputeOptions& options = state.options;
    if (outcome != ClickOutcome::Result || LacksItsResult(window.Output())) {
        to += "null";
    } else if (hasFirst && hasSecond) {
        AppendDays(state, to);
    } else if (hasFirst) {
        AppendDate(options.secondCalendar, state.SecondDateRecord.jdn, options.text, to);
    } else {
        AppendDate(options.firstCalendar, state.FirstDateRecord.jdn, options.text, to);
    }
}

}  // namespace calvoro
