#include "mainwindow/settings/SettingsFile.h"

#include <filesystem>

#include "mainwindow/settings/OutputMerge.h"
#include "mainwindow/settings/SettingsText.h"
#include "platform/PrivateFolder.h"
#include "platform/WholeFile.h"

namespace calvoro {

namespace {

std::optional<Settings> Parsed(const std::optional<std::string>& content) {
    return content ? ParseSettingsText(*content) : std::nullopt;
}

/// What is saved over what the file holds now.
Settings Merged(const Settings& own, std::string_view startOutput, const std::optional<Settings>& file) {
    Settings merged = own;
    if (!own.saveOutput) merged.firstDate = merged.dateDiff = merged.secondDate = {};
    merged.output =
        MergedOutput(startOutput, file ? std::optional<std::string_view>(file->output) : std::nullopt,
                     own.saveOutput ? std::optional<std::string_view>(own.output) : std::nullopt);
    return merged;
}

}  // namespace

std::string SettingsFilePath(std::string_view baseFolder, std::string_view folderName) {
    if (baseFolder.empty()) return {};
    std::string path(baseFolder);
    path += '/';
    path += folderName;
    MakePrivateFolder(path);  // if that fails, so does the later opening, which is what counts
    path += '/';
    path += kSettingsFileName;
    return path;
}

std::optional<Settings> ReadSettingsFile(const std::string& path) {
    return Parsed(ReadWholeFile(path));
}

bool WriteSettingsFile(const std::string& path, const Settings& settings, std::string_view startOutput) {
    MakePrivateFolder(std::filesystem::path(path).parent_path().string());
    return ReplaceWholeFile(path, [&](const std::optional<std::string>& current) {
        return SettingsText(Merged(settings, startOutput, Parsed(current)));
    });
}

void DeleteSettingsFile(const std::string& path) {
    DeleteWholeFile(path);
}

}  // namespace calvoro
