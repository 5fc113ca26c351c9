#pragma once

#include <string_view>

#include "calendar/DateRecord.h"
#include "datetext/AnyNotation.h"

namespace calvoro {

/// A date as it was read from a box.
struct BoxDate {
    ParseStatus status = ParseStatus::NotValid;
    DateRecord record;  // filled when the status is Valid
};

/// Reads the text of a box. A text whose day number leaves 32 bits is out of range.
BoxDate ReadBoxDate(CalendarNumber calendar, std::string_view text, const TextOptions& options);

}  // namespace calvoro
