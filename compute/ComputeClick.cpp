#include "compute/ComputeClick.h"

#include "compute/ComputeInDays.h"
#include "compute/ComputeInMonths.h"
#include "datetext/Blanks.h"

namespace calvoro {
namespace {

// Removes blanks only: a tab stays and is judged by the readers.
std::string TrimBox(InputBox box, ComputeWindow& window) {
    const std::string text = window.InputText(box);
    std::string trimmed(TrimBlanks(text));
    window.SetInputText(box, trimmed);
    return trimmed;
}

InputTexts TrimBoxes(ComputeWindow& window) {
    InputTexts texts;
    texts.first = TrimBox(InputBox::FirstDate, window);
    texts.difference = TrimBox(InputBox::Difference, window);
    texts.second = TrimBox(InputBox::SecondDate, window);
    return texts;
}

InputTexts ReadBoxes(const ComputeWindow& window) {
    return {.first = window.InputText(InputBox::FirstDate),
            .difference = window.InputText(InputBox::Difference),
            .second = window.InputText(InputBox::SecondDate)};
}

bool IsOneDateAlone(const InputTexts& texts) {
    return texts.difference.empty() && texts.first.empty() != texts.second.empty();
}

// Settles the fillings that ask for nothing yet: none, only a difference, all three.
// returns  false when the click ends here
bool SettleFilling(const InputTexts& texts, ComputeWindow& window) {
    const bool hasFirst = !texts.first.empty();
    const bool hasDifference = !texts.difference.empty();
    const bool hasSecond = !texts.second.empty();
    if (!hasFirst && !hasDifference && !hasSecond) {
        window.FillWithToday();
        return true;
    }
    if (!hasFirst && !hasSecond) return false;
    if (hasFirst && hasDifference && hasSecond) return window.AskWhichBoxToClear();
    return true;
}

void CheckSingleDateSameCalendar(const InputTexts& texts, ComputeState& state) {
    state.SingleDateSameCalendar =
        IsOneDateAlone(texts) && state.options.firstCalendar == state.options.secondCalendar;
}

bool Compute(const InputTexts& texts, ComputeWindow& window, ComputeState& state) {
    const bool inDays = state.options.unit == DifferenceUnit::Days || IsOneDateAlone(texts);
    return inDays ? ComputeInDays(texts, window, state) : ComputeInMonths(texts, window, state);
}

}  // namespace

ClickOutcome cmdCompute_Click(ComputeWindow& window, ComputeState& state) {
    if (!SettleFilling(TrimBoxes(window), window)) {
        window.SetTheFocus();
        return ClickOutcome::Stopped;
    }
    state.options = window.ReadComputeOptions();
    const InputTexts texts = ReadBoxes(window);
    CheckSingleDateSameCalendar(texts, state);
    const bool result = Compute(texts, window, state);
    window.SetTheFocus();
    return result ? ClickOutcome::Result : ClickOutcome::NoResult;
}

}  // namespace calvoro
