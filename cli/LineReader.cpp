#include "cli/LineReader.h"

#include <cstring>

#include "datetext/Utf8.h"
#include "platform/Streams.h"

namespace calvoro {
namespace {

constexpr std::size_t kFirstCapacity = std::size_t{128} * 1024;
static_assert(kFirstCapacity <= LineReader::kMaxLineLength);

char* FindLineFeed(char* begin, char* end) {
    return static_cast<char*>(std::memchr(begin, '\n', static_cast<std::size_t>(end - begin)));
}

}  // namespace

LineReader::LineReader(int descriptor, OutputStream& answers)
    : descriptor_(descriptor),
      answers_(answers),
      block_(new char[kFirstCapacity]),
      capacity_(kFirstCapacity),
      begin_(block_.get()),
      end_(block_.get()) {}

bool LineReader::Next(std::string_view& line) {
    char* const lineFeed = FindLineFeed(begin_, end_);
    if (lineFeed == nullptr) return NextAfterRefill(line);
    line = TakeUpTo(lineFeed);
    begin_ = lineFeed + 1;
    return true;
}

// Nothing has been read yet. What could be the beginning of a mark is not judged before the rest of it, or
// the end of the input, is there.
void LineReader::SkipByteOrderMark() {
    atStart_ = false;
    const auto read = [this] { return std::string_view(begin_, static_cast<std::size_t>(end_ - begin_)); };
    while (read().size() < kByteOrderMark.size() && kByteOrderMark.starts_with(read())) {
        if (!Refill()) return;
    }
    hadByteOrderMark_ = read().starts_with(kByteOrderMark);
    if (hadByteOrderMark_) begin_ += kByteOrderMark.size();
}

bool LineReader::NextAfterRefill(std::string_view& line) {
    if (atStart_) {
        SkipByteOrderMark();
        return Next(line);
    }
    return TakeLine(static_cast<std::size_t>(end_ - begin_), line);
}

bool LineReader::Join(std::string_view& line) {
    if (cut_) return false;
    const std::size_t searched = static_cast<std::size_t>(begin_ - line.data());
    if (begin_ == end_) {
        begin_ -= searched;
        const bool more = Refill();
        line = {begin_, line.size()};
        if (!more) {
            begin_ += searched;
            return false;
        }
    } else {
        begin_ -= searched;
    }
    return TakeLine(searched, line);
}

// Gives the line at begin_, whose first `searched` bytes do not end it.
bool LineReader::TakeLine(std::size_t searched, std::string_view& line) {
    for (;;) {
        char* const lineFeed = FindLineFeed(begin_ + searched, end_);
        if (lineFeed != nullptr) {
            line = TakeUpTo(lineFeed);
            begin_ = lineFeed + 1;
            return true;
        }
        searched = static_cast<std::size_t>(end_ - begin_);
        // The last byte may be the CR of the line's end.
        if (searched > kMaxLineLength + 1) {
            line = {begin_, kMaxLineLength};
            cut_ = true;
            SkipRestOfLine();
            return true;
        }
        if (!Refill()) {
            if (begin_ == end_ || error_ != 0) return false;
            line = TakeUpTo(end_);
            begin_ = end_;
            return true;
        }
    }
}

// Moves what is left to the front of the block, in a larger block when it fills this one, and reads on.
bool LineReader::Refill() {
    const std::size_t left = static_cast<std::size_t>(end_ - begin_);
    if (left == capacity_) {
        std::unique_ptr<char[]> larger(new char[2 * capacity_]);
        std::memcpy(larger.get(), begin_, left);
        block_ = std::move(larger);
        capacity_ *= 2;
    } else {
        std::memmove(block_.get(), begin_, left);
    }
    begin_ = block_.get();
    end_ = begin_ + left;
    const std::size_t got = ReadBlock(end_, capacity_ - left);
    end_ += got;
    return got > 0;
}

// The cut line stands at the front of the block, as Refill left it; the bytes behind it are free to be
// overwritten.
void LineReader::SkipRestOfLine() {
    char* const rest = begin_ + kMaxLineLength;
    char* lineFeed = FindLineFeed(rest, end_);
    while (lineFeed == nullptr) {
        end_ = rest + ReadBlock(rest, capacity_ - static_cast<std::size_t>(rest - block_.get()));
        if (end_ == rest) {
            begin_ = end_;
            return;
        }
        lineFeed = FindLineFeed(rest, end_);
    }
    begin_ = lineFeed + 1;
}

std::size_t LineReader::ReadBlock(char* to, std::size_t size) {
    if (atEnd_) return 0;
    if (WouldWait(descriptor_)) answers_.Flush();
    const std::size_t got = ReadSome(descriptor_, to, size, error_);
    bytesRead_ += got;
    atEnd_ = got == 0;
    return got;
}

std::string_view LineReader::TakeUpTo(const char* end) {
    std::size_t length = static_cast<std::size_t>(end - begin_);
    if (length > 0 && begin_[length - 1] == '\r') --length;
    cut_ = length > kMaxLineLength;
    return {begin_, cut_ ? kMaxLineLength : length};
}

}  // namespace calvoro
