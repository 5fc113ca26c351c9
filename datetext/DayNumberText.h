#pragma once

// Day numbers as text.

#include <cstdint>
#include <string_view>

#include "calendar/DateRecord.h"
#include "datetext/ParseStatus.h"

namespace calvoro {

/// Reads a number of up to ten digits with an optional leading "-", up to the first character that cannot
/// continue a number.
/// status   Valid, NotValid, or OutOfRange beyond 2,100,000,000 either way
/// returns  the day number; 0 unless the status is Valid
std::int32_t ParseJdnText(std::string_view text, ParseStatus& status);

/// Reads a day number that was typed under a date separator: the separator may occur only where it can be
/// a sign ("-") or group thousands (".").
/// record  its jdn is set when the text is valid
ParseStatus ParseDayNumberDate(std::string_view text, char separator, DateRecord& record);

}  // namespace calvoro
