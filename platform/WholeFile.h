#pragma once

// Reading and replacing small files as a whole. What the files hold is their owners' affair.

#include <optional>
#include <string>
#include <string_view>

namespace calvoro {

/// The bytes of an ordinary file.
/// path     UTF-8
/// returns  nothing when it is missing, cannot be read or is no ordinary file (a pipe would never end)
std::optional<std::string> ReadWholeFile(const std::string& path);

/// Replaces a file, or makes it, so that whoever reads it at any moment, after a crash or a power cut too,
/// finds the old content or the new one and never a part: the content is written to PATH.new, flushed to
/// the disk and renamed. A symbolic link is followed; the file's permissions stay.
/// path     UTF-8; its folder exists
/// returns  false when any step failed; the old file is then untouched and PATH.new is gone
bool ReplaceWholeFile(const std::string& path, std::string_view content);

}  // namespace calvoro
