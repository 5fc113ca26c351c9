#pragma once

// A number of days broken into larger units.

#include <cstdint>
#include <string>

#include "compute/ComputeState.h"

namespace calvoro {

/// The time between two dates in the units of their calendar. What is zero is not shown.
struct DifferenceParts {
    std::int32_t years = 0;
    std::int16_t months = 0;
    std::int16_t weeks = 0;
    std::int16_t days = 0;

    /// Whether any part is not zero.
    bool AreShown() const { return years != 0 || months != 0 || weeks != 0 || days != 0; }
};

/// The time between the two dates of the state: years, months and days for CE and JC from 31 days, years,
/// weeks and days for ISO from 7 days, years and days for ORD from 365 days.
/// returns  all zero when DateDifference is below that, weekend days are not counted, or the calendars differ
///          or have no such units
DifferenceParts PartsOfDifference(const ComputeState& state);

/// "2 years, 1 month, 5 days"; parts that are zero are left out.
std::string PartsText(const DifferenceParts& parts, const Texts& texts);

/// PartsOfDifference as the result line shows them: " (2 years, 1 month, 5 days)".
/// returns  "" when there are none
std::string DifferenceBreakdown(const ComputeState& state);

}  // namespace calvoro
