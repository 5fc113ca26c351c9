#pragma once

// Results on their way out: gathered in one large block, handed to the system when it is full or when
// somebody may be waiting for them. A failed write is remembered; what is appended after it is dropped, so
// that a loop needs to look only once a line.

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace calvoro {

class OutputStream {
public:
    /// descriptor  open for writing; stays open when the stream ends
    explicit OutputStream(int descriptor);

    OutputStream(const OutputStream&) = delete;
    OutputStream& operator=(const OutputStream&) = delete;

    /// Adds bytes of any number to the output.
    void Append(std::string_view text) {
        if (text.size() > kBlockSize - used_) return AppendLong(text);
        text.copy(block_.get() + used_, text.size());
        used_ += text.size();
    }
    void Append(char character) { Append(std::string_view(&character, 1)); }

    /// Space for at least `size` bytes, to be written in place and confirmed by Commit.
    /// size  at most kBlockSize
    char* Room(std::size_t size) {
        if (size > kBlockSize - used_) Flush();
        return block_.get() + used_;
    }
    void Commit(std::size_t size) { used_ += size; }

    /// How many bytes may be written at Room before anything has to be handed to the system.
    std::size_t Free() const { return kBlockSize - used_; }

    /// Adds what a function writes, in place when the block has the room.
    /// room   most bytes that it writes
    /// write  is given where to write; returns behind the last character written
    template <typename Write>
    void AppendWith(std::size_t room, const Write& write) {
        if (room <= kBlockSize) {
            char* const to = Room(room);
            return Commit(static_cast<std::size_t>(write(to) - to));
        }
        std::string text(room, '\0');
        text.resize(static_cast<std::size_t>(write(text.data()) - text.data()));
        Append(text);
    }

    /// Hands everything gathered to the system.
    void Flush();

    /// Whether writing failed, for whatever reason; nothing more will get through.
    bool HasFailed() const { return error_ != 0; }

    /// The system's error number of the first failed write; 0 when none failed.
    int Error() const { return error_; }

    static constexpr std::size_t kBlockSize = std::size_t{128} * 1024;

private:
    void AppendLong(std::string_view text);
    void Write(std::string_view text);

    int descriptor_;
    int error_ = 0;
    std::size_t used_ = 0;
    std::unique_ptr<char[]> block_;
};

}  // namespace calvoro
