#pragma once

// A number of days broken into larger units.

#include <string>

#include "compute/ComputeState.h"

namespace calvoro {

/// " (2 years, 1 month, 5 days)": the time between the two dates of the state in the units of their calendar:
/// years, months and days for CE and JC from 31 days, years, weeks and days for ISO from 7 days, years and
/// days for ORD from 365 days. Parts that are zero are left out.
/// returns  "" when DateDifference is below that, weekend days are not counted, the calendars differ or have
///          no such units, or every part is zero
std::string DifferenceBreakdown(const ComputeState& state);

}  // namespace calvoro
