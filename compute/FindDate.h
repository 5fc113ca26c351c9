#pragma once

// A date from another date and a number of days or months. The two directions in days are no exact mirrors
// of each other; see each.

#include "compute/ComputeState.h"
#include "compute/ComputeWindow.h"

namespace calvoro {

/// Whether months can be added to dates of a calendar: CE, JC and LPM.
bool HasMonths(CalendarNumber calendar);

/// A day as the record that months are added to.
/// calendar  one that has months
DateRecord RecordWithMonth(std::int32_t jdn, CalendarNumber calendar);

/// Sets the day number of SecondDateRecord as FindSecondDate does.
/// returns  false when the result is out of range
bool AddDays(ComputeState& state);

/// Sets SecondDateRecord as FindSecondDateByMonths does.
/// returns  false when the result is out of range
bool AddMonths(ComputeState& state);

/// Sets the day number of SecondDateRecord: DateDifference days after the first date. A difference of 0 is
/// the first date itself and never fails.
/// Deliberate: when only weekdays count, a first date on a weekend is not moved before the steps, and an
/// included first date is taken off the count beforehand, only if it is a weekday.
/// returns  false after showing that the result is out of range
bool FindSecondDate(ComputeWindow& window, ComputeState& state);

/// Sets the day number of FirstDateRecord: DateDifference days before the second date. A difference of 0 is
/// the second date itself and never fails.
/// Deliberate: when only weekdays count, a second date on a weekend is moved back to Friday before the
/// steps, and for an included first date the found date moves one weekday toward the second date afterwards.
/// returns  false after showing that the result is out of range
bool FindFirstDate(ComputeWindow& window, ComputeState& state);

/// Sets SecondDateRecord: DateDifference months after the first date, whose calendar is CE, JC or LPM. A
/// difference of 0 never fails.
/// returns  false after showing that the result is out of range
bool FindSecondDateByMonths(ComputeWindow& window, ComputeState& state);

/// Sets FirstDateRecord: DateDifference months before the second date; otherwise as FindSecondDateByMonths.
bool FindFirstDateByMonths(ComputeWindow& window, ComputeState& state);

}  // namespace calvoro
