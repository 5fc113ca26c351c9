#pragma once

// The task in days that the filled boxes ask for: a conversion, a count, or a date from a date.

#include "compute/ComputeState.h"
#include "compute/ComputeWindow.h"
#include "compute/InputTexts.h"

namespace calvoro {

/// Reads the given inputs, the second date first, then the difference, then the first date, computes what is
/// missing and writes the result line. The first input that is refused ends it without writing anything.
/// returns  true when a result was produced
bool ComputeInDays(InputTexts texts, ComputeWindow& window, ComputeState& state);

}  // namespace calvoro
