#pragma once

// Every day number to the fields of every calendar and back, beside calendars that only know the next date.

#include <cstdint>

#include "tests/exhaustive/Shares.h"

namespace calvoro::exhaustive {

/// Checks every day of a span and reports each fault.
/// days     within 32 bits, with room for one more day at the end
/// returns  the number of days checked
std::int64_t CheckCalendars(Days days);

}  // namespace calvoro::exhaustive
