#include "platform/ReplacementFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "platform/WriteAll.h"
#include "platform/posix/LinkTarget.h"
#include "platform/posix/NoFileSizeSignal.h"
#include "platform/posix/Replaceable.h"

namespace calvoro {
namespace {

// What the system gives to a file that a program makes.
mode_t UsualPermissions() {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

class PosixReplacementFile final : public ReplacementFile {
public:
    explicit PosixReplacementFile(const std::string& path) : target_(WithLinksResolved(path)) {
        struct stat old {};
        mode_t permissions = UsualPermissions();
        if (::stat(target_.c_str(), &old) == 0) {
            error_ = WhyNotReplaceable(target_, old);
            permissions = old.st_mode & 07777;
        } else if (errno != ENOENT) {
            error_ = errno;
        }
        if (error_ != 0) return;
        // A name that nothing has: what stands beside the file may be the user's.
        written_ = target_ + ".XXXXXX";
        descriptor_ = ::mkostemp(written_.data(), O_CLOEXEC);
        if (descriptor_ < 0 || ::fchmod(descriptor_, permissions) != 0) GiveUp(errno);
    }

    ~PosixReplacementFile() override { GiveUp(error_); }

    void Write(std::string_view bytes) override {
        if (error_ != 0) return;
        const NoFileSizeSignal noSignal;
        const int error = WriteAll(descriptor_, bytes);
        if (error != 0) GiveUp(error);
    }

    void Commit() override {
        if (error_ != 0) return;
        // Some file systems have nothing to flush and say so with EINVAL.
        const bool isFlushed = ::fsync(descriptor_) == 0 || errno == EINVAL;
        if (!isFlushed || std::rename(written_.c_str(), target_.c_str()) != 0) {
            GiveUp(errno);
            return;
        }
        ::close(std::exchange(descriptor_, -1));
    }

    int Error() const override { return error_; }

private:
    // Leaves nothing of what was written, which is in the way of a full disk.
    void GiveUp(int error) {
        error_ = error;
        if (descriptor_ < 0) return;
        ::unlink(written_.c_str());
        ::close(std::exchange(descriptor_, -1));
    }

    std::string target_;
    std::string written_;
    int descriptor_ = -1;  // while it is being written
    int error_ = 0;
};

}  // namespace

std::unique_ptr<ReplacementFile> BeginReplacement(const std::string& path) {
    return std::make_unique<PosixReplacementFile>(path);
}

}  // namespace calvoro
