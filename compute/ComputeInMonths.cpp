#include "compute/ComputeInMonths.h"

#include <initializer_list>

#include "compute/FindDate.h"
#include "compute/ParseInputs.h"
#include "compute/ResultText.h"
#include "text/NumberedTexts.h"

namespace calvoro {
namespace {

// A message of numbered texts, a line each.
void ShowProgramTexts(std::initializer_list<NumberedText> numbers, ComputeWindow& window,
                      const Texts& texts) {
    std::string prompt;
    for (const NumberedText number : numbers) {
        if (number != *numbers.begin()) prompt += "\r\n";
        prompt += texts.GetProgramText(number);
    }
    window.ShowMessage(prompt, texts.Shown(TextId::Compute));
}

// Shows why months cannot be counted in what was given.
bool AcceptTask(const InputTexts& texts, ComputeWindow& window, const ComputeOptions& options) {
    if (!texts.first.empty() && !texts.second.empty()) {
        ShowProgramTexts({kNoMonthsBetweenDatesText, kCountedInDaysNowText}, window, options.texts);
        window.SwitchToDays();
        return false;
    }
    if (options.firstCalendar != options.secondCalendar) {
        ShowProgramTexts({kToAddMonthsText, kCalendarsMustBeEqualText}, window, options.texts);
        return false;
    }
    if (!HasMonths(options.firstCalendar)) {
        ShowProgramTexts({kMonthsOnlyWithText, kMonthCalendarsText, kMoreMonthCalendarsText}, window,
                         options.texts);
        return false;
    }
    return true;
}

}  // namespace

bool ComputeInMonths(InputTexts texts, ComputeWindow& window, ComputeState& state) {
    if (!AcceptTask(texts, window, state.options)) return false;
    if (!ParseDateDifference(texts.difference, window, state)) return false;

    bool result = false;
    if (texts.first.empty()) {
        if (!ParseSecondDate(texts.second, window, state)) return false;
        result = FindAndDisplay(InputBox::SecondDate, texts.difference, FindFirstDateByMonths, window, state);
    } else {
        if (!ParseFirstDate(texts.first, window, state)) return false;
        result = FindAndDisplay(InputBox::FirstDate, texts.difference, FindSecondDateByMonths, window, state);
    }
    FinishLine(window);
    return result;
}

}  // namespace calvoro
