#pragma once

// The tags of the notations, and the name tables that stand beside them: month names and the day names of
// the five-day week. Weekday names belong to the program's texts.

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "calendar/CalendarNumber.h"

namespace calvoro {

/// One row of the tag table, numbered by CalendarNumber.
struct TagRow {
    std::string_view tag;     // "CE", "JC" ...
    std::string_view letter;  // for information: CalendarCodeOfTag decides
};

/// The ten rows, in the order of CalendarNumber.
const std::array<TagRow, 10>& TagTable();

/// The tag that is written after a date in this notation.
std::string_view TagText(CalendarNumber number);

/// The notation of a tag.
/// ignoreCase  "ce" is CE too
/// returns     nothing when no notation has this tag
std::optional<CalendarNumber> NotationOfTag(std::string_view tag, bool ignoreCase);

/// Names of one month.
struct MonthNameRow {
    std::string_view english;
    std::string_view englishShort;
    std::string_view german;
    std::string_view germanShort;
};

/// Month names, January first. Kept beside the tags; no output is written from them.
const std::array<MonthNameRow, 12>& MonthNameTable();

/// Day names of the five-day week of the Annus Novus calendar; no output is written from them.
const std::array<std::string_view, 6>& FiveDayWeekNames();

}  // namespace calvoro
