#pragma once

// A place in a text that moves on as the parts of a date are taken. What cannot be taken leaves it where it
// is, so that its place names the character in the way.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "datetext/Digits.h"
#include "quicktext/StrictResult.h"

namespace calvoro {

/// U+2212, the minus sign of typographers.
inline constexpr std::string_view kMinusSign = "\u2212";

class TextCursor {
public:
    explicit TextCursor(std::string_view text) : text_(text) {}

    bool AtEnd() const { return at_ == text_.size(); }
    std::size_t Place() const { return at_; }
    std::string_view Rest() const { return text_.substr(at_); }
    bool IsAt(char character) const { return at_ < text_.size() && text_[at_] == character; }
    bool IsAtDigit() const { return at_ < text_.size() && IsDigit(text_[at_]); }
    void MoveTo(std::size_t place) { at_ = place; }

    bool Take(char character) {
        if (!IsAt(character)) return false;
        ++at_;
        return true;
    }

    bool Take(std::string_view word) {
        if (!Rest().starts_with(word)) return false;
        at_ += word.size();
        return true;
    }

    /// Takes blanks; returns whether there were any.
    bool TakeBlanks() {
        const std::size_t begin = at_;
        while (Take(' ')) {
        }
        return at_ > begin;
    }

    /// Takes "-" or U+2212.
    bool TakeMinus() { return Take('-') || Take(kMinusSign); }

    /// Takes all the digits that stand here.
    /// value    what they count, saturated as ReadDigits says
    /// returns  how many there were
    std::size_t TakeDigits(std::int32_t& value) {
        const std::size_t begin = at_;
        value = ReadDigits(text_, at_);
        return at_ - begin;
    }

    /// The refusal of what stands here.
    StrictResult Fail() const { return Refused(AtEnd() ? ReadFault::EndsEarly : ReadFault::Unexpected, at_); }

private:
    std::string_view text_;
    std::size_t at_ = 0;
};

}  // namespace calvoro
