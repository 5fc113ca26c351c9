#include "datetext/LeapWeekText.h"

#include <array>
#include <limits>

#include "calendar/DayNumber.h"
#include "datetext/Digits.h"
#include "datetext/KeepCharacters.h"

namespace calvoro {
namespace {

constexpr std::int32_t kLargestUngroupedYear = 9999;

/// The three numbers of a text: year, week and weekday, or year, month and day.
struct LeapWeekFields {
    std::int32_t year = 0;
    std::int16_t second = 0;
    std::int16_t third = 0;
};

constexpr bool FitsAField(std::int32_t value) {
    return value <= std::numeric_limits<std::int16_t>::max();  // a typed field has no sign
}

// Deliberate: every other character is dropped without a word, so that years come in with any grouping.
std::string KeepDigitsAndHyphens(std::string_view text) {
    return KeepCharacters(text, [](char c) { return IsDigit(c) || c == '-'; });
}

ParseStatus SplitLeapWeekText(std::string_view typed, LeapWeekFields& fields) {
    const std::string kept = KeepDigitsAndHyphens(typed);
    const std::string_view text = kept;
    const std::size_t first = text.find('-', 1);  // a "-" before it is the year's sign
    if (first == std::string_view::npos) return ParseStatus::NotValid;
    const std::size_t second = text.find('-', first + 1);
    if (second == std::string_view::npos) return ParseStatus::NotValid;
    if (text.find('-', second + 1) != std::string_view::npos) return ParseStatus::NotValid;

    const bool negative = text.front() == '-';
    std::size_t at = negative ? 1 : 0;
    if (at == first) return ParseStatus::NotValid;  // nothing but a sign
    const std::int32_t year = ReadDigits(text, at);
    if (year > kMaxYearMagnitude) return ParseStatus::OutOfRange;

    if (first + 1 == second || second + 1 == text.size()) return ParseStatus::NotValid;
    at = first + 1;
    const std::int32_t secondValue = ReadDigits(text, at);
    at = second + 1;
    const std::int32_t thirdValue = ReadDigits(text, at);
    if (!FitsAField(secondValue) || !FitsAField(thirdValue)) return ParseStatus::OutOfRange;

    fields.year = negative ? -year : year;
    fields.second = static_cast<std::int16_t>(secondValue);
    fields.third = static_cast<std::int16_t>(thirdValue);
    return ParseStatus::Valid;
}

/// What the conversions' result says about the text.
/// Deliberate: any result but 0 is valid, the negative code of a refused weekday too, and day number 0
/// cannot be told from a failure. The caller sees a refusal in the record's status.
ParseStatus StatusOfResult(std::int32_t result) {
    return result == 0 ? ParseStatus::NotValid : ParseStatus::Valid;
}

/// Writes the year at the beginning of a text.
void AppendYear(std::string& text, std::int32_t year, std::string_view digitGrouping) {
    AppendNumber(text, year);
    if (year <= kLargestUngroupedYear && year >= -kLargestUngroupedYear) return;
    const std::size_t firstDigit = year < 0 ? 1U : 0U;
    for (std::size_t at = text.size(); at > firstDigit + 3;) {
        at -= 3;
        text.insert(at, digitGrouping);
    }
}

std::string FormatLeapWeekText(std::int32_t year, std::int16_t second, std::int16_t third,
                               std::size_t thirdWidth, std::string_view digitGrouping,
                               std::string_view suffix) {
    std::string text;
    AppendYear(text, year, digitGrouping);
    text.push_back('-');
    AppendNumber(text, second, 2);
    text.push_back('-');
    AppendNumber(text, third, thirdWidth);
    text += suffix;
    return text;
}

}  // namespace

ParseStatus ParseLpwText(std::string_view text, LeapWeekDate& date) {
    LeapWeekFields fields;
    const ParseStatus status = SplitLeapWeekText(text, fields);
    if (status != ParseStatus::Valid) return status;
    date.year = fields.year;
    date.week = fields.second;
    date.weekday = fields.third;
    return StatusOfResult(WeekFormToJdn(date));
}

ParseStatus ParseLpmText(std::string_view text, LeapWeekDate& date) {
    LeapWeekFields fields;
    const ParseStatus status = SplitLeapWeekText(text, fields);
    if (status != ParseStatus::Valid) return status;
    date.year = fields.year;
    date.month = fields.second;
    date.day = fields.third;
    return StatusOfResult(LpmToJdn(date));
}

std::string FormatLpwText(const LeapWeekDate& date, bool withSuffix, std::string_view digitGrouping) {
    return FormatLeapWeekText(date.year, date.week, date.weekday, 1, digitGrouping, withSuffix ? " LPW" : "");
}

std::string FormatLpmText(const LeapWeekDate& date, bool withSuffix, std::string_view digitGrouping) {
    return FormatLeapWeekText(date.year, date.month, date.day, 2, digitGrouping, withSuffix ? " LPM" : "");
}

}  // namespace calvoro
