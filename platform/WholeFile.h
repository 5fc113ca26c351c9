#pragma once

// Reading and replacing small files as a whole. What the files hold is their owners' affair.

#include <functional>
#include <optional>
#include <string>

namespace calvoro {

/// The bytes of an ordinary file.
/// path     UTF-8
/// returns  nothing when it is missing, cannot be read or is no ordinary file (a pipe would never end)
std::optional<std::string> ReadWholeFile(const std::string& path);

/// Makes the new content of a file from the present one, or from nothing when there is none to be read.
using NewContent = std::function<std::string(const std::optional<std::string>& current)>;

/// Replaces a file, or makes it, so that whoever reads it at any moment, after a crash or a power cut too,
/// finds the old content or the new one and never a part: the content is written to PATH.new, flushed to
/// the disk and renamed. Programs that do so to files of one folder take turns, and what `content` is given
/// is what the file holds during the turn. A symbolic link is followed. A new file is for the user alone; an
/// old one keeps its permissions and, as far as the system lets it, its owner. On Windows both get those that
/// their folder hands down.
///
/// Only an ordinary file that may be written is replaced. Anything else of its name or of PATH.new, such as
/// a folder, a device or a pipe, is left alone and never waited for.
/// path     UTF-8; its folder exists
/// returns  false when any step failed; the old file is then untouched and nothing of PATH.new is left
bool ReplaceWholeFile(const std::string& path, const NewContent& content);

/// Deletes a file that ReplaceWholeFile would replace, or the link to it; leaves everything else alone.
void DeleteWholeFile(const std::string& path);

}  // namespace calvoro
