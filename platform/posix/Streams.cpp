#include "platform/Streams.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

namespace calvoro {

static_assert(kStandardInput == STDIN_FILENO);
static_assert(kStandardOutput == STDOUT_FILENO);
static_assert(kStandardError == STDERR_FILENO);

std::vector<std::string> PrepareStreams(int argc, const char* const* argv) {
    std::signal(SIGPIPE, SIG_IGN);
    return argc > 0 ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>();
}

int OpenForReading(const std::string& path, int& error) {
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) error = errno;
    return descriptor;
}

void CloseDescriptor(int descriptor) {
    ::close(descriptor);
}

std::size_t ReadSome(int descriptor, char* to, std::size_t size, int& error) {
    for (;;) {
        const ssize_t got = ::read(descriptor, to, size);
        if (got >= 0) return static_cast<std::size_t>(got);
        if (errno == EINTR) continue;
        error = errno;
        return 0;
    }
}

bool WouldWait(int descriptor) {
    pollfd question{descriptor, POLLIN, 0};
    return ::poll(&question, 1, 0) == 0;
}

bool IsTerminal(int descriptor) {
    return ::isatty(descriptor) != 0;
}

std::uint64_t SizeOfFile(int descriptor) {
    struct stat status {};
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) return 0;
    return static_cast<std::uint64_t>(status.st_size);
}

}  // namespace calvoro
