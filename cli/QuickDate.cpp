#include "cli/QuickDate.h"

#include <cstring>

#include "calendar/DateRecord.h"
#include "calendar/EuroDate.h"
#include "calendar/IsoWeekDate.h"

namespace calvoro {
namespace {

bool IsEuro(CalendarNumber notation) {
    return notation == CalendarNumber::CE || notation == CalendarNumber::JC;
}

CalendarCode CodeOf(CalendarNumber notation) {
    return notation == CalendarNumber::JC ? CalendarCode::J : CalendarCode::G;
}

std::uint64_t EightBytes(const char* from) {
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, from, sizeof bytes);
    return bytes;
}

// Whether eight characters are a digit for every "0" of the form and a "-" for every "-". All are compared
// at once: what differs from the form is [0, 9] for a digit, and adding 6 carries anything more into the
// upper half of its byte; for a "-" it is 0, and adding 15 does the same. A carry out of a byte comes only
// from one whose upper half was set already.
bool HasForm(const char* text, const char (&form)[9], const char (&carry)[9]) {
    constexpr std::uint64_t kUpperHalves = 0xF0F0F0F0F0F0F0F0;
    const std::uint64_t difference = EightBytes(text) ^ EightBytes(form);
    return ((difference | (difference + EightBytes(carry))) & kUpperHalves) == 0;
}

bool HasFormOfDate(const char* text) {
    return HasForm(text, "0000-00-", "\x06\x06\x06\x06\x0F\x06\x06\x0F") &&
           HasForm(text + 2, "00-00-00", "\x06\x06\x0F\x06\x06\x0F\x06\x06");
}

// text  two digits
std::uint32_t TwoDigits(const char* text) {
    const int value = 10 * text[0] + text[1] - 11 * '0';
    return static_cast<std::uint32_t>(value);
}

// Bit m is set for a month of 31 days.
constexpr std::uint32_t kLongMonths = 1u << 1 | 1u << 3 | 1u << 5 | 1u << 7 | 1u << 8 | 1u << 10 | 1u << 12;

// Leap years are left to the reader, which knows those of both calendars.
bool IsDayOfEveryYear(std::uint32_t month, std::uint32_t day) {
    if (month < 1 || month > 12 || day < 1) return false;
    if (day <= 28) return true;
    if (month == 2) return false;
    return day <= 30 || (day == 31 && (kLongMonths >> month & 1) != 0);
}

void WriteDigit(std::int32_t digit, char* to) {
    *to = static_cast<char>('0' + digit);
}

// number  [0, 99]
void WriteTwoDigits(std::int32_t number, char* to) {
    WriteDigit(number / 10, to);
    WriteDigit(number % 10, to + 1);
}

// The year and the "-" behind it.
bool WriteYear(std::int32_t year, char* to) {
    if (year < 1000 || year > 9999) return false;
    WriteTwoDigits(year / 100, to);
    WriteTwoDigits(year % 100, to + 2);
    to[4] = '-';
    return true;
}

}  // namespace

bool HasQuickShape(CalendarNumber notation, const TextOptions& options) {
    if (notation == CalendarNumber::ISO) return options.hyphen;
    return IsEuro(notation) && options.dateFormat == DateFormat::YMD && options.dateSeparator == '-';
}

bool ReadQuickDate(std::string_view text, CalendarNumber notation, std::int32_t& jdn) {
    if (!IsEuro(notation) || text.size() != kQuickDateLength || !HasFormOfDate(text.data())) return false;
    const std::uint32_t month = TwoDigits(text.data() + 5);
    const std::uint32_t day = TwoDigits(text.data() + 8);
    if (!IsDayOfEveryYear(month, day)) return false;

    DateRecord record;
    record.year = static_cast<std::int32_t>(100 * TwoDigits(text.data()) + TwoDigits(text.data() + 2));
    record.month = static_cast<std::int32_t>(month);
    record.day = static_cast<std::int32_t>(day);
    record.calendar = CodeOf(notation);
    jdn = euro_date_to_jdn(record);
    return true;
}

bool WriteQuickDate(CalendarNumber notation, std::int32_t jdn, char* to) {
    if (notation == CalendarNumber::ISO) {
        IsoWeekDate date;
        date.jdn = jdn;
        JdnToIsoWeekDate(date);
        if (!WriteYear(date.year, to)) return false;
        to[5] = 'W';
        WriteTwoDigits(date.week, to + 6);
        to[8] = '-';
        WriteDigit(date.day, to + 9);
        return true;
    }
    if (!IsEuro(notation)) return false;
    DateRecord record;
    record.jdn = jdn;
    record.calendar = CodeOf(notation);
    jdn_to_euro_date(record);
    if (!WriteYear(record.year, to)) return false;
    WriteTwoDigits(record.month, to + 5);
    to[7] = '-';
    WriteTwoDigits(record.day, to + 8);
    return true;
}

}  // namespace calvoro
