#pragma once

#include <string>

namespace calvoro {

/// Makes a folder that nobody but the user can look into; one that is there already stays as it is.
/// path     UTF-8; the folder above it exists
/// returns  whether there is a folder now
bool MakePrivateFolder(const std::string& path);

/// The same with all folders above it that are missing.
bool MakePrivateFolders(const std::string& path);

}  // namespace calvoro
