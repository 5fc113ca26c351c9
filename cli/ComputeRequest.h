#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "calendar/Today.h"
#include "compute/ComputeOptions.h"

namespace calvoro {

/// The answer to the question which of three filled boxes to empty.
enum class ClearAnswer : std::uint8_t { Cancel, FirstDate, Difference, SecondDate };

/// One Compute click: what stands in the boxes, and everything else the window would know. The values here
/// are the window's factory settings.
struct ComputeRequest {
    std::string first;
    std::string difference;
    std::string second;
    ComputeOptions options;
    ClearAnswer clear = ClearAnswer::Cancel;
    std::optional<LocalDate> today;  // the system's date when not given
};

}  // namespace calvoro
