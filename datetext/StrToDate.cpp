#include "datetext/StrToDate.h"

#include <array>

#include "calendar/DayNumber.h"
#include "calendar/YearsAndMonths.h"
#include "datetext/Digits.h"
#include "datetext/TextOptions.h"

namespace calvoro {
namespace {

constexpr std::int32_t kMalformed = -1;
constexpr std::int32_t kNoSuchDay = -2;

/// Which of the three fields is which, by the number of the date format.
struct FieldOrder {
    std::size_t year;
    std::size_t month;
    std::size_t day;
};
constexpr std::array<FieldOrder, 3> kFieldOrders{{{2, 0, 1}, {2, 1, 0}, {0, 1, 2}}};
static_assert(kFieldOrders[static_cast<std::size_t>(DateFormat::YMD)].year == 0);
static_assert(kFieldOrders[static_cast<std::size_t>(DateFormat::MDY)].month == 0);
static_assert(kFieldOrders[static_cast<std::size_t>(DateFormat::DMY)].day == 0);

constexpr std::array<std::int32_t, 12> kMonthLengths{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

/// Reads the three fields; a sign is taken in front of the year's digits only.
/// returns  false unless there are exactly three fields, none of them empty
bool SplitFields(std::string_view text, std::size_t yearField, std::array<std::int32_t, 3>& fields) {
    std::size_t at = 0;
    char otherSeparator = '-';
    for (std::size_t field = 0; field < fields.size(); ++field) {
        if (field > 0) {
            if (at == text.size()) return false;
            const char separator = text[at++];
            if (separator != '-' && separator != '/' && separator != '.') return false;
            if (separator != '-' && otherSeparator != '-' && separator != otherSeparator) return false;
            if (separator != '-') otherSeparator = separator;
        }
        const bool negative = field == yearField && at < text.size() && text[at] == '-';
        if (negative) ++at;
        if (at == text.size() || !IsDigit(text[at])) return false;
        const std::int32_t value = ReadDigits(text, at);
        fields[field] = negative ? -value : value;
    }
    return at == text.size();
}

std::int32_t MonthLength(std::int32_t year, std::int32_t month, std::int32_t calendar) {
    const bool julian = calendar == static_cast<std::int32_t>(CalendarCode::J);
    if (month == 2 && IsLeapYear(year, julian ? "J" : "G")) return 29;
    return kMonthLengths[static_cast<std::size_t>(month - 1)];
}

}  // namespace

std::int32_t str_to_date(std::string_view text, std::int32_t dateFormat, DateRecord& record,
                         std::int32_t calendar) {
    if (dateFormat < 0 || dateFormat >= static_cast<std::int32_t>(kFieldOrders.size())) return kMalformed;
    const FieldOrder& order = kFieldOrders[static_cast<std::size_t>(dateFormat)];

    std::array<std::int32_t, 3> fields{};
    if (!SplitFields(text, order.year, fields)) return kMalformed;
    const std::int32_t year = fields[order.year];
    const std::int32_t month = fields[order.month];
    const std::int32_t day = fields[order.day];

    // A text that cannot be a date of any year is malformed; only then does its year decide.
    if (month < 1 || month > 12 || day < 1 || day > 31) return kMalformed;
    if (year > kMaxYearMagnitude || year < -kMaxYearMagnitude) return kStrToDateYearOutOfRange;
    if (day > MonthLength(year, month, calendar)) return kNoSuchDay;

    record.year = year;
    record.month = month;
    record.day = day;
    record.calendar = static_cast<CalendarCode>(calendar);
    return kStrToDateOk;
}

}  // namespace calvoro
