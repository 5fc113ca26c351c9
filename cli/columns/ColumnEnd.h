#pragma once

// Where a short column ends, found by comparing eight bytes at once with the delimiter and with LF, so that
// neither has to be searched for alone.

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace calvoro {

class ColumnEnd {
public:
    /// How many bytes Find looks at.
    static constexpr std::size_t kRoom = 16;

    /// delimiter  an ASCII character
    explicit ColumnEnd(char delimiter) : delimiters_(Eight(delimiter)) {}

    /// text     kRoom bytes
    /// returns  the first of them that is the delimiter or LF; null when none is
    const char* Find(const char* text) const {
        std::uint64_t hits = Hits(text);
        if (hits == 0) {
            text += sizeof hits;
            hits = Hits(text);
            if (hits == 0) return nullptr;
        }
        return text + FirstByte(hits);
    }

private:
    static constexpr std::uint64_t Eight(char character) {
        return std::uint64_t{0x0101010101010101} * static_cast<unsigned char>(character);
    }

    // The high bit of each of eight bytes that is the delimiter or LF. A character of seven bits that differs
    // from them gets it by adding 0x7F, and no sum leaves its byte.
    std::uint64_t Hits(const char* text) const {
        constexpr std::uint64_t kSevenBits = Eight('\x7F');
        std::uint64_t bytes = 0;
        std::memcpy(&bytes, text, sizeof bytes);
        const std::uint64_t characters = bytes & kSevenBits;
        const std::uint64_t noDelimiters = (characters ^ delimiters_) + kSevenBits;
        const std::uint64_t noLineFeeds = (characters ^ Eight('\n')) + kSevenBits;
        return ~((noDelimiters & noLineFeeds) | bytes | kSevenBits);
    }

    // The place in the text of the first byte that has a bit set.
    static std::size_t FirstByte(std::uint64_t bits) {
        constexpr bool kBig = std::endian::native == std::endian::big;
        return static_cast<std::size_t>(kBig ? std::countl_zero(bits) : std::countr_zero(bits)) / 8;
    }

    std::uint64_t delimiters_;
};

}  // namespace calvoro
