#pragma once

// The settings file on the disk: where it lies, how it is read, and how several programs save in it without
// losing each other's results. A crash while saving leaves the file as it was.

#include <optional>
#include <string>
#include <string_view>

#include "mainwindow/settings/Settings.h"

namespace calvoro {

inline constexpr std::string_view kSettingsFileName = "calvoro.usr";

/// base + "/" + folder + "/" + kSettingsFileName. The folder is created when it is missing (one level), for
/// the user alone.
/// returns  an empty path, which can be neither read nor written, when there is no base folder
std::string SettingsFilePath(std::string_view baseFolder, std::string_view folderName);

/// The settings in a file; nothing when it is missing, unreadable or faulty.
std::optional<Settings> ReadSettingsFile(const std::string& path);

/// Saves in turn with other programs, keeping what they have added to the output since this one started
/// (OutputMerge.h); of options and boxes those given stay. The texts are saved only when saveOutput is set.
/// The folder is created again when it has vanished.
/// startOutput  the output that ReadSettingsFile gave when the program started; empty when it gave nothing
/// returns      false when the file could not be replaced (platform/WholeFile.h); it is then untouched
bool WriteSettingsFile(const std::string& path, const Settings& settings, std::string_view startOutput);

/// Deletes the file; a missing file is not an error.
void DeleteSettingsFile(const std::string& path);

}  // namespace calvoro
