#pragma once

// The number of days from one date to another.

#include "compute/ComputeState.h"
#include "compute/ComputeWindow.h"

namespace calvoro {

/// Sets DateDifference to the number of days from the first date to the second, by their day numbers and
/// under the two counting rules. Without weekend days the days after the earlier date up to and including
/// the later one are counted when they are weekdays; with the first date included the count moves one away
/// from zero, unless only weekdays count and the first date is none. Examines six single days at most.
/// returns  false when a step left 32 bits
bool CountDays(ComputeState& state);

/// The same as a step of the click.
/// returns  false after showing that the result is out of range
bool CountDaysBetween(ComputeWindow& window, ComputeState& state);

}  // namespace calvoro
