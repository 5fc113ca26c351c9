#pragma once

// Lines of a file, pipe or terminal, read in large blocks in constant memory. A line ends with LF or CR LF,
// the last one also with the end of the input.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "cli/OutputStream.h"

namespace calvoro {

class LineReader {
public:
    /// Lines longer than this many bytes are cut, so that memory stays bounded.
    static constexpr std::size_t kMaxLineLength = std::size_t{1024} * 1024;

    /// descriptor  open for reading; stays open when the reader ends
    /// answers     flushed before the reader waits for input, so that whoever sends one line at a time
    ///             sees its answer
    LineReader(int descriptor, OutputStream& answers);

    LineReader(const LineReader&) = delete;
    LineReader& operator=(const LineReader&) = delete;

    /// The next line, without its end; it stays valid until the next call.
    /// returns  false at the end of the input or when reading failed
    bool Next(std::string_view& line);

    /// Whether the line that Next gave was cut at kMaxLineLength.
    bool IsCut() const { return cut_; }

    /// The system's error number when reading failed, else 0.
    int Error() const { return error_; }

    /// Bytes taken from the descriptor so far.
    std::uint64_t BytesRead() const { return bytesRead_; }

private:
    bool NextAfterRefill(std::string_view& line);
    bool Refill();
    void SkipRestOfLine();
    std::size_t ReadBlock(char* to, std::size_t size);
    std::string_view TakeUpTo(const char* end);

    int descriptor_;
    OutputStream& answers_;
    std::unique_ptr<char[]> block_;
    std::size_t capacity_;
    char* begin_;  // first byte not yet given out
    char* end_;    // behind the last byte read
    bool atEnd_ = false;
    bool cut_ = false;
    int error_ = 0;
    std::uint64_t bytesRead_ = 0;
};

}  // namespace calvoro
