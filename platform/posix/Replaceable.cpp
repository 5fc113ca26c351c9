#include "platform/posix/Replaceable.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace calvoro {

int WhyNotReplaceable(const std::string& path, const struct stat& status) {
    if (S_ISDIR(status.st_mode)) return EISDIR;
    if (!S_ISREG(status.st_mode)) return EINVAL;
    // For root every file can be written, so the file's own word counts too.
    constexpr mode_t kAnyWriter = S_IWUSR | S_IWGRP | S_IWOTH;
    if ((status.st_mode & kAnyWriter) == 0) return EACCES;
    return ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0 ? 0 : errno;
}

}  // namespace calvoro
