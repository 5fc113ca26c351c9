#include "platform/WholeFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <system_error>

namespace calvoro {

namespace {

class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() { Close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int Number() const { return number_; }
    bool IsOpen() const { return number_ >= 0; }

    /// A full disk may be reported only here.
    bool Close() {
        const int number = number_;
        number_ = -1;
        return number < 0 || ::close(number) == 0;
    }

private:
    int number_;
};

bool WriteAll(int file, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written = ::write(file, content.data(), content.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

bool FlushToDisk(int file) {
    // Some file systems have nothing to flush and say so with EINVAL.
    return ::fsync(file) == 0 || errno == EINVAL;
}

/// Two instances that a session's end closes at the same moment take turns: both use the same temporary
/// name, so that a killed one leaves no litter that the next does not clean up. A turn takes milliseconds;
/// who waits for longer, or has a file system without locks, goes ahead.
void TakeTurn(int folder) {
    constexpr int kAttempts = 200;
    constexpr useconds_t kPause = 10'000;  // microseconds
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        if (::flock(folder, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK) return;
        ::usleep(kPause);
    }
}

bool WriteNewFile(const std::string& path, std::string_view content, const struct stat* old) {
    Descriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0666));
    if (!file.IsOpen()) return false;
    if (old != nullptr && ::fchmod(file.Number(), old->st_mode & 07777) != 0) return false;
    return WriteAll(file.Number(), content) && FlushToDisk(file.Number()) && file.Close();
}

std::string WithLinksResolved(const std::string& path) {
    std::error_code failed;
    const std::filesystem::path resolved = std::filesystem::canonical(path, failed);
    return failed ? path : resolved.string();
}

std::string FolderOf(const std::string& path) {
    const std::string folder = std::filesystem::path(path).parent_path().string();
    return folder.empty() ? "." : folder;
}

}  // namespace

std::optional<std::string> ReadWholeFile(const std::string& path) {
    // O_NONBLOCK keeps the opening of a pipe without a writer from waiting for one.
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat status {};
    if (!file.IsOpen() || ::fstat(file.Number(), &status) != 0 || !S_ISREG(status.st_mode)) return {};

    std::string content;
    std::array<char, 65536> block{};
    for (;;) {
        const ssize_t got = ::read(file.Number(), block.data(), block.size());
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) return {};
        if (got == 0) return content;
        content.append(block.data(), static_cast<std::size_t>(got));
    }
}

bool ReplaceWholeFile(const std::string& path, std::string_view content) {
    const std::string target = WithLinksResolved(path);
    const Descriptor folder(::open(FolderOf(target).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.IsOpen()) return false;
    TakeTurn(folder.Number());

    struct stat old {};
    const bool replaces = ::stat(target.c_str(), &old) == 0;
    const std::string written = target + ".new";
    if (!WriteNewFile(written, content, replaces ? &old : nullptr) ||
        std::rename(written.c_str(), target.c_str()) != 0) {
        ::unlink(written.c_str());
        return false;
    }
    FlushToDisk(folder.Number());  // makes the renaming last; the content is safe either way
    return true;
}

}  // namespace calvoro
