#pragma once

// A text read in blocks, to the byte and in constant memory, for whoever needs to see a little of what comes
// before and behind.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "cli/OutputStream.h"

namespace calvoro {

class BlockReader {
public:
    /// descriptor  open for reading; stays open when the reader ends
    /// answers     flushed before the reader waits for input
    BlockReader(int descriptor, OutputStream& answers);

    /// What is at hand: some of what has been dealt with, and everything that has not.
    std::string_view Text() const { return {block_.get(), size_}; }

    /// Where in Text begins what has not been dealt with.
    std::size_t Begin() const { return begin_; }

    /// Reads on.
    /// begin    where in Text begins what has not been dealt with: less than kMostKept bytes
    /// before   how many of the bytes in front of it are needed still, at most kMostKept
    /// returns  false at the end of the input, or when reading failed
    bool ReadOn(std::size_t begin, std::size_t before);

    int Error() const { return error_; }
    std::uint64_t BytesRead() const { return bytesRead_; }

    static constexpr std::size_t kMostKept = 1024;

private:
    int descriptor_;
    OutputStream& answers_;
    std::unique_ptr<char[]> block_;
    std::size_t size_ = 0;
    std::size_t begin_ = 0;
    int error_ = 0;
    std::uint64_t bytesRead_ = 0;
};

}  // namespace calvoro
