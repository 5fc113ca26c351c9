#pragma once

// The most common shapes of dates, read and written in a few instructions: four digits of a year, two of
// the month and two of the day, or of the ISO week and its day, with "-" between them. Whatever else a date
// may look like is left to the readers and writers of the notations; what is accepted here, they read as the
// same day and write as the same text.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "calendar/CalendarNumber.h"
#include "datetext/TextOptions.h"

namespace calvoro {

/// Length of both shapes, 2024-03-15 and 2024-W11-5.
inline constexpr std::size_t kQuickDateLength = 10;

/// Whether dates of a notation have a quick shape under these options: CE and JC year first with "-", and
/// ISO with hyphens (which is only written).
bool HasQuickShape(CalendarNumber notation, const TextOptions& options);

/// Reads a CE or JC date of this shape.
/// jdn      its day number
/// returns  false for every other text and for 29 February, valid or not
bool ReadQuickDate(std::string_view text, CalendarNumber notation, std::int32_t& jdn);

/// Writes a CE, JC or ISO date of this shape.
/// to       room for kQuickDateLength characters
/// returns  false, when the year has not exactly four digits
bool WriteQuickDate(CalendarNumber notation, std::int32_t jdn, char* to);

}  // namespace calvoro
