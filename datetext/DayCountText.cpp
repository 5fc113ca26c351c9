#include "datetext/DayCountText.h"

#include <string>

#include "datetext/Blanks.h"
#include "datetext/Digits.h"
#include "datetext/KeepCharacters.h"

namespace calvoro {

bool IsDigits(std::string_view text, bool signAllowed, bool commasAllowed) {
    text = TrimBlanks(text);
    if (signAllowed && !text.empty() && (text.front() == '+' || text.front() == '-')) text.remove_prefix(1);
    bool anyDigit = false;
    for (const char c : text) {
        if (IsDigit(c)) {
            anyDigit = true;
        } else if (c != ',' || !commasAllowed) {
            return false;
        }
    }
    return anyDigit;
}

ParseStatus ParseDayCount(std::string_view text, std::int32_t& number) {
    text = TrimBlanks(text);
    // Deliberate: commas may stand anywhere, grouping or not.
    if (!IsDigits(text, true, true)) return ParseStatus::NotValid;
    const bool negative = text.front() == '-';

    const std::string digits = KeepCharacters(text, IsDigit);

    // Deliberate: digits are counted, leading zeros included, and ten of them must begin below 21. So
    // 2,100,000,000 itself is out of range although a day number may reach it.
    constexpr std::size_t kMostDigits = 10;
    if (digits.size() > kMostDigits) return ParseStatus::OutOfRange;
    if (digits.size() == kMostDigits && digits.compare(0, 2, "21") >= 0) return ParseStatus::OutOfRange;

    std::size_t at = 0;
    const std::int32_t magnitude = ReadDigits(digits, at);
    number = negative ? -magnitude : magnitude;
    return ParseStatus::Valid;
}

}  // namespace calvoro
