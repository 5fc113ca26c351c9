#pragma once

// Common Era and Julian dates as text.

#include <string>
#include <string_view>

#include "calendar/CalendarNumber.h"
#include "calendar/DateRecord.h"
#include "datetext/ParseStatus.h"
#include "datetext/TextOptions.h"

namespace calvoro {

/// Reads a date of the notation `tag`; day number texts (JDN) go on to ParseDayNumberDate. Blanks are
/// ignored, and every character that cannot be part of a date is dropped silently.
/// record  a zeroed record, filled with year, month, day, code and day number when the text is valid. A
///         year beyond 5,800,000 that the record holds already gives OutOfRange.
/// throws  ArithmeticOverflow when the day number does not fit 32 bits
ParseStatus ParseDateText(std::string_view text, char separator, CalendarNumber tag, DateFormat dateFormat,
                          DateRecord& record);

/// Writes year, month and day of a record. Years beyond 9999 either way get thousands separators; a
/// negative year that stands last is put in parentheses.
/// thousandsSeparator  kNoSeparator for none
/// withSuffix          appends " CE", " JC" or " AN" by the record's code
std::string FormatDateText(const DateRecord& record, DateFormat dateFormat, char separator,
                           char thousandsSeparator, bool withSuffix);

}  // namespace calvoro
