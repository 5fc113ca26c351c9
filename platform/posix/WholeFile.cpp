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
#include <string_view>
#include <system_error>
#include <utility>

#include "platform/WriteAll.h"
#include "platform/posix/LinkTarget.h"
#include "platform/posix/NoFileSizeSignal.h"
#include "platform/posix/Replaceable.h"

namespace calvoro {

namespace {

class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }

    int Number() const { return number_; }
    bool IsOpen() const { return number_ >= 0; }

private:
    int number_;
};

bool FlushToDisk(int file) {
    // Some file systems have nothing to flush and say so with EINVAL.
    return ::fsync(file) == 0 || errno == EINVAL;
}

/// Waits for the turn, which ends when the folder is closed, by the end of a killed program too. A turn takes
/// milliseconds: who has waited for long, because another program hangs, or has a file system without locks,
/// goes ahead.
void TakeTurn(int folder) {
    constexpr int kAttempts = 500;
    constexpr useconds_t kPause = 10'000;  // microseconds
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        if (::flock(folder, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK) return;
        ::usleep(kPause);
    }
}

bool IsSameFile(const struct stat& one, const struct stat& other) {
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

/// The new file under its temporary name; gone again unless it was given its real name.
class TemporaryFile {
public:
    explicit TemporaryFile(std::string path) : path_(std::move(path)), file_(Open()) {
        // What a killed program left is in the way; what is no ordinary file is somebody else's.
        struct stat found {};
        if (!file_.IsOpen() && errno == EEXIST && ::lstat(path_.c_str(), &found) == 0 &&
            S_ISREG(found.st_mode) && ::unlink(path_.c_str()) == 0) {
            file_ = Descriptor(Open());
        }
    }
    ~TemporaryFile() {
        if (IsOurs()) ::unlink(path_.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    bool IsOpen() const { return file_.IsOpen(); }

    bool TakeOver(const struct stat& old) {
        // Root may keep the owner of a user's file; where that is not allowed, being readable is enough.
        [[maybe_unused]] const int ignored = ::fchown(file_.Number(), old.st_uid, old.st_gid);
        return ::fchmod(file_.Number(), old.st_mode & 07777) == 0;
    }

    bool Write(std::string_view content) {
        const NoFileSizeSignal noSignal;
        return WriteAll(file_.Number(), content) == 0 && FlushToDisk(file_.Number());
    }

    /// Gives the file its real name, unless another program has put its own in this one's place.
    bool RenameTo(const std::string& target) {
        return IsOurs() && std::rename(path_.c_str(), target.c_str()) == 0;
    }

private:
    int Open() const {
        return ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR);
    }

    bool IsOurs() const {
        struct stat own {};
        struct stat named {};
        return file_.IsOpen() && ::fstat(file_.Number(), &own) == 0 && ::lstat(path_.c_str(), &named) == 0 &&
               IsSameFile(own, named);
    }

    std::string path_;
    Descriptor file_;
};

std::string FolderOf(const std::string& path) {
    const std::string folder = std::filesystem::path(path).parent_path().string();
    return folder.empty() ? "." : folder;
}

struct Target {
    bool mayBeReplaced = false;
    std::optional<struct stat> old;  // when there is a file
};

Target Examine(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return {errno == ENOENT, {}};
    return {WhyNotReplaceable(path, status) == 0, status};
}

}  // namespace

std::optional<std::string> ReadWholeFile(const std::string& path) {
    // Looked at before it is opened, since opening can set a device going; and O_NONBLOCK, since it may have
    // become a pipe in between, whose opening would wait for a writer.
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return {};
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
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

bool ReplaceWholeFile(const std::string& path, const NewContent& content) {
    if (path.empty()) return false;
    const std::string target = WithLinksResolved(path);
    const Descriptor folder(::open(FolderOf(target).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.IsOpen()) return false;
    TakeTurn(folder.Number());

    const Target found = Examine(target);
    if (!found.mayBeReplaced) return false;
    const std::string whole = content(ReadWholeFile(target));
    TemporaryFile written(target + ".new");
    if (!written.IsOpen() || (found.old && !written.TakeOver(*found.old)) || !written.Write(whole) ||
        !written.RenameTo(target)) {
        return false;
    }
    FlushToDisk(folder.Number());  // makes the renaming last; the content is safe either way
    return true;
}

void DeleteWholeFile(const std::string& path) {
    const Target found = Examine(path);
    if (found.mayBeReplaced && found.old) ::unlink(path.c_str());
}

}  // namespace calvoro
