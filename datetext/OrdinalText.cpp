#include "datetext/OrdinalText.h"

#include "calendar/EuroDate.h"
#include "calendar/OrdinalDate.h"
#include "calendar/YearsAndMonths.h"
#include "datetext/Blanks.h"
#include "datetext/Digits.h"

namespace calvoro {
namespace {

constexpr std::size_t kCompactLength = 7;  // yyyyddd
constexpr std::size_t kYearLength = 4;
constexpr std::size_t kDayLength = 3;
constexpr std::int32_t kLongestYear = 366;

/// The parts of a text that has the form of an ordinal date.
struct OrdinalParts {
    TextShape shape = TextShape::None;
    std::int32_t year = 0;  // [0, 9999]
    std::int32_t day = 0;   // [1, 366]

    bool YearHasDay() const { return day < kLongestYear || IsLeapYear(year, "G"); }
};

OrdinalParts SplitOrdinalText(std::string_view text) {
    const bool hyphenated = text.size() == kCompactLength + 1 && text[kYearLength] == '-';
    if (!hyphenated && text.size() != kCompactLength) return {};
    const std::string_view year = text.substr(0, kYearLength);
    const std::string_view day = text.substr(text.size() - kDayLength);
    if (!AllDigits(year) || !AllDigits(day)) return {};

    OrdinalParts parts;
    std::size_t at = 0;
    parts.year = ReadDigits(year, at);
    at = 0;
    parts.day = ReadDigits(day, at);
    if (parts.day < 1 || parts.day > kLongestYear) return {};
    parts.shape = hyphenated ? TextShape::Hyphenated : TextShape::Compact;
    return parts;
}

}  // namespace

TextShape OrdinalShape(std::string_view text) {
    const OrdinalParts parts = SplitOrdinalText(text);
    return parts.YearHasDay() ? parts.shape : TextShape::None;
}

ParseStatus ParseOrdinalDate(std::string_view text, bool hyphen, DateRecord& record) {
    const OrdinalParts parts = SplitOrdinalText(WithoutBlanks(text));
    if (parts.shape != (hyphen ? TextShape::Hyphenated : TextShape::Compact)) return ParseStatus::NotValid;
    if (parts.year < 1) return ParseStatus::OutOfRange;  // four digits cannot exceed 9999
    if (!parts.YearHasDay()) return ParseStatus::NotValid;

    record.jdn = OrdinalToJdn(parts.year, parts.day);
    record.calendar = CalendarCode::G;
    jdn_to_euro_date(record);
    return ParseStatus::Valid;
}

std::string FormatOrdinalDate(std::int32_t year, std::int16_t dayOfYear, bool hyphen) {
    std::string text;
    AppendNumber(text, year, kYearLength);
    if (hyphen) text.push_back('-');
    AppendNumber(text, dayOfYear, kDayLength);
    return text;
}

}  // namespace calvoro
