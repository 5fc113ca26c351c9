#pragma once

// ISO 8601 week dates as text: yyyy-Www-d or yyyyWwwd.

#include <string>
#include <string_view>

#include "calendar/IsoWeekDate.h"
#include "datetext/ParseStatus.h"
#include "datetext/TextShape.h"

namespace calvoro {

/// The form of an ISO week date; None when the text is not one. "W" is upper case only.
TextShape IsoShape(std::string_view text);

/// Reads either form; blanks are ignored.
/// date    filled, with set 1 and jdn, when the text is valid
/// throws  ArithmeticOverflow when the day number does not fit 32 bits
ParseStatus ParseIsoWeekDate(std::string_view text, IsoWeekDate& date);

/// Writes year, week and day, with or without hyphens.
std::string FormatIsoWeekDate(const IsoWeekDate& date, bool hyphen);

}  // namespace calvoro
