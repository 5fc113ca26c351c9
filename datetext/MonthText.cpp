#include "datetext/MonthText.h"

#include <initializer_list>

#include "calendar/CheckedInt.h"
#include "calendar/EuroDate.h"
#include "calendar/IsoWeekDate.h"
#include "calendar/Weekday.h"
#include "datetext/Digits.h"
#include "datetext/IsoWeekText.h"

namespace calvoro {
namespace {

constexpr std::string_view kLineBreak = "\r\n";
constexpr std::int16_t kMostWeekRows = 6;
constexpr std::int32_t kDaysInWeek = 7;

/// The first `count` characters of a UTF-8 text.
std::string_view FirstCharacters(std::string_view text, std::size_t count) {
    const auto beginsCharacter = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; };
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (!beginsCharacter(text[at])) continue;
        if (count == 0) return text.substr(0, at);
        --count;
    }
    return text;
}

void TrimEnd(std::string& text) {
    while (!text.empty() && static_cast<unsigned char>(text.back()) <= ' ') text.pop_back();
}

void AppendDayCell(std::string& text, std::int32_t day) {
    text += day < 10 ? "  " : " ";
    AppendNumber(text, day);
    text += "  ";
}

/// Whether the week line that ends with this day is the last one.
/// Deliberate: a month of 28 to 30 days that ends with a week line gets one more line, of the next month's
/// days alone, while a month of 31 days does not; December is recognised by the year that follows, because
/// January's number is the smaller one.
bool EndsTheGrid(const DateRecord& lastDayOfLine, std::int32_t year, std::int32_t month) {
    return lastDayOfLine.month > month || lastDayOfLine.year > year || lastDayOfLine.day == 31;
}

}  // namespace

MonthGrid DrawMonth(std::int32_t year, std::int32_t month, CalendarCode calendar, WeekStart weekStart,
                    const WeekdayWords& weekdays) {
    const std::int32_t firstWeekday = weekStart == WeekStart::Sunday ? 0 : 1;
    MonthGrid grid;
    for (std::int32_t column = 0; column < kDaysInWeek; ++column) {
        const auto weekday = static_cast<std::size_t>((column + firstWeekday) % kDaysInWeek);
        grid.text += ' ';
        grid.text += FirstCharacters(weekdays[weekday], 3);
        grid.text += ' ';
    }

    DateRecord record{.year = year, .month = month, .day = 1, .calendar = calendar};
    CheckedInt jdn = euro_date_to_jdn(record);
    jdn -= (euro_day_of_week(jdn.Value()) - firstWeekday + kDaysInWeek) % kDaysInWeek;
    grid.firstShownJdn = jdn.Value();

    // Days of the neighbouring months in the weeks shown are printed like the month's own.
    do {
        ++grid.weekRows;
        grid.text += kLineBreak;
        grid.text += ' ';
        for (std::int32_t column = 0; column < kDaysInWeek; ++column) {
            record.jdn = jdn.Value();
            jdn_to_euro_date(record);
            AppendDayCell(grid.text, record.day);
            jdn += 1;
        }
    } while (grid.weekRows < kMostWeekRows && !EndsTheGrid(record, year, month));
    return grid;
}

std::string DrawIsoWeekDates(std::int32_t firstShownJdn, std::int16_t weekRows, bool withYear,
                             const WeekdayWords& weekdays) {
    std::string text;
    for (std::int32_t column = 0; column < kDaysInWeek; ++column) {
        const std::string_view name = weekdays[static_cast<std::size_t>((column + 1) % kDaysInWeek)];
        text += withYear ? "       " : " ";
        text += FirstCharacters(name, withYear ? 1 : 3);
        if (!withYear) text += "   ";
        if (withYear && column < kDaysInWeek - 1) text += ' ';
    }
    if (withYear) TrimEnd(text);

    CheckedInt jdn = firstShownJdn;
    for (std::int16_t row = 0; row < weekRows; ++row) {
        if (row > 0) jdn += kDaysInWeek;
        IsoWeekDate monday;
        monday.jdn = jdn.Value();
        JdnToIsoWeekDate(monday);
        const std::string date = FormatIsoWeekDate(monday, true);
        const std::size_t shownLength = withYear ? sizeof "0-W01-1" - 1 : sizeof "W01-1" - 1;
        const std::string prefix = date.substr(date.size() - shownLength, shownLength - 1);

        text += kLineBreak;
        for (char day = '1'; day <= '7'; ++day) {
            text += prefix;
            text += day;
            text += "  ";
        }
        TrimEnd(text);
    }
    return text;
}

std::string CopiedMonthText(std::string_view monthName, std::string_view year, std::string_view calendarName,
                            std::string_view grid, std::string_view isoHeading, std::string_view isoDates) {
    std::string text(monthName);
    const auto append = [&text](std::initializer_list<std::string_view> pieces) {
        for (const std::string_view piece : pieces) text += piece;
    };
    append({" ", year, " (", calendarName, ")", kLineBreak, kLineBreak, grid});
    if (!isoDates.empty()) append({kLineBreak, kLineBreak, isoHeading, kLineBreak, kLineBreak, isoDates});
    return text;
}

}  // namespace calvoro
