#include "compute/ComputeInMonths.h"

#include <cstdint>
#include <initializer_list>

#include "compute/FindDate.h"
#include "compute/ParseInputs.h"
#include "compute/ResultText.h"

namespace calvoro {
namespace {

constexpr std::int16_t kNoMonthsBetweenDates = 21;
constexpr std::int16_t kCountedInDaysNow = 22;
constexpr std::int16_t kToAddMonths = 23;
constexpr std::int16_t kCalendarsMustBeEqual = 24;
constexpr std::int16_t kMonthsOnlyWith = 25;
constexpr std::int16_t kMonthCalendars = 26;
constexpr std::int16_t kMoreMonthCalendars = 27;

// A message of numbered texts, a line each.
void ShowProgramTexts(std::initializer_list<std::int16_t> numbers, ComputeWindow& window,
                      const Texts& texts) {
    std::string prompt;
    for (const std::int16_t number : numbers) {
        if (number != *numbers.begin()) prompt += "\r\n";
        prompt += texts.Numbered(number);
    }
    window.ShowMessage(prompt, texts.Shown(TextId::Compute));
}

bool HasMonths(CalendarNumber calendar) {
    return calendar == CalendarNumber::CE || calendar == CalendarNumber::JC ||
           calendar == CalendarNumber::LPM;
}

// Shows why months cannot be counted in what was given.
bool AcceptTask(const InputTexts& texts, ComputeWindow& window, const ComputeOptions& options) {
    if (!texts.first.empty() && !texts.second.empty()) {
        ShowProgramTexts({kNoMonthsBetweenDates, kCountedInDaysNow}, window, options.texts);
        window.SwitchToDays();
        return false;
    }
    if (options.firstCalendar != options.secondCalendar) {
        ShowProgramTexts({kToAddMonths, kCalendarsMustBeEqual}, window, options.texts);
        return false;
    }
    if (!HasMonths(options.firstCalendar)) {
        ShowProgramTexts({kMonthsOnlyWith, kMonthCalendars, kMoreMonthCalendars}, window, options.texts);
        return false;
    }
    return true;
}

bool FirstFromSecond(std::string_view difference, ComputeWindow& window, ComputeState& state) {
    if (!FindFirstDateByMonths(window, state)) return false;
    AppendGivenDate(InputBox::SecondDate, difference, window, state);
    DisplayFirstDate(window, state);
    return true;
}

bool SecondFromFirst(std::string_view difference, ComputeWindow& window, ComputeState& state) {
    if (!FindSecondDateByMonths(window, state)) return false;
    AppendGivenDate(InputBox::FirstDate, difference, window, state);
    DisplaySecondDate(window, state);
    return true;
}

}  // namespace

bool ComputeInMonths(InputTexts texts, ComputeWindow& window, ComputeState& state) {
    if (!AcceptTask(texts, window, state.options)) return false;
    if (!ParseDateDifference(texts.difference, window, state)) return false;

    bool result = false;
    if (texts.first.empty()) {
        if (!ParseSecondDate(texts.second, window, state)) return false;
        result = FirstFromSecond(texts.difference, window, state);
    } else {
        if (!ParseFirstDate(texts.first, window, state)) return false;
        result = SecondFromFirst(texts.difference, window, state);
    }
    FinishLine(window);
    return result;
}

}  // namespace calvoro
