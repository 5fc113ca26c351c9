#pragma once

// A number of months added to a date or taken from it.

#include "compute/ComputeState.h"
#include "compute/ComputeWindow.h"
#include "compute/InputTexts.h"

namespace calvoro {

/// Adds the difference, in months, to the first date, or takes it from the second date, and writes the result
/// line. Two dates, unequal calendars and calendars without months are refused with a message that is titled
/// as the Compute button; two dates switch the window to days as well.
/// texts    two of the three are given
/// returns  true when a result was produced
bool ComputeInMonths(InputTexts texts, ComputeWindow& window, ComputeState& state);

}  // namespace calvoro
