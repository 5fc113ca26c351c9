#include "compute/CountDays.h"

#include "calendar/CheckedInt.h"
#include "calendar/StaysIn32Bits.h"
#include "calendar/Weekday.h"
#include "compute/ComputeMessages.h"

namespace calvoro {
namespace {

// Weekend days among the days after `earlier` up to `last`; none when `last` is not later.
CheckedInt WeekendDaysAfter(CheckedInt earlier, CheckedInt last) {
    CheckedInt count = 0;
    for (CheckedInt day = earlier + 1; day <= last; day += 1) {
        if (!IsWeekday(day.Value())) count += 1;
    }
    return count;
}

// The count of all days without those on a weekend: two for every whole week, the rest day by day.
CheckedInt WithoutWeekendDays(CheckedInt days, CheckedInt first, CheckedInt second) {
    const CheckedInt weeks = (days <= 0 ? -days : days).Value() / 7;
    if (days <= 0) return days + 2 * weeks + WeekendDaysAfter(second, first - 7 * weeks);
    return days - 2 * weeks - WeekendDaysAfter(first, second - 7 * weeks);
}

void SetDateDifference(ComputeState& state) {
    const CheckedInt first = state.FirstDateRecord.jdn;
    const CheckedInt second = state.SecondDateRecord.jdn;
    const ComputeOptions& options = state.options;

    CheckedInt days = second - first;
    state.DateDifference = days.Value();
    if (!options.countWeekendDays) {
        days = WithoutWeekendDays(days, first, second);
        state.DateDifference = days.Value();
    }
    if (options.includeFirstDate && (options.countWeekendDays || IsWeekday(first.Value()))) {
        days += days < 0 ? -1 : 1;
        state.DateDifference = days.Value();
    }
}

}  // namespace

bool CountDays(ComputeState& state) {
    return StaysIn32Bits([&] { SetDateDifference(state); });
}

bool CountDaysBetween(ComputeWindow& window, ComputeState& state) {
    if (!CountDays(state)) {
        ShowComputeMessage(ComputeMessage::ResultOutOfRange, state.options.texts, window);
        return false;
    }
    window.SetTheFocus();
    return true;
}

}  // namespace calvoro
