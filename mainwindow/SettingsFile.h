#pragma once

// The settings file: fifteen comma-separated lines, without Qt. Whatever was saved comes back, quotes and
// line breaks included; a crash while saving leaves the file as it was.
//
// Line 1       language
// Line 2       date format, code of the date separator, code of the thousands separator (0: none)
// Line 3       calendars of the today line, the first and the second date
// Lines 4-8    check boxes: first date included, weekends counted, verbose, hyphen, output saved
// Lines 9, 10  "Sun" or "Mon", "CE" or "JC" of the month window
// Lines 11-14  texts of the three boxes and of the output, quoted, quotes inside them as they are
// Line 15      unit of the difference
//
// Lines end with CR LF when written; LF alone is read too. As quotes are not escaped, a text of a box ends
// at the last quote of its line, and the output, which has lines of its own, at the last quote before the
// last line. A text of a box that has a CR LF inside, which cannot be typed, is written with LF instead.

#include <optional>
#include <string>
#include <string_view>

#include "mainwindow/Settings.h"

namespace calvoro {

inline constexpr std::string_view kSettingsFileName = "calvoro.usr";

/// base + "/" + folder + "/" + kSettingsFileName. The folder is created when it is missing (one level).
/// returns  an empty path, which can be neither read nor written, when there is no base folder
std::string SettingsFilePath(std::string_view baseFolder, std::string_view folderName);

/// The fifteen lines.
/// settings  the four texts are written only when saveOutput is set
std::string SettingsText(const Settings& settings);

/// Reads the fifteen lines. Unknown values fall back to the first option of their group.
/// returns  nothing when the text is faulty: too few lines, a field of the wrong kind, a language that does
///          not exist. The check boxes cannot be faulty: 1 is set, whatever else stands there is not.
std::optional<Settings> ParseSettingsText(std::string_view text);

/// The settings in a file; nothing when it is missing, unreadable or faulty.
std::optional<Settings> ReadSettingsFile(const std::string& path);

/// Writes the file so that a crash leaves the old or the new one whole (platform/WholeFile.h).
/// returns  false when that failed; the old file is then untouched
bool WriteSettingsFile(const std::string& path, const Settings& settings);

/// Deletes the file; a missing file is not an error.
void DeleteSettingsFile(const std::string& path);

}  // namespace calvoro
