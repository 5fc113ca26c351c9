#include "cli/OutputStream.h"

#include <unistd.h>

#include <cerrno>

namespace calvoro {

// The block is left uninitialised: pages that are never written are never touched.
OutputStream::OutputStream(int descriptor) : descriptor_(descriptor), block_(new char[kBlockSize]) {}

void OutputStream::Flush() {
    Write({block_.get(), used_});
    used_ = 0;
}

void OutputStream::AppendLong(std::string_view text) {
    Flush();
    if (text.size() > kBlockSize) return Write(text);
    Append(text);
}

void OutputStream::Write(std::string_view text) {
    while (!text.empty() && error_ == 0) {
        const ssize_t written = write(descriptor_, text.data(), text.size());
        if (written >= 0) {
            text.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno != EINTR) {
            error_ = errno;
        }
    }
}

}  // namespace calvoro
