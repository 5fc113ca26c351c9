#include "cli/OutputStream.h"

#include "platform/WriteAll.h"

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
    if (error_ == 0) error_ = WriteAll(descriptor_, text);
}

}  // namespace calvoro
