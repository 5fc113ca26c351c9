#pragma once

// The settings file: fifteen comma-separated lines, without Qt. Whatever was saved comes back, quotes and
// line breaks included; a crash while saving leaves the file as it was.

#include <optional>
#include <string>
#include <string_view>

#include "mainwindow/Settings.h"

namespace calvoro {

inline constexpr std::string_view kSettingsFileName = "calvoro.usr";

/// base + "/" + folder + "/" + kSettingsFileName. The folder is created when it is missing (one level).
std::string SettingsFilePath(std::string_view baseFolder, std::string_view folderName);

/// The fifteen lines.
/// settings  the four texts are written only when saveOutput is set
std::string SettingsText(const Settings& settings);

/// Reads the fifteen lines. Unknown values fall back to the first option of their group.
/// returns  nothing when the text is faulty: too few lines, or a field of the wrong kind
std::optional<Settings> ParseSettingsText(std::string_view text);

/// The settings in a file; nothing when it is missing, unreadable or faulty.
std::optional<Settings> ReadSettingsFile(const std::string& path);

/// Writes the file through a temporary one beside it that is renamed when it is complete.
/// returns  false when that failed; the old file is then untouched
bool WriteSettingsFile(const std::string& path, const Settings& settings);

/// Deletes the file; a missing file is not an error.
void DeleteSettingsFile(const std::string& path);

}  // namespace calvoro
