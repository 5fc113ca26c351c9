#pragma once

// Reading the three inputs. An accepted input is rewritten in its box at once; a refused one is reported in
// one message box.

#include <string>

#include "compute/ComputeState.h"
#include "compute/ComputeWindow.h"

namespace calvoro {

/// Reads the first date into FirstDateRecord, rewrites its box, and sets FirstDateEcho: the date and its
/// tag. Deliberate: an ordinal date is echoed without its tag.
/// text     the text of the box, replaced by the canonical one
/// returns  false after showing a message
bool ParseFirstDate(std::string& text, ComputeWindow& window, ComputeState& state);

/// The same for the second date.
bool ParseSecondDate(std::string& text, ComputeWindow& window, ComputeState& state);

/// Reads the number of days or months into DateDifference and rewrites its box with thousands separators.
/// text     the text of the box, replaced by the rewritten one; empty counts as 0 and rewrites nothing
/// returns  false after showing a message
bool ParseDateDifference(std::string& text, ComputeWindow& window, ComputeState& state);

}  // namespace calvoro
