#pragma once

// Values that are chosen by name, as the options of the command line and the keys of a JSON request offer
// them.

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "calendar/CalendarNumber.h"
#include "calendar/DateRecord.h"
#include "calendar/Today.h"
#include "cli/ComputeRequest.h"
#include "compute/ComputeOptions.h"
#include "datetext/MonthText.h"
#include "datetext/Tags.h"
#include "datetext/TextOptions.h"
#include "text/AsciiCase.h"
#include "text/Language.h"

namespace calvoro {

template <typename Value>
struct Choice {
    std::string_view name;
    Value value;
};

constexpr std::array<Choice<CalendarNumber>, kOfferedNotations.size()> MakeNotationChoices() {
    std::array<Choice<CalendarNumber>, kOfferedNotations.size()> choices{};
    for (std::size_t row = 0; row < choices.size(); ++row) {
        choices[row] = {TagText(kOfferedNotations[row]), kOfferedNotations[row]};
    }
    return choices;
}
inline constexpr std::array kNotationChoices = MakeNotationChoices();
inline constexpr std::array<Choice<DateFormat>, 3> kDateFormatChoices = {{
    {"YMD", DateFormat::YMD},
    {"DMY", DateFormat::DMY},
    {"MDY", DateFormat::MDY},
}};
inline constexpr std::array<Choice<char>, 3> kDateSeparatorChoices = {{{"-", '-'}, {"/", '/'}, {".", '.'}}};
inline constexpr std::array<Choice<char>, 3> kThousandsSeparatorChoices = {
    {{",", ','}, {".", '.'}, {"none", kNoSeparator}}};
inline constexpr std::array<Choice<DifferenceUnit>, 2> kUnitChoices = {{
    {"days", DifferenceUnit::Days},
    {"months", DifferenceUnit::Months},
}};
inline constexpr std::array<Choice<LanguageNumber>, 3> kLanguageChoices = {{
    {"en", LanguageEnglish},
    {"de", LanguageGerman},
    {"es", LanguageSpanish},
}};
inline constexpr std::array<Choice<CalendarCode>, 2> kMonthCalendarChoices = {{
    {"CE", CalendarCode::G},
    {"JC", CalendarCode::J},
}};
inline constexpr std::array<Choice<WeekStart>, 2> kWeekStartChoices = {{
    {"sun", WeekStart::Sunday},
    {"mon", WeekStart::Monday},
}};
// The languages that captions and names exist in; messages exist in Spanish too.
inline constexpr std::array<Choice<LanguageNumber>, 2> kShownLanguageChoices = {{
    {"en", LanguageEnglish},
    {"de", LanguageGerman},
}};
inline constexpr std::array<Choice<ClearAnswer>, 4> kClearChoices = {{
    {"cancel", ClearAnswer::Cancel},
    {"first", ClearAnswer::FirstDate},
    {"difference", ClearAnswer::Difference},
    {"second", ClearAnswer::SecondDate},
}};

enum class NameCase { Exact, Any };

/// The value that has this name; nothing when none has.
template <typename Value, std::size_t count>
std::optional<Value> ChosenValue(const std::array<Choice<Value>, count>& choices, std::string_view name,
                                 NameCase nameCase) {
    for (const Choice<Value>& choice : choices) {
        const bool matches =
            nameCase == NameCase::Exact ? choice.name == name : EqualsIgnoringCase(choice.name, name);
        if (matches) return choice.value;
    }
    return std::nullopt;
}

/// Reads a name.
/// returns  empty, or the reason to refuse it: "must be one of 'YMD', 'DMY', 'MDY'"
template <typename Value, std::size_t count>
std::string TakeChoice(const std::array<Choice<Value>, count>& choices, std::string_view name,
                       NameCase nameCase, Value& value) {
    if (const std::optional<Value> chosen = ChosenValue(choices, name, nameCase)) {
        value = *chosen;
        return {};
    }
    std::string reason = "must be one of";
    for (const Choice<Value>& choice : choices) {
        reason += &choice == choices.data() ? " '" : ", '";
        reason += choice.name;
        reason += '\'';
    }
    return reason;
}

/// Reads what groups the digits of leap-week years: ",", "." or "none", which is the empty text.
/// returns  empty, or the reason to refuse it
std::string TakeDigitGrouping(std::string_view text, std::string& grouping);

/// Reads a date of the local calendar, written as four digits, "-", two digits, "-", two digits.
/// returns  empty, or the reason to refuse it
std::string TakeToday(std::string_view text, std::optional<LocalDate>& today);

}  // namespace calvoro
