#pragma once

// One step of the spinners beside the date boxes.

#include <cstdint>
#include <string>
#include <string_view>

#include "compute/ComputeWindow.h"

namespace calvoro {

/// The date `days` calendar days later (earlier, when negative), in the same notation.
/// box       FirstDate or SecondDate: which messages are shown
/// text      the box's text
/// returns   the new text; empty when the text is refused or the step leaves the range, after showing the
///           message
std::string DateStep(InputBox box, std::string_view text, CalendarNumber calendar, std::int32_t days,
                     const ComputeOptions& options, ComputeWindow& window);

}  // namespace calvoro
