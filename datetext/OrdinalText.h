#pragma once

// Ordinal dates as text: yyyy-ddd or yyyyddd.

#include <cstdint>
#include <string>
#include <string_view>

#include "calendar/DateRecord.h"
#include "datetext/ParseStatus.h"
#include "datetext/TextShape.h"

namespace calvoro {

/// The form of an ordinal date of 7 or 8 characters; None when the text is not one.
TextShape OrdinalShape(std::string_view text);

/// Reads an ordinal date; blanks are ignored. Deliberate: takes only the form that `hyphen` names.
/// record  code G, day number, year, month and day are filled when the text is valid
ParseStatus ParseOrdinalDate(std::string_view text, bool hyphen, DateRecord& record);

/// Writes at least four digits of the year and three of the day.
/// dayOfYear  1 to 366
std::string FormatOrdinalDate(std::int32_t year, std::int16_t dayOfYear, bool hyphen);

}  // namespace calvoro
