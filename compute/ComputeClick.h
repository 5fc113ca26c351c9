#pragma once

// The Compute click, from the three texts to the result line.

#include "compute/ComputeState.h"
#include "compute/ComputeWindow.h"

namespace calvoro {

enum class ClickOutcome {
    Stopped,   // ended before anything was computed: only a difference, or no box chosen to be emptied
    Result,    // a result line was written
    NoResult,  // an input was refused or the result is out of range
};

/// One Compute click. Every effect reaches the window in the order in which it is described by the texts:
/// accepted boxes are rewritten before a later input is looked at.
ClickOutcome cmdCompute_Click(ComputeWindow& window, ComputeState& state);

}  // namespace calvoro
