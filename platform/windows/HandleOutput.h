#pragma once

#include <windows.h>

#include <cstddef>
#include <string_view>

namespace calvoro {

/// Bytes that the system is asked to read or write in one call, whose count has 32 bits.
inline constexpr std::size_t kMostAtOnce = std::size_t{1024} * 1024 * 1024;

/// Writes all bytes to an open file.
/// returns  ERROR_SUCCESS, or why not all of them were written
DWORD WriteToHandle(HANDLE file, std::string_view bytes);

}  // namespace calvoro
