#include "datetext/DayNumberText.h"

#include <algorithm>

#include "calendar/DayNumber.h"
#include "datetext/Digits.h"
#include "datetext/Utf8.h"

namespace calvoro {
namespace {

constexpr std::string_view kLongestNumber = "2147483647";

/// Whether dots stand only where thousands separators would: in front of each of the last groups of three
/// characters, at most three of them, and never as the first character.
bool DotsGroupThousands(std::string_view text, std::size_t dots) {
    if (dots > 3) return false;
    for (; dots > 0; --dots) {
        const std::size_t dot = text.rfind('.');
        if (dot == 0 || CountCharacters(text.substr(dot + 1)) != 3) return false;
        text = text.substr(0, dot);
    }
    return true;
}

bool SeparatorFitsANumber(std::string_view text, char separator) {
    const auto count = static_cast<std::size_t>(std::count(text.begin(), text.end(), separator));
    if (count == 0) return true;
    if (separator == '-') return count == 1 && text.front() == '-';
    if (separator == '.') return DotsGroupThousands(text, count);
    return false;
}

}  // namespace

std::int32_t ParseJdnText(std::string_view text, ParseStatus& status) {
    const bool negative = !text.empty() && text.front() == '-';
    if (negative) text.remove_prefix(1);

    status = ParseStatus::NotValid;
    if (text.empty() || text.find('-') != std::string_view::npos) return 0;

    // Deliberate: ten characters are compared as text, whether they are all digits or not.
    status = ParseStatus::OutOfRange;
    const std::size_t length = CountCharacters(text);
    if (length > kLongestNumber.size()) return 0;
    if (length == kLongestNumber.size() && text > kLongestNumber) return 0;

    // Deliberate: the number ends at the first other character, and a text without any digit is 0. Whoever
    // hands over what a user typed removes groupings and refuses the rest beforehand.
    std::size_t at = text.front() == '+' ? 1 : 0;
    const std::int32_t magnitude = ReadDigits(text, at);
    if (magnitude > kMaxDayNumber) return 0;

    status = ParseStatus::Valid;
    return negative ? -magnitude : magnitude;
}

ParseStatus ParseDayNumberDate(std::string_view text, char separator, DateRecord& record) {
    if (!SeparatorFitsANumber(text, separator)) return ParseStatus::NotValid;
    ParseStatus status = ParseStatus::NotValid;
    const std::int32_t jdn = ParseJdnText(text, status);
    if (status == ParseStatus::Valid) record.jdn = jdn;
    return status;
}

}  // namespace calvoro
