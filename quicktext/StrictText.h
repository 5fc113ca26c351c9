#pragma once

// Dates read strictly, whatever their form: only what belongs to the notation under the chosen options, and
// all of it in its place. Everything that the program writes is taken, grouped and parenthesised years, eras
// and the notation's own tag included, but for the two kinds of dates that the notations' readers refuse
// (ISO week 53 of years below 1 and day number 0 as a leap-week date). A month or a day of CE and JC may
// have one digit, a year any number of zeros in front. U+2212 is read as a minus. Nothing is ever dropped.

#include <string_view>

#include "calendar/CalendarNumber.h"
#include "datetext/TextOptions.h"
#include "quicktext/StrictResult.h"

namespace calvoro {

/// Reads a text of one notation.
/// notation  one of the seven that are offered
/// options   the format and the separators of the text. Years from 10000 and day numbers may be grouped with
///           "," or "." whatever they say, years of leap-week dates with `digitGrouping` too.
StrictResult ReadStrictText(CalendarNumber notation, const TextOptions& options, std::string_view text);

}  // namespace calvoro
