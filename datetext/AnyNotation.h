#pragma once

// One table of the notations that are offered, with a reader and a writer each. Boxes, buttons,
// result lines and the command line go through it. What the program writes in a notation, the reader of
// that notation here takes back as the same day, under every option.

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "calendar/CalendarNumber.h"
#include "calendar/DateRecord.h"
#include "datetext/ParseStatus.h"
#include "datetext/TextOptions.h"

namespace calvoro {

/// One notation.
/// read   fills a zeroed record: always the day number; year, month, day and code where the notation has
///        them (LPM: code 0). `canonical`, unless null, receives the date as it is rewritten in its box.
/// write  the text of a day, without tag. ORD writes any day by its formula ("10000-007"), but reads back
///        those within IsWithinOrdinalLimits only.
/// read may throw ArithmeticOverflow; ReadDate makes OutOfRange of it.
struct Notation {
    CalendarNumber number;
    std::string_view tag;
    // Each calls the reader or writer of its notation.
    ParseStatus (*read)(std::string_view text, const TextOptions& options, DateRecord& record,
                        std::string* canonical);
    // Days within the limits of the notation.
    std::string (*write)(std::int32_t jdn, const TextOptions& options);
};

/// The offered notations in the order of kOfferedNotations: CE ISO JC ORD LPM LPW JDN.
std::span<const Notation, kOfferedNotations.size()> Notations();

/// The row of a notation that is offered to the user; any other number gives the row of CE.
const Notation& NotationOf(CalendarNumber number);

/// A typed date without the blanks around it and without a blank and this notation's tag, exactly written, at
/// its end: as it stands in a result line, so that it can be pasted back.
std::string_view DateAlone(const Notation& notation, std::string_view text);

/// Reads a typed date in a notation: drops blanks around it and a trailing tag of this notation, prepares
/// groupings by threes, and calls the notation's reader.
/// record     a zeroed record; it stays so unless the text is valid
/// canonical  receives the text to stand in the box, unless null
/// returns    OutOfRange also when the day number does not fit 32 bits
ParseStatus ReadDate(const Notation& notation, std::string_view text, const TextOptions& options,
                     DateRecord& record, std::string* canonical = nullptr);

/// The same in the notation of a number; see NotationOf.
ParseStatus ReadDate(CalendarNumber number, std::string_view text, const TextOptions& options,
                     DateRecord& record, std::string* canonical = nullptr);

/// Whether a notation takes a day, so that what is written reads back: ORD has limits, the others have none.
bool CanWriteDate(CalendarNumber number, std::int32_t jdn);

/// The text of a day in a notation, without tag.
/// jdn  CanWriteDate must hold
std::string WriteDate(CalendarNumber number, std::int32_t jdn, const TextOptions& options);

/// Reads a typed number of days or months: grouping dots are dropped first, whatever the options say,
/// because a click on the separator's options rewrites no box.
ParseStatus ReadDifference(std::string_view text, std::int32_t& number);

}  // namespace calvoro
