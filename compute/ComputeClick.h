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

/// One Compute click. Every effect reaches the window at once, in its turn: an accepted box is rewritten
/// before a later input is looked at, and a message is shown before what follows it.
/// state  overwritten where the computation sets it; untouched when the click stops before
ClickOutcome cmdCompute_Click(ComputeWindow& window, ComputeState& state);

}  // namespace calvoro
