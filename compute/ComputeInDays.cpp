#include "compute/ComputeInDays.h"

#include "compute/CountDays.h"
#include "compute/FindDate.h"
#include "compute/ParseInputs.h"
#include "compute/ResultText.h"

namespace calvoro {
namespace {

bool FromFirstToSecond(ComputeWindow& window, ComputeState& state) {
    if (!CountDaysBetween(window, state)) return false;
    DisplayDateDiff(window, state);
    return true;
}

}  // namespace

bool ComputeInDays(InputTexts texts, ComputeWindow& window, ComputeState& state) {
    const bool hasFirst = !texts.first.empty();
    const bool hasDifference = !texts.difference.empty();
    const bool hasSecond = !texts.second.empty();
    const bool isOverfilled = hasFirst && hasDifference && hasSecond;  // nothing is left to be computed

    if (hasSecond && !ParseSecondDate(texts.second, window, state)) return false;
    if (!ParseDateDifference(texts.difference, window, state)) return false;
    if (hasFirst && !isOverfilled && !ParseFirstDate(texts.first, window, state)) return false;

    bool result = true;
    if (hasFirst && hasSecond && !hasDifference) {
        result = FromFirstToSecond(window, state);
    } else if (hasSecond && !hasFirst) {
        result = FindAndDisplay(InputBox::SecondDate, texts.difference, FindFirstDate, window, state);
    } else if (hasFirst && !hasSecond) {
        result = FindAndDisplay(InputBox::FirstDate, texts.difference, FindSecondDate, window, state);
        // Deliberate: every other computation that fails still ends its line; that of a first date alone
        // would not.
        if (!result && !hasDifference) return false;
    }
    FinishLine(window);
    return result;
}

}  // namespace calvoro
