#pragma once

#include <string>

namespace calvoro {

/// Where a path leads, also when the file at the end of its links is still to be made.
std::string WithLinksResolved(const std::string& path);

}  // namespace calvoro
