#pragma once

#include <string>
#include <string_view>

#include "calendar/CalendarNumber.h"

namespace calvoro {

/// An ISO week date or an ordinal date in the hyphenated or the compact form. The minus sign of a negative
/// ISO year stays; blanks around the date and its own tag go.
/// returns  the text as it is when it has that form already, is no such date, or is in another notation
std::string WithHyphens(std::string_view text, CalendarNumber calendar, bool hyphen);

}  // namespace calvoro
