#include "cli/arithmetic/SignedNumber.h"

#include <cstddef>
#include <string>

#include "datetext/Blanks.h"
#include "datetext/DayCountText.h"
#include "datetext/Thousands.h"

namespace calvoro {
namespace {

constexpr std::string_view kMinus = "\xE2\x88\x92";  // U+2212

constexpr std::ptrdiff_t kShortLength = 9;  // digits that 32 bits always hold

// A short number, as most numbers are.
bool ReadShortNumber(std::string_view digits, bool isNegative, std::int32_t& number) {
    if (digits.empty() || digits.size() > kShortLength) return false;
    std::int32_t value = 0;
    for (const char digit : digits) {
        if (digit < '0' || digit > '9') return false;
        value = 10 * value + (digit - '0');
    }
    number = isNegative ? -value : value;
    return true;
}

}  // namespace

ParseStatus ReadSignedNumber(std::string_view text, std::int32_t& number) {
    text = TrimBlanks(text);
    bool isNegative = false;
    if (text.starts_with(kMinus)) {
        isNegative = true;
        text.remove_prefix(kMinus.size());
    } else if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        isNegative = text.front() == '-';
        text.remove_prefix(1);
    }
    if (ReadShortNumber(text, isNegative, number)) return ParseStatus::Valid;
    std::string digits(text);
    if (!DropWellGroupedSeparators(digits, ',')) DropWellGroupedSeparators(digits, '.');
    if (!IsDigits(digits, false, false) || digits.front() == ' ' || digits.back() == ' ') {
        return ParseStatus::NotValid;
    }
    return ParseDayCount((isNegative ? "-" : "") + digits, number);
}

std::size_t ReadPlainNumber(const char* text, char end, std::int32_t& number) {
    const bool isNegative = *text == '-';
    const char* at = text + (isNegative ? 1 : 0);
    const char* const digits = at;
    std::int32_t value = 0;
    for (; at - digits < kShortLength && *at >= '0' && *at <= '9'; ++at) value = 10 * value + (*at - '0');
    if (at == digits || *at != end) return 0;
    number = isNegative ? -value : value;
    return static_cast<std::size_t>(at - text);
}

}  // namespace calvoro
