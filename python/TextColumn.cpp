#include "python/TextColumn.h"

#include <algorithm>

#include "datetext/Utf8.h"

namespace calvoro {
namespace {

void AppendUtf8(char32_t character, std::string& to) {
    const auto lowest = [character](unsigned shift) {
        return static_cast<char>(0x80U | ((character >> shift) & 0x3FU));
    };
    if (character < 0x80) {
        to += static_cast<char>(character);
    } else if (character < 0x800) {
        to += {static_cast<char>(0xC0U | (character >> 6)), lowest(0)};
    } else if (character < 0x10000) {
        to += {static_cast<char>(0xE0U | (character >> 12)), lowest(6), lowest(0)};
    } else {
        to += {static_cast<char>(0xF0U | ((character >> 18) & 7U)), lowest(12), lowest(6), lowest(0)};
    }
}

}  // namespace

std::string_view NarrowText(const char32_t* characters, std::size_t width, std::string& buffer) {
    while (width > 0 && characters[width - 1] == 0) --width;
    buffer.resize(width);
    char32_t all = 0;
    for (std::size_t i = 0; i < width; ++i) {
        all |= characters[i];
        buffer[i] = static_cast<char>(characters[i]);
    }
    if (all < 0x80) return buffer;
    buffer.clear();
    for (std::size_t i = 0; i < width; ++i) AppendUtf8(characters[i], buffer);
    return buffer;
}

GrowingColumn::GrowingColumn(std::size_t texts) {
    constexpr std::size_t kUsualLength = 12;
    bytes_.resize(texts * kUsualLength);
    ends_.reserve(texts);
}

char* GrowingColumn::Reserve(std::size_t bytes) {
    if (bytes_.size() - used_ < bytes) bytes_.resize(bytes_.size() * 2 + bytes);
    return bytes_.data() + used_;
}

bool GrowingColumn::IsAscii() const {
    unsigned char all = 0;
    for (std::size_t i = 0; i < used_; ++i) all |= static_cast<unsigned char>(bytes_[i]);
    return all < 0x80;
}

std::size_t GrowingColumn::Width() const {
    if (IsAscii()) return longest_;
    std::size_t width = 1;
    for (std::size_t i = 0; i < Count(); ++i) width = std::max(width, CountCharacters(Text(i)));
    return width;
}

void GrowingColumn::CopyTo(char32_t* characters, std::size_t width) const {
    const bool isAscii = IsAscii();
    for (std::size_t i = 0; i < Count(); ++i, characters += width) {
        std::string_view text = Text(i);
        std::size_t at = 0;
        if (isAscii) {
            for (; at < text.size(); ++at) characters[at] = static_cast<unsigned char>(text[at]);
            text = {};
        }
        while (!text.empty()) {
            const std::size_t length = std::max<std::size_t>(Utf8CharacterLength(text), 1);
            characters[at++] = Utf8CharacterNumber(text);
            text.remove_prefix(length);
        }
        for (; at < width; ++at) characters[at] = U'\0';
    }
}

}  // namespace calvoro
