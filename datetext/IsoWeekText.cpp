#include "datetext/IsoWeekText.h"

#include "calendar/DayNumber.h"
#include "datetext/Blanks.h"
#include "datetext/DayCountText.h"
#include "datetext/Digits.h"

namespace calvoro {
namespace {

/// The parts of a text that is an ISO week date.
struct IsoParts {
    TextShape shape = TextShape::None;
    std::string_view year;  // digits with an optional sign, blanks around them possible
    std::int32_t week = 0;  // [1, 53]
    std::int32_t day = 0;   // [1, 7]
};

IsoParts SplitIsoText(std::string_view text) {
    IsoParts parts;
    const std::size_t letter = text.find('W');
    if (letter == std::string_view::npos) return parts;

    const std::size_t hyphen = text.find('-', 1);  // a "-" before it is the year's sign
    const bool compact = hyphen == std::string_view::npos;
    if (!compact && hyphen + 1 != letter) return parts;
    parts.year = text.substr(0, compact ? letter : hyphen);
    if (!IsDigits(parts.year, true, false)) return parts;

    // Deliberate: behind the "W" hyphens count for nothing, wherever they stand.
    char digits[3];
    std::size_t count = 0;
    for (const char c : text.substr(letter + 1)) {
        if (c == '-') continue;
        if (count == 3 || !IsDigit(c)) return parts;
        digits[count++] = c;
    }
    if (count != 3) return parts;
    parts.week = (digits[0] - '0') * 10 + (digits[1] - '0');
    parts.day = digits[2] - '0';
    if (parts.week < 1 || parts.week > 53 || parts.day < 1 || parts.day > 7) return parts;

    parts.shape = compact ? TextShape::Compact : TextShape::Hyphenated;
    return parts;
}

/// The value of a text that IsDigits accepts with a sign; saturated either way.
std::int32_t SignedValue(std::string_view text) {
    text = TrimBlanks(text);
    const bool negative = text.front() == '-';
    std::size_t at = IsDigit(text.front()) ? 0 : 1;
    const std::int32_t value = ReadDigits(text, at);
    return negative ? -value : value;
}

}  // namespace

TextShape IsoShape(std::string_view text) {
    return SplitIsoText(text).shape;
}

ParseStatus ParseIsoWeekDate(std::string_view text, IsoWeekDate& date) {
    const std::string despaced = WithoutBlanks(text);
    const IsoParts parts = SplitIsoText(despaced);
    if (parts.shape == TextShape::None) return ParseStatus::NotValid;

    const std::int32_t year = SignedValue(parts.year);
    if (year >= kMaxYearMagnitude || year <= -kMaxYearMagnitude) return ParseStatus::OutOfRange;
    if (parts.week == 53 && !HasWeek53(year)) return ParseStatus::NotValid;

    date.year = year;
    date.week = parts.week;
    date.day = parts.day;
    date.set = 1;
    IsoWeekDateToJdn(date);
    return ParseStatus::Valid;
}

std::string FormatIsoWeekDate(const IsoWeekDate& date, bool hyphen) {
    std::string text;
    AppendNumber(text, date.year);
    if (hyphen) text.push_back('-');
    text.push_back('W');
    AppendNumber(text, date.week, 2);
    if (hyphen) text.push_back('-');
    AppendNumber(text, date.day);
    return text;
}

}  // namespace calvoro
