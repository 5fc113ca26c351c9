#pragma once

#include <string>

namespace calvoro {

/// Where a path leads through symbolic links. A path that leads nowhere, or not through links, stays as it
/// is.
std::wstring WithLinksResolved(const std::wstring& path);

}  // namespace calvoro
