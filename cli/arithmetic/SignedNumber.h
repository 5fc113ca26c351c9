#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "datetext/ParseStatus.h"

namespace calvoro {

/// Reads a number of days or months strictly: a sign or none ("+", "-" or U+2212), digits, all of them
/// grouped by threes with "," or "." or none, and blanks around it. number  set when the text is valid;
/// magnitude below 2,100,000,000
ParseStatus ReadSignedNumber(std::string_view text, std::int32_t& number);

/// How many bytes ReadPlainNumber may look at.
inline constexpr std::size_t kPlainNumberRoom = 12;

/// Reads the plain number that begins a text and is followed by `end`: "-" or no sign, and up to nine digits.
/// text     kPlainNumberRoom bytes
/// number   set when there is one, to what ReadSignedNumber finds in it
/// returns  the length of the number; 0 for everything else, which ReadSignedNumber can judge
std::size_t ReadPlainNumber(const char* text, char end, std::int32_t& number);

}  // namespace calvoro
