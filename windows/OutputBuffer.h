#pragma once

// The rule that guards the enlarged output window against unbounded text: when the text has passed a limit,
// its end is replaced, once, by a notice, and further output is dropped until the text is empty again. What
// the text box holds stays with the text box: only its length comes in.
//
// Lengths are in characters as the text box counts them, UTF-16 code units, with CR LF as two.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace calvoro {

/// Characters of a UTF-8 text, as the text box counts them.
std::size_t LengthInTextBox(std::string_view text);

/// What one call of Output does to the text.
struct OutputStep {
    enum class Kind {
        Append,   // put `text` at the end
        Replace,  // cut to the first `keep` characters, then put `text` at the end
        Drop,     // do nothing
    };

    Kind kind = Kind::Drop;
    std::string text;  // UTF-8 with CR LF
    int keep = 0;
    int caret = 0;  // after Replace: where the caret goes, or the end if that comes first
};

class OutputBuffer {
public:
    int BufferLimit = 61440;
    std::string BufferFullText = "BUFFER FULL";
    std::string BufferFullNote;  // written after the notice

    /// Decides on a piece of output and `lineBreaks` line breaks after it.
    /// length      of the text as it stands now; 0 begins afresh
    /// lineBreaks  none when below 0
    OutputStep Output(int length, std::string_view text, std::int16_t lineBreaks);

    bool Overflowed() const { return overflowed_; }

private:
    bool overflowed_ = false;
    bool bufferFullShown_ = false;
};

/// The texts `first` to `last` as lines; cut, with the notice, before the line with which they would pass
/// the buffer's limit.
/// first, last  indexes into texts; nothing when last is below first
/// group        an empty line wherever the folder, up to the last "\", changes
std::string ArrayText(const OutputBuffer& buffer, const std::vector<std::string>& texts, std::size_t first,
                      std::size_t last, bool group);

}  // namespace calvoro
