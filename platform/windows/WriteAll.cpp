#include "platform/WriteAll.h"

#include <io.h>
#include <windows.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>

namespace calvoro {
namespace {

int ErrorNumberOf(DWORD error) {
    switch (error) {
        case ERROR_ACCESS_DENIED:  // of a file that was opened for reading
        case ERROR_INVALID_HANDLE: return EBADF;
        case ERROR_BROKEN_PIPE:
        case ERROR_NO_DATA:
        case ERROR_PIPE_NOT_CONNECTED: return EPIPE;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL: return ENOSPC;
        default: return EIO;
    }
}

}  // namespace

// Not by the C library, which takes a pipe whose reader went away in the middle of a block for an argument
// that is not valid.
int WriteAll(int descriptor, std::string_view bytes) {
    constexpr std::size_t kMostAtOnce = std::size_t{1024} * 1024 * 1024;
    const std::intptr_t handle = ::_get_osfhandle(descriptor);
    if (handle < 0) return EBADF;
    while (!bytes.empty()) {
        const auto most = static_cast<DWORD>(std::min(bytes.size(), kMostAtOnce));
        DWORD written = 0;
        if (::WriteFile(reinterpret_cast<HANDLE>(handle), bytes.data(), most, &written, nullptr) == 0) {
            return ErrorNumberOf(::GetLastError());
        }
        if (written == 0) return EIO;
        bytes.remove_prefix(written);
    }
    return 0;
}

}  // namespace calvoro
