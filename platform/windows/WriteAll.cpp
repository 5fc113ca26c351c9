#include "platform/WriteAll.h"

#include <io.h>
#include <windows.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>

namespace calvoro {

// The C library counts bytes in an unsigned int.
constexpr std::size_t kMostAtOnce = std::size_t{1024} * 1024 * 1024;

int WriteAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto most = static_cast<unsigned>(std::min(bytes.size(), kMostAtOnce));
        const int written = ::_write(descriptor, bytes.data(), most);
        if (written == 0) return EIO;
        if (written < 0) {
            // A pipe whose reader went away is EINVAL to the C library.
            const int error = errno;
            const DWORD reason = ::GetLastError();
            const bool isAlone =
                reason == ERROR_NO_DATA || reason == ERROR_BROKEN_PIPE || reason == ERROR_PIPE_NOT_CONNECTED;
            return isAlone ? EPIPE : error;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return 0;
}

}  // namespace calvoro
