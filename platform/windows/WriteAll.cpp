#include "platform/WriteAll.h"

#include <io.h>
#include <windows.h>

#include <cerrno>
#include <cstdint>

#include "platform/windows/HandleOutput.h"

namespace calvoro {
namespace {

int StreamErrorNumber(DWORD error) {
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
    const std::intptr_t handle = ::_get_osfhandle(descriptor);
    if (handle < 0) return EBADF;
    const DWORD error = WriteToHandle(reinterpret_cast<HANDLE>(handle), bytes);
    return error == ERROR_SUCCESS ? 0 : StreamErrorNumber(error);
}

}  // namespace calvoro
