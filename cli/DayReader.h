#pragma once

// Typed dates into day numbers, as `convert` was asked to read them.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "calendar/CalendarNumber.h"
#include "quicktext/AutoReader.h"
#include "quicktext/StrictReader.h"

namespace calvoro {

/// How dates are read.
enum class Reading : std::uint8_t {
    Strict,   // nothing but what belongs to the notation
    Lenient,  // as the window's boxes read, dropping what they drop
    Auto,     // strictly, in the notation that a tag or the form tells
};

class DayReader {
public:
    /// from  the notation of the texts; plays no part for Auto
    DayReader(CalendarNumber from, Reading reading, const TextOptions& options);

    /// Reads a text. The notation of the answer is empty when the text itself should have told it.
    AutoResult Read(std::string_view text) const;

    static constexpr std::size_t kLineRoom = StrictReader::kLineRoom;

    /// Reads the first line of a block when it is a plain date in its usual form; see StrictReader::ReadLine.
    std::size_t ReadLine(const char* block, std::int32_t& jdn) const {
        return reading_ == Reading::Auto ? 0 : strict_.ReadLine(block, jdn);
    }

    /// Reads the plain date in its usual form that begins a block; see StrictReader::ReadUpTo.
    std::size_t ReadUpTo(const char* block, char end, std::int32_t& jdn) const {
        return reading_ == Reading::Strict ? strict_.ReadUpTo(block, end, jdn) : 0;
    }

    /// Reads a plain date in its usual form at the start of a text; see StrictReader::ReadPlain.
    std::size_t ReadPlain(const char* text, std::int32_t& jdn) const {
        return reading_ == Reading::Auto ? 0 : strict_.ReadPlain(text, jdn);
    }

private:
    AutoResult ReadLenient(std::string_view text) const;

    Reading reading_;
    TextOptions options_;
    StrictReader strict_;
    AutoReader auto_;
};

/// Whether a date in its usual form may hold a character: a digit, "W", or one that separates or groups.
bool MayStandInADate(char character, const TextOptions& options);

/// Why a text was refused, to stand in front of the text: "not valid in CE, unexpected 'O' at column 2".
std::string RefusalText(const AutoResult& answer, std::string_view text);

}  // namespace calvoro
