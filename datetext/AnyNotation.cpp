#include "datetext/AnyNotation.h"

#include <algorithm>
#include <cassert>

#include "calendar/DayNumber.h"
#include "calendar/EuroDate.h"
#include "calendar/IsoWeekDate.h"
#include "calendar/LeapWeekDate.h"
#include "calendar/OrdinalDate.h"
#include "calendar/StaysIn32Bits.h"
#include "datetext/Blanks.h"
#include "datetext/DayCountText.h"
#include "datetext/DayNumberText.h"
#include "datetext/Digits.h"
#include "datetext/EuroDateText.h"
#include "datetext/IsoWeekText.h"
#include "datetext/LeapWeekText.h"
#include "datetext/OrdinalText.h"
#include "datetext/Tags.h"
#include "datetext/Thousands.h"

namespace calvoro {
namespace {

// --- Common Era and Julian dates ---

std::string WriteRecord(const DateRecord& record, const TextOptions& options) {
    return FormatDateText(record, options.dateFormat, options.dateSeparator, options.thousandsSeparator,
                          false);
}

/// Takes the grouping out of a year where the dot separates fields as well: more dots than two mean that
/// the year is grouped, and the two next to month and day separate the fields.
/// text     a typed date; on success without foreign characters and with two dots at most
/// returns  false when the further dots do not group the year by threes
bool UngroupDottedYear(std::string& text, DateFormat dateFormat) {
    if (std::count(text.begin(), text.end(), '.') <= 2) return true;
    std::erase_if(text, [](char c) { return !IsDigit(c) && c != '-' && c != '.'; });

    std::string year;
    if (dateFormat == DateFormat::YMD) {
        const std::size_t monthDot = text.rfind('.', text.rfind('.') - 1);
        year = text.substr(0, monthDot);
        if (!DropWellGroupedSeparators(year, '.')) return false;
        text.replace(0, monthDot, year);
    } else {
        const std::size_t yearBegin = text.find('.', text.find('.') + 1) + 1;
        year = text.substr(yearBegin);
        if (!DropWellGroupedSeparators(year, '.')) return false;
        text.replace(yearBegin, std::string::npos, year);
    }
    return true;
}

template <CalendarNumber kNumber>
ParseStatus ReadEuroDate(std::string_view text, const TextOptions& options, DateRecord& record,
                         std::string* canonical) {
    ParseStatus status = ParseStatus::NotValid;
    if (options.dateSeparator == '.') {
        std::string prepared(text);
        if (!UngroupDottedYear(prepared, options.dateFormat)) return ParseStatus::NotValid;
        status = ParseDateText(prepared, '.', kNumber, options.dateFormat, record);
    } else {
        status = ParseDateText(text, options.dateSeparator, kNumber, options.dateFormat, record);
    }
    if (status == ParseStatus::Valid && canonical != nullptr) *canonical = WriteRecord(record, options);
    return status;
}

template <CalendarNumber kNumber>
std::string WriteEuroDate(std::int32_t jdn, const TextOptions& options) {
    DateRecord record;
    record.jdn = jdn;
    CalendarCodeOfTag(kNumber, record);
    jdn_to_euro_date(record);
    return WriteRecord(record, options);
}

// --- ISO week dates ---

ParseStatus ReadIso(std::string_view text, const TextOptions& options, DateRecord& record,
                    std::string* canonical) {
    IsoWeekDate date;
    const ParseStatus status = ParseIsoWeekDate(text, date);
    if (status != ParseStatus::Valid) return status;
    record.jdn = date.jdn;
    if (canonical != nullptr) *canonical = FormatIsoWeekDate(date, options.hyphen);
    return status;
}

std::string WriteIso(std::int32_t jdn, const TextOptions& options) {
    IsoWeekDate date;
    date.jdn = jdn;
    JdnToIsoWeekDate(date);
    return FormatIsoWeekDate(date, options.hyphen);
}

// --- Ordinal dates ---

std::string WriteOrdinal(std::int32_t jdn, const TextOptions& options) {
    std::int32_t year = 0;
    std::int16_t dayOfYear = 0;
    JdnToOrdinal(jdn, year, dayOfYear);
    return FormatOrdinalDate(year, dayOfYear, options.hyphen);
}

ParseStatus ReadOrdinal(std::string_view text, const TextOptions& options, DateRecord& record,
                        std::string* canonical) {
    const ParseStatus status = ParseOrdinalDate(text, options.hyphen, record);
    if (status == ParseStatus::Valid && canonical != nullptr) *canonical = WriteOrdinal(record.jdn, options);
    return status;
}

// --- Leap-week dates ---

/// A date that the calendar refused (weekday 8) is not valid, although its text reads.
ParseStatus LeapWeekStatus(ParseStatus status, const LeapWeekDate& date) {
    return status == ParseStatus::Valid && date.status < 0 ? ParseStatus::NotValid : status;
}

// The canonical text of both forms is made of the fields typed: week 54 stays week 54.
ParseStatus ReadLpw(std::string_view text, const TextOptions& options, DateRecord& record,
                    std::string* canonical) {
    LeapWeekDate date;
    const ParseStatus status = LeapWeekStatus(ParseLpwText(text, date), date);
    if (status != ParseStatus::Valid) return status;
    record.jdn = date.jdn;
    if (canonical != nullptr) *canonical = FormatLpwText(date, false, options.digitGrouping);
    return status;
}

std::string WriteLpw(std::int32_t jdn, const TextOptions& options) {
    LeapWeekDate date;
    date.jdn = jdn;
    JdnToWeekForm(date);
    return FormatLpwText(date, false, options.digitGrouping);
}

ParseStatus ReadLpm(std::string_view text, const TextOptions& options, DateRecord& record,
                    std::string* canonical) {
    LeapWeekDate date;
    const ParseStatus status = LeapWeekStatus(ParseLpmText(text, date), date);
    if (status != ParseStatus::Valid) return status;
    record.year = date.year;
    record.month = date.month;
    record.day = date.day;
    record.jdn = date.jdn;
    if (canonical != nullptr) *canonical = FormatLpmText(date, false, options.digitGrouping);
    return status;
}

std::string WriteLpm(std::int32_t jdn, const TextOptions& options) {
    LeapWeekDate date;
    date.jdn = jdn;
    JdnToLpm(date);
    return FormatLpmText(date, false, options.digitGrouping);
}

// --- Day numbers ---

std::string WriteDayNumber(std::int32_t jdn, const TextOptions& options) {
    return ThousandsText(jdn, options.thousandsSeparator);
}

ParseStatus ReadDayNumber(std::string_view text, const TextOptions& options, DateRecord& record,
                          std::string* canonical) {
    std::string number = WithoutBlanks(text);
    if (!DropWellGroupedSeparators(number, ',')) DropWellGroupedSeparators(number, '.');
    const std::string_view digits = number;
    const bool negative = !digits.empty() && digits.front() == '-';
    if (!AllDigits(digits.substr(negative ? 1 : 0))) return ParseStatus::NotValid;

    const ParseStatus status = ParseDayNumberDate(number, options.dateSeparator, record);
    if (status == ParseStatus::Valid && canonical != nullptr) {
        *canonical = WriteDayNumber(record.jdn, options);
    }
    return status;
}

constexpr std::array<Notation, kOfferedNotations.size()> kNotations{{
    {CalendarNumber::CE, TagText(CalendarNumber::CE), ReadEuroDate<CalendarNumber::CE>,
     WriteEuroDate<CalendarNumber::CE>},
    {CalendarNumber::ISO, TagText(CalendarNumber::ISO), ReadIso, WriteIso},
    {CalendarNumber::JC, TagText(CalendarNumber::JC), ReadEuroDate<CalendarNumber::JC>,
     WriteEuroDate<CalendarNumber::JC>},
    {CalendarNumber::ORD, TagText(CalendarNumber::ORD), ReadOrdinal, WriteOrdinal},
    {CalendarNumber::LPM, TagText(CalendarNumber::LPM), ReadLpm, WriteLpm},
    {CalendarNumber::LPW, TagText(CalendarNumber::LPW), ReadLpw, WriteLpw},
    {CalendarNumber::JDN, TagText(CalendarNumber::JDN), ReadDayNumber, WriteDayNumber},
}};

constexpr bool NotationsStandInTheirOrder() {
    for (std::size_t row = 0; row < kNotations.size(); ++row) {
        if (kNotations[row].number != kOfferedNotations[row]) return false;
    }
    return true;
}
static_assert(NotationsStandInTheirOrder());

}  // namespace

std::span<const Notation, kOfferedNotations.size()> Notations() {
    return kNotations;
}

const Notation& NotationOf(CalendarNumber number) {
    for (const Notation& notation : kNotations) {
        if (notation.number == number) return notation;
    }
    return kNotations.front();
}

std::string_view DateAlone(const Notation& notation, std::string_view text) {
    text = TrimBlanks(text);
    if (text.size() <= notation.tag.size() || !text.ends_with(notation.tag)) return text;
    const std::string_view date = text.substr(0, text.size() - notation.tag.size());
    return date.back() == ' ' ? TrimBlanks(date) : text;
}

ParseStatus ReadDate(const Notation& notation, std::string_view text, const TextOptions& options,
                     DateRecord& record, std::string* canonical) {
    ParseStatus status = ParseStatus::NotValid;
    const std::string_view date = DateAlone(notation, text);
    if (StaysIn32Bits([&] { status = notation.read(date, options, record, canonical); })) return status;
    record = DateRecord();
    return ParseStatus::OutOfRange;
}

ParseStatus ReadDate(CalendarNumber number, std::string_view text, const TextOptions& options,
                     DateRecord& record, std::string* canonical) {
    return ReadDate(NotationOf(number), text, options, record, canonical);
}

bool CanWriteDate(CalendarNumber number, std::int32_t jdn) {
    return number != CalendarNumber::ORD || IsWithinOrdinalLimits(jdn);
}

std::string WriteDate(CalendarNumber number, std::int32_t jdn, const TextOptions& options) {
    assert(CanWriteDate(number, jdn));
    return NotationOf(number).write(jdn, options);
}

ParseStatus ReadDifference(std::string_view text, std::int32_t& number) {
    std::string prepared(TrimBlanks(text));
    DropWellGroupedSeparators(prepared, '.');
    return ParseDayCount(prepared, number);
}

}  // namespace calvoro
