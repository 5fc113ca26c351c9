#include "windows/OutputBuffer.h"

#include <algorithm>
#include <cassert>

namespace calvoro {
namespace {

constexpr std::string_view kLineBreak = "\r\n";
constexpr int kCutForNotice = 512;

std::string_view FolderOf(std::string_view path) {
    const std::size_t separator = path.rfind('\\');
    return separator == std::string_view::npos ? std::string_view() : path.substr(0, separator + 1);
}

}  // namespace

// One for every character, two for those of four bytes.
std::size_t LengthInTextBox(std::string_view text) {
    std::size_t length = 0;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if ((byte & 0xC0U) != 0x80U) ++length;
        if (byte >= 0xF0U) ++length;
    }
    return length;
}

OutputStep OutputBuffer::Output(int length, std::string_view text, std::int16_t lineBreaks) {
    // Deliberate: the length before the piece is tested, so the last piece accepted may pass the limit.
    if (length == 0) {
        overflowed_ = false;
        bufferFullShown_ = false;
    } else if (!overflowed_) {
        overflowed_ = length > BufferLimit;
    }

    OutputStep step;
    if (!overflowed_) {
        step.kind = OutputStep::Kind::Append;
        step.text = text;
        for (int i = 0; i < lineBreaks; ++i) step.text += kLineBreak;
    } else if (!bufferFullShown_) {
        step.kind = OutputStep::Kind::Replace;
        step.text = " ...\r\n\r\n" + BufferFullText + "  " + BufferFullNote + "\r\n";
        step.keep = std::max(0, length - kCutForNotice);
        step.caret = length;
        bufferFullShown_ = true;
    }
    return step;
}

std::string ArrayText(const OutputBuffer& buffer, const std::vector<std::string>& texts, std::size_t first,
                      std::size_t last, bool group) {
    assert(last < first || last < texts.size());
    std::string lines;
    std::size_t length = 0;
    const auto append = [&](std::string_view piece) {
        lines += piece;
        length += LengthInTextBox(piece);
    };
    for (std::size_t i = first; i <= last; ++i) {
        const std::string& text = texts[i];
        const std::size_t needed = length + kLineBreak.size() + LengthInTextBox(text);
        if (needed > static_cast<std::size_t>(buffer.BufferLimit)) {
            append(kLineBreak);
            append(buffer.BufferFullText);
            break;
        }
        if (i > first) {
            if (group && FolderOf(text) != FolderOf(texts[i - 1])) append(kLineBreak);
            append(kLineBreak);
        }
        append(text);
    }
    return lines;
}

}  // namespace calvoro
