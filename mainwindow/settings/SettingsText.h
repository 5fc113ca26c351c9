#pragma once

// What stands in the settings file: fifteen comma-separated lines. Whatever was written comes back, quotes
// and line breaks included.
//
// Line 1       language
// Line 2       date format, code of the date separator, code of the thousands separator (0: none)
// Line 3       calendars of the today line, the first and the second date
// Lines 4-8    check boxes: first date included, weekends counted, verbose, hyphen, output saved
// Lines 9, 10  "Sun" or "Mon", "CE" or "JC" of the month window
// Lines 11-14  texts of the three boxes and of the output, quoted, quotes inside them as they are
// Line 15      unit of the difference
//
// Lines end with CR LF. As quotes are not escaped, a text of a box ends at the last quote of its line, and
// the output, which has lines of its own, at the last quote that a line end and a line with a number follow.
// A text of a box that has a CR LF inside, which cannot be typed, is written with LF instead.

#include <optional>
#include <string>
#include <string_view>

#include "mainwindow/settings/Settings.h"

namespace calvoro {

/// The fifteen lines, with the four texts as they are.
std::string SettingsText(const Settings& settings);

/// Reads the fifteen lines; what stands behind them is ignored. Only where CR LF alone does not make
/// fifteen lines of the text does LF end a line too, and then also in the output. Unknown values fall back
/// to the first option of their group.
/// returns  nothing when the text is faulty: too few lines, a field of the wrong kind, a language that does
///          not exist. The check boxes cannot be faulty: 1 is set, whatever else stands there is not.
std::optional<Settings> ParseSettingsText(std::string_view text);

}  // namespace calvoro
