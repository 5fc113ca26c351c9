#include "datetext/EuroDateText.h"

#include <algorithm>

#include "calendar/AnnusNovus.h"
#include "calendar/DayNumber.h"
#include "calendar/EuroDate.h"
#include "datetext/Blanks.h"
#include "datetext/DayNumberText.h"
#include "datetext/Digits.h"
#include "datetext/KeepCharacters.h"
#include "datetext/StrToDate.h"
#include "datetext/Thousands.h"

namespace calvoro {
namespace {

constexpr std::int32_t kLargestPlainYear = 9999;

// Deliberate: characters that cannot be part of a date are dropped without a word, so that a date pasted
// with its tag, its parentheses or its thousands separators reads.
std::string KeepDateCharacters(std::string_view text, char separator) {
    return KeepCharacters(text, [separator](char c) { return IsDigit(c) || c == '-' || c == separator; });
}

// Deliberate: with "-" as separator a third "-" is allowed anywhere; str_to_date finds out whether it is
// the sign of the year.
bool HasDateShape(std::string_view text, char separator) {
    const auto minuses = std::count(text.begin(), text.end(), '-');
    if (separator == '-') return minuses == 2 || minuses == 3;
    return minuses <= 1 && std::count(text.begin(), text.end(), separator) == 2;
}

CalendarCode CodeForReading(CalendarNumber tag) {
    if (tag == CalendarNumber::ARC) return CalendarCode::R;
    DateRecord record{.calendar = CalendarCode::G};  // it stays so for a tag without a code
    CalendarCodeOfTag(tag, record);
    return record.calendar;
}

/// The order of the fields: notations that always begin with the year have no month-first form.
DateFormat FormatForReading(CalendarNumber tag, DateFormat dateFormat) {
    const bool yearFirst = tag == CalendarNumber::AN || tag == CalendarNumber::VLW ||
                           tag == CalendarNumber::ISO || tag == CalendarNumber::ARC;
    return yearFirst && dateFormat == DateFormat::MDY ? DateFormat::YMD : dateFormat;
}

void AppendYear(std::string& text, const DateRecord& record, char thousandsSeparator) {
    const bool plain = record.calendar == CalendarCode::A || thousandsSeparator == kNoSeparator ||
                       (record.year <= kLargestPlainYear && record.year >= -kLargestPlainYear);
    if (plain) {
        AppendNumber(text, record.year);
    } else {
        text += ThousandsText(record.year, thousandsSeparator);
    }
}

/// A year that stands last: after a separator a minus sign would be unreadable, so it gets parentheses.
void AppendLastYear(std::string& text, const DateRecord& record, char thousandsSeparator) {
    if (record.year < 0) text.push_back('(');
    AppendYear(text, record, thousandsSeparator);
    if (record.year < 0) text.push_back(')');
}

std::string_view Suffix(CalendarCode code) {
    if (code == CalendarCode::A) return " AN";
    if (code == CalendarCode::J) return " JC";
    if (code == CalendarCode::G) return " CE";
    return "";
}

}  // namespace

ParseStatus ParseDateText(std::string_view text, char separator, CalendarNumber tag, DateFormat dateFormat,
                          DateRecord& record) {
    if (tag == CalendarNumber::JDN) return ParseDayNumberDate(WithoutBlanks(text), separator, record);

    const std::string kept = KeepDateCharacters(text, separator);
    if (!HasDateShape(kept, separator)) return ParseStatus::NotValid;

    // Deliberate: the year that the record brings along is tested, and before the text is split. A zeroed
    // record always passes; str_to_date tests the year of the text itself.
    if (record.year > kMaxYearMagnitude || record.year < -kMaxYearMagnitude) return ParseStatus::OutOfRange;

    const auto code = static_cast<std::int32_t>(CodeForReading(tag));
    const auto order = static_cast<std::int32_t>(FormatForReading(tag, dateFormat));
    const std::int32_t result = str_to_date(kept, order, record, code);
    if (result == kStrToDateYearOutOfRange) return ParseStatus::OutOfRange;
    if (result != kStrToDateOk) return ParseStatus::NotValid;

    if (record.calendar == CalendarCode::A) {
        annus_novus_date_to_jdn(record);
    } else if (record.calendar != CalendarCode::R) {
        euro_date_to_jdn(record);
    }
    return ParseStatus::Valid;
}

std::string FormatDateText(const DateRecord& record, DateFormat dateFormat, char separator,
                           char thousandsSeparator, bool withSuffix) {
    std::string text;
    const bool annusNovus = record.calendar == CalendarCode::A;
    if (annusNovus) separator = '-';
    if (annusNovus || dateFormat == DateFormat::YMD) {
        AppendYear(text, record, thousandsSeparator);
        text.push_back(separator);
        AppendNumber(text, record.month, 2);
        text.push_back(separator);
        AppendNumber(text, record.day, 2);
    } else {
        const bool dayFirst = dateFormat == DateFormat::DMY;
        AppendNumber(text, dayFirst ? record.day : record.month, 2);
        text.push_back(separator);
        AppendNumber(text, dayFirst ? record.month : record.day, 2);
        text.push_back(separator);
        AppendLastYear(text, record, thousandsSeparator);
    }
    if (withSuffix) text += Suffix(record.calendar);
    return text;
}

}  // namespace calvoro
