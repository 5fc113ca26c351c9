#include "platform/WriteAll.h"

#include <unistd.h>

#include <cerrno>
#include <cstddef>

namespace calvoro {

int WriteAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return errno;
        if (written == 0) return EIO;  // nothing forbids it to the system, and it must not be an endless loop
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return 0;
}

}  // namespace calvoro
