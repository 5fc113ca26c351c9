#pragma once

// Lines of a file, pipe or terminal, read in large blocks in constant memory. A line ends with LF or CR LF,
// the last one also with the end of the input. A byte order mark before the first line is skipped.

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

    /// What ends the line that Next or Join gave: LF, CR LF, or less at the end of the input.
    std::string_view EndOf(std::string_view line) const {
        const char* const end = line.data() + line.size();
        return {end, static_cast<std::size_t>(begin_ - end)};
    }

    /// Makes the line that Next or Join gave longer by its end and the line behind it.
    /// line     the one that was given; stays valid until the next call
    /// returns  false when nothing follows, or reading failed; the line stays valid
    bool Join(std::string_view& line);

    /// What has been read beyond the last line: lines, the last of which may lack its rest. Stays valid until
    /// Next.
    std::string_view Ahead() const { return {begin_, static_cast<std::size_t>(end_ - begin_)}; }

    /// Passes over whole lines of Ahead, so that Next gives the line behind them.
    /// size  in bytes, with their ends
    void Skip(std::size_t size) { begin_ += size; }

    /// Whether a byte order mark was skipped; known when Next has been called.
    bool HadByteOrderMark() const { return hadByteOrderMark_; }

    /// Whether the line that Next gave was cut at kMaxLineLength.
    bool IsCut() const { return cut_; }

    /// The system's error number when reading failed, else 0.
    int Error() const { return error_; }

    /// Bytes taken from the descriptor so far.
    std::uint64_t BytesRead() const { return bytesRead_; }

private:
    void SkipByteOrderMark();
    bool NextAfterRefill(std::string_view& line);
    bool TakeLine(std::size_t searched, std::string_view& line);
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
    bool atStart_ = true;
    bool hadByteOrderMark_ = false;
    bool atEnd_ = false;
    bool cut_ = false;
    int error_ = 0;
    std::uint64_t bytesRead_ = 0;
};

}  // namespace calvoro
