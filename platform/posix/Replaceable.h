#pragma once

#include <sys/stat.h>

#include <string>

namespace calvoro {

/// Why the file at a path must not be replaced by a new one.
/// status   what stat() says of it
/// returns  an errno, 0 when nothing is against it: a device, a pipe or a folder is not replaced, nor a file
///          that the user must not write, though the folder would allow it
int WhyNotReplaceable(const std::string& path, const struct stat& status);

}  // namespace calvoro
