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
constexpr std::int32_t kLongestYear = 366;

std::int32_t ValueOf(std::string_view digits) {
    std::size_t at = 0;
    return ReadDigits(digits, at);
}

bool IsCommonEraLeapYear(std::int32_t year) {
    return IsLeapYear(year, "G");
}

/// The seven digits of a text whose fifth character is a "-", in `digits`; false for any other text.
bool TakeHyphenOut(std::string_view text, std::string& digits) {
    if (text.size() != kCompactLength + 1 || text[kYearLength] != '-') return false;
    digits.assign(text.substr(0, kYearLength));
    digits.append(text.substr(kYearLength + 1));
    return true;
}

}  // namespace

TextShape OrdinalShape(std::string_view text) {
    std::string digits;
    TextShape shape = TextShape::Hyphenated;
    if (!TakeHyphenOut(text, digits)) {
        if (text.size() != kCompactLength) return TextShape::None;
        digits.assign(text);
        shape = TextShape::Compact;
    }
    if (!AllDigits(digits)) return TextShape::None;

    const std::int32_t year = ValueOf(std::string_view(digits).substr(0, kYearLength));
    const std::int32_t day = ValueOf(std::string_view(digits).substr(kYearLength));
    if (day < 1 || day > kLongestYear) return TextShape::None;
    if (day == kLongestYear && !IsCommonEraLeapYear(year)) return TextShape::None;
    return shape;
}

ParseStatus ParseOrdinalDate(std::string_view text, bool hyphen, DateRecord& record) {
    std::string digits = WithoutBlanks(text);
    if (hyphen) {
        if (digits.size() <= kYearLength || digits[kYearLength] != '-') return ParseStatus::NotValid;
        digits.erase(kYearLength, 1);
    }
    if (digits.size() != kCompactLength || !AllDigits(digits)) return ParseStatus::NotValid;

    const std::int32_t year = ValueOf(std::string_view(digits).substr(0, kYearLength));
    const std::int32_t day = ValueOf(std::string_view(digits).substr(kYearLength));
    if (day < 1 || day > kLongestYear) return ParseStatus::NotValid;
    if (year < 1) return ParseStatus::OutOfRange;  // four digits cannot exceed 9999
    if (day == kLongestYear && !IsCommonEraLeapYear(year)) return ParseStatus::NotValid;

    record.jdn = OrdinalToJdn(year, day);
    record.calendar = CalendarCode::G;
    jdn_to_euro_date(record);
    return ParseStatus::Valid;
}

std::string FormatOrdinalDate(std::int32_t year, std::int16_t dayOfYear, bool hyphen) {
    std::string text;
    AppendNumber(text, year, kYearLength);
    if (hyphen) text.push_back('-');
    AppendNumber(text, dayOfYear, 3);
    return text;
}

}  // namespace calvoro
