#pragma once

// A strict reader of one notation, made ready for many texts.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "calendar/CalendarNumber.h"
#include "datetext/TextOptions.h"
#include "quicktext/StrictResult.h"
#include "quicktext/UsualForm.h"

namespace calvoro {

class StrictReader {
public:
    /// notation  one of the seven that are offered
    /// options   as for ReadStrictText
    StrictReader(CalendarNumber notation, const TextOptions& options);

    CalendarNumber Notation() const { return notation_; }
    std::string_view Tag() const { return tag_; }

    /// Reads a text; the answer is that of ReadStrictText.
    StrictResult Read(std::string_view text) const {
        std::int32_t jdn = 0;
        return ReadUsual(text, jdn) ? ValidDay(jdn) : ReadAny(text);
    }

    /// Reads a date of the usual form at the start of a text, whatever follows it.
    /// text     kLineRoom bytes
    /// jdn      the day number
    /// returns  the length of the date; 0 for every other text, which Read can judge
    std::size_t ReadPlain(const char* text, std::int32_t& jdn) const {
        return usual_.Read(text, jdn) ? usual_.Length() : 0;
    }

    /// How many bytes ReadPlain and ReadLine may look at.
    static constexpr std::size_t kLineRoom = 32;

    /// Reads the first line of a block, when it is nothing but a date of the usual form, with its tag or
    /// without, and ends with LF or CR LF.
    /// block    kLineRoom bytes
    /// jdn      the day number
    /// returns  the length of the line with its end; 0 for every other line, which Read can judge
    std::size_t ReadLine(const char* block, std::int32_t& jdn) const {
        if (!usual_.Read(block, jdn)) return 0;
        const char* behind = block + usual_.Length();
        if (behind[0] == '\n') return usual_.Length() + 1;
        if (behind[0] == '\r' && behind[1] == '\n') return usual_.Length() + 2;
        return LengthBehindTag(behind);
    }

    /// Reads the date of the usual form, without its tag, that begins a block and is followed by `end`.
    /// block    kLineRoom bytes
    /// returns  the length of the date; 0 for everything else, which Read can judge
    std::size_t ReadUpTo(const char* block, char end, std::int32_t& jdn) const {
        return usual_.Read(block, jdn) && block[usual_.Length()] == end ? usual_.Length() : 0;
    }

private:
    bool ReadUsual(std::string_view text, std::int32_t& jdn) const;
    StrictResult ReadAny(std::string_view text) const;
    std::size_t LengthBehindTag(const char* behind) const;

    CalendarNumber notation_;
    TextOptions options_;
    UsualForm usual_;
    std::string_view tag_;
};

}  // namespace calvoro
