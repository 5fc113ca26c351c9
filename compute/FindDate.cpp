#include "compute/FindDate.h"

#include "calendar/CheckedInt.h"
#include "calendar/DayNumber.h"
#include "calendar/EuroDate.h"
#include "calendar/LeapWeekDate.h"
#include "calendar/MonthArithmetic.h"
#include "calendar/StaysIn32Bits.h"
#include "calendar/Weekday.h"
#include "compute/ComputeMessages.h"

namespace calvoro {
namespace {

constexpr std::int32_t kWeekdaysPerWeek = 5;
constexpr std::int32_t kDaysPerWeek = 7;

CheckedInt Magnitude(CheckedInt number) {
    return number < 0 ? -number : number;
}

// The first weekday from this day on, in the direction of the step (1 or -1).
CheckedInt NearestWeekday(CheckedInt day, CheckedInt step) {
    while (!IsWeekday(day.Value())) day += step;
    return day;
}

// The day that lies a number of weekdays away in the direction of the step (1 or -1). Whole groups of five
// are taken as whole weeks, so that with no rest the start keeps its weekday, a weekend included.
CheckedInt StepWeekdays(CheckedInt start, CheckedInt count, CheckedInt step) {
    const CheckedInt weeks = count.Value() / kWeekdaysPerWeek;
    CheckedInt rest = count - kWeekdaysPerWeek * weeks;  // [0, 4]
    CheckedInt day = start;
    while (rest > 0) {
        day += step;
        if (IsWeekday(day.Value())) rest -= 1;
    }
    const CheckedInt wholeWeeks = kDaysPerWeek * weeks;
    return step > 0 ? day + wholeWeeks : day - wholeWeeks;
}

void AddDaysToFirstDate(ComputeState& state) {
    const CheckedInt first = state.FirstDateRecord.jdn;
    const CheckedInt difference = state.DateDifference;
    const CheckedInt step = difference > 0 ? 1 : -1;
    const ComputeOptions& options = state.options;
    std::int32_t& second = state.SecondDateRecord.jdn;

    if (difference == 0) {
        second = first.Value();
    } else if (options.countWeekendDays) {
        second = (first + difference).Value();
        if (options.includeFirstDate) second = (second - step).Value();
    } else {
        CheckedInt count = Magnitude(difference);
        if (options.includeFirstDate && IsWeekday(first.Value())) count -= 1;
        second = StepWeekdays(first, count, step).Value();
    }
}

void SubtractDaysFromSecondDate(ComputeState& state) {
    const CheckedInt second = state.SecondDateRecord.jdn;
    const CheckedInt difference = state.DateDifference;
    const CheckedInt towardSecond = difference > 0 ? 1 : -1;
    const ComputeOptions& options = state.options;
    std::int32_t& first = state.FirstDateRecord.jdn;

    if (difference == 0) {
        first = second.Value();
    } else if (options.countWeekendDays) {
        first = (second - difference).Value();
        if (options.includeFirstDate) first = (first + towardSecond).Value();
    } else {
        first = StepWeekdays(NearestWeekday(second, -1), Magnitude(difference), -towardSecond).Value();
        if (options.includeFirstDate) first = NearestWeekday(first + towardSecond, towardSecond).Value();
    }
}

// Runs the search and judges the day it found; a difference of 0 is in range wherever its date lies.
template <typename Search>
bool IsFoundInRange(const Search& search, const DateRecord& found, const ComputeState& state) {
    return StaysIn32Bits(search) && (state.DateDifference == 0 || IsWithinDayLimits(found.jdn));
}

bool Tell(bool isInRange, ComputeWindow& window, const ComputeState& state) {
    if (!isInRange) ShowComputeMessage(ComputeMessage::ResultOutOfRange, state.options.texts, window);
    return isInRange;
}

// Both calendars are the same when months are added.
bool IsLeapWeekForm(const ComputeState& state) {
    return state.options.firstCalendar == CalendarNumber::LPM;
}

}  // namespace

bool HasMonths(CalendarNumber calendar) {
    return calendar == CalendarNumber::CE || calendar == CalendarNumber::JC ||
           calendar == CalendarNumber::LPM;
}

DateRecord RecordWithMonth(std::int32_t jdn, CalendarNumber calendar) {
    DateRecord record{.jdn = jdn};
    if (calendar == CalendarNumber::LPM) {
        LeapWeekDate date{.jdn = jdn};
        JdnToLpm(date);
        record.year = date.year;
        record.month = date.month;
        record.day = date.day;
    } else {
        record.calendar = calendar == CalendarNumber::JC ? CalendarCode::J : CalendarCode::G;
        jdn_to_euro_date(record);
    }
    return record;
}

bool AddDays(ComputeState& state) {
    return IsFoundInRange([&] { AddDaysToFirstDate(state); }, state.SecondDateRecord, state);
}

bool AddMonths(ComputeState& state) {
    const auto search = [&] {
        AddMonths(state.FirstDateRecord, state.DateDifference, state.SecondDateRecord, IsLeapWeekForm(state));
    };
    return IsFoundInRange(search, state.SecondDateRecord, state);
}

bool FindSecondDate(ComputeWindow& window, ComputeState& state) {
    const bool isInRange = Tell(AddDays(state), window, state);
    window.SetTheFocus();
    return isInRange;
}

bool FindFirstDate(ComputeWindow& window, ComputeState& state) {
    const bool isInRange =
        Tell(IsFoundInRange([&] { SubtractDaysFromSecondDate(state); }, state.FirstDateRecord, state), window,
             state);
    window.SetTheFocus();
    return isInRange;
}

bool FindSecondDateByMonths(ComputeWindow& window, ComputeState& state) {
    return Tell(AddMonths(state), window, state);
}

bool FindFirstDateByMonths(ComputeWindow& window, ComputeState& state) {
    const auto search = [&] {
        const CheckedInt months = -CheckedInt(state.DateDifference);
        AddMonths(state.SecondDateRecord, months.Value(), state.FirstDateRecord, IsLeapWeekForm(state));
    };
    return Tell(IsFoundInRange(search, state.FirstDateRecord, state), window, state);
}

}  // namespace calvoro
