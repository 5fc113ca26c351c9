#pragma once

// What one computation leaves for the next routine, owned by the main window. Nothing clears it: every
// computation overwrites what it sets.

#include <cstdint>
#include <string>

#include "calendar/DateRecord.h"
#include "compute/ComputeOptions.h"

namespace calvoro {

/// Both dates as they were read, their distance in days, and their texts with tags for the result line.
struct ComputeState {
    DateRecord FirstDateRecord;
    DateRecord SecondDateRecord;
    std::int32_t DateDifference = 0;
    std::string FirstDateEcho;
    std::string SecondDateEcho;
    bool SingleDateSameCalendar = false;
    ComputeOptions options;  // the snapshot
};

}  // namespace calvoro
