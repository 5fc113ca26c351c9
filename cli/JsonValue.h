#pragma once

#include <string>

#include "cli/HeadlessWindow.h"
#include "compute/ComputeClick.h"
#include "compute/ComputeState.h"

namespace calvoro {

/// Appends what a click computed, for programs: a number of days with the parts that the result line shows,
/// or a date with its day number and ISO weekday; null without a result. No text needs an escape.
/// window, state  after the click
void AppendJsonValue(ClickOutcome outcome, const HeadlessWindow& window, const ComputeState& state,
                     std::string& to);

}  // namespace calvoro
