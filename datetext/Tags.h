#pragma once

// The tags of the notations, and the name tables that stand beside them: month names and the day names of
// the five-day week. Weekday names belong to the program's texts.

#include <array>
#include <cstdint>
#include <string_view>

#include "calendar/CalendarNumber.h"

namespace calvoro {

/// One row of the tag table.
struct TagRow {
    CalendarNumber number{};
    std::string_view tag;     // "CE", "JC" ...
    std::string_view letter;  // for information: CalendarCodeOfTag decides
};

/// The ten rows, in the order of CalendarNumber.
inline constexpr std::array<TagRow, kCalendarNumberCount> kTagTable{{
    {CalendarNumber::CE, "CE", "G"},
    {CalendarNumber::JC, "JC", "J"},
    {CalendarNumber::JDN, "JDN", "JD"},
    {CalendarNumber::AN, "AN", "A"},
    {CalendarNumber::ORD, "ORD", ""},
    {CalendarNumber::VLW, "VLW", "V"},
    {CalendarNumber::ISO, "ISO", "I"},
    {CalendarNumber::LPW, "LPW", ""},
    {CalendarNumber::LPM, "LPM", ""},
    {CalendarNumber::ARC, "ARC", ""},
}};

/// The tag that is written after a date in this notation.
/// number  one of the ten; there is no row for any other
constexpr std::string_view TagText(CalendarNumber number) {
    return kTagTable[static_cast<std::size_t>(number)].tag;
}

/// Whether each tag of the table stands at the place of its number.
constexpr bool TagsStandInTheOrderOfTheirNumbers() {
    for (std::size_t row = 0; row < kTagTable.size(); ++row) {
        if (static_cast<std::size_t>(kTagTable[row].number) != row || kTagTable[row].tag.empty())
            return false;
    }
    return true;
}
static_assert(TagsStandInTheOrderOfTheirNumbers());

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
