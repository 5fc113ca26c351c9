#pragma once

// The usual form of a notation's dates: the one that a day of our time is written in, with four digits of the
// year and all digits of the rest, such as dddd-dd-dd or dddd-Wdd-d. Whether a text has it is found by
// comparing sixteen bytes at once, and where its digits stand is known beforehand, so that most lines of most
// files cost a few instructions. Everything else is left to ReadStrictText, which takes whatever is taken
// here for the same day.

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "calendar/CalendarNumber.h"
#include "datetext/TextOptions.h"

namespace calvoro {

class UsualForm {
public:
    /// How many bytes Read looks at, whatever the length of the form.
    static constexpr std::size_t kRoom = 16;

    UsualForm(CalendarNumber notation, const TextOptions& options);

    /// How many bytes a date of this form has.
    std::size_t Length() const { return length_; }

    /// Reads a date at the start of a text, whatever follows it.
    /// text     kRoom bytes
    /// jdn      its day number
    /// returns  false for every other text, for dates that do not exist, and for some that only some years
    /// have
    bool Read(const char* text, std::int32_t& jdn) const { return Fits(text) && read_(*this, text, jdn); }

private:
    // Two words of eight bytes, each byte for one of the text.
    using Words = std::array<std::uint64_t, 2>;

    bool Fits(const char* text) const;

    // One function for each notation, chosen once.
    using Function = bool (*)(const UsualForm& form, const char* text, std::int32_t& jdn);
    static Function FunctionOf(CalendarNumber notation);
    static bool ReadEuroDate(const UsualForm& form, const char* text, std::int32_t& jdn);
    static bool ReadIsoDate(const UsualForm& form, const char* text, std::int32_t& jdn);
    static bool ReadOrdinalDate(const UsualForm& form, const char* text, std::int32_t& jdn);
    static bool ReadLpmDate(const UsualForm& form, const char* text, std::int32_t& jdn);
    static bool ReadLpwDate(const UsualForm& form, const char* text, std::int32_t& jdn);
    static bool ReadDayNumber(const UsualForm& form, const char* text, std::int32_t& jdn);

    void SetWords(const char* sample);
    void SetOffsets(const TextOptions& options);

    CalendarNumber notation_;
    Function read_;
    std::size_t length_ = 0;
    Words form_{};   // "0" for a digit, the character itself for any other, 0 behind the form
    Words care_{};   // all bits set but behind the form
    Words carry_{};  // what lifts the difference from the form into the upper half of its byte
    // Offsets of the numbers; of the groups of a day number, with one, three and three digits.
    std::size_t first_ = 0;
    std::size_t second_ = 0;
    std::size_t third_ = 0;
};

inline bool UsualForm::Fits(const char* text) const {
    // What differs from the form is [0, 9] for a digit, and adding 6 carries anything more into the upper
    // half of its byte; for any other character it is 0, and adding 15 does the same. A carry out of a byte
    // comes only from one whose upper half was set already.
    constexpr std::uint64_t kUpperHalves = 0xF0F0F0F0F0F0F0F0;
    std::uint64_t misfits = 0;
    for (std::size_t word = 0; word < form_.size(); ++word) {
        std::uint64_t bytes = 0;
        std::memcpy(&bytes, text + 8 * word, sizeof bytes);
        const std::uint64_t difference = (bytes & care_[word]) ^ form_[word];
        misfits |= difference | (difference + carry_[word]);
    }
    return (misfits & kUpperHalves) == 0;
}

}  // namespace calvoro
