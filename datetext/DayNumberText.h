#pragma once

// Day numbers as text.

#include <cstdint>
#include <string_view>

#include "calendar/DateRecord.h"
#include "datetext/ParseStatus.h"

namespace calvoro {

/// Reads a number with an optional leading "-" from the start of a text up to the first character that
/// cannot continue a number; a "+" can begin one. Without a digit there, it is 0.
/// text     UTF-8. Behind the "-", ten characters at most count, whatever they are, and ten must not compare
///          greater than "2147483647".
/// status   Valid; NotValid for an empty text or a further "-"; OutOfRange for a longer or greater text, and
///          beyond 2,100,000,000 either way
/// returns  the day number; 0 unless the status is Valid
std::int32_t ParseJdnText(std::string_view text, ParseStatus& status);

/// Reads a day number that was typed under a date separator: the separator may occur only where it can be
/// a sign ("-") or group thousands ("."): in front of each of the last one to three groups of three
/// characters. record  its jdn is set when the text is valid
ParseStatus ParseDayNumberDate(std::string_view text, char separator, DateRecord& record);

}  // namespace calvoro
