#pragma once

#include <string_view>

namespace calvoro {

/// Writes every byte, however often the system takes only a part or a signal comes between.
/// descriptor  open for writing
/// returns     0, or the system's error number (errno) of the write that failed
int WriteAll(int descriptor, std::string_view bytes);

}  // namespace calvoro
