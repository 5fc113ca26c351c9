#include "cli/scan/BlockReader.h"

#include <algorithm>
#include <cstring>

#include "platform/Streams.h"

namespace calvoro {
namespace {

constexpr std::size_t kCapacity = std::size_t{64} * 1024;
static_assert(kCapacity > 2 * BlockReader::kMostKept);

}  // namespace

BlockReader::BlockReader(int descriptor, OutputStream& answers)
    : descriptor_(descriptor), answers_(answers), block_(new char[kCapacity]) {}

bool BlockReader::ReadOn(std::size_t begin, std::size_t before) {
    const std::size_t kept = begin - std::min(begin, before);
    std::memmove(block_.get(), block_.get() + kept, size_ - kept);
    size_ -= kept;
    begin_ = begin - kept;
    if (WouldWait(descriptor_)) answers_.Flush();
    const std::size_t got = ReadSome(descriptor_, block_.get() + size_, kCapacity - size_, error_);
    size_ += got;
    bytesRead_ += got;
    return got > 0;
}

}  // namespace calvoro
