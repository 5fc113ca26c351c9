#include "text/DateNames.h"

#include <stdexcept>

namespace calvoro {
namespace {

constexpr std::size_t kWeekdayLanguages = 3;
constexpr std::size_t kMonthLanguages = 6;

using WeekdayRow = std::array<std::string_view, 7>;
constexpr std::array<WeekdayRow, kWeekdayLanguages> kWeekdayNames = {{
    {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"},
    {"Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag"},
    {},
}};

using MonthForms = std::array<std::string_view, 2>;  // by MonthNameForm
using MonthRow = std::array<MonthForms, 12>;
constexpr MonthRow kEnglishMonths = {{
    {"January", "Jan"},
    {"February", "Feb"},
    {"March", "Mar"},
    {"April", "Apr"},
    {"May", "May"},
    {"June", "Jun"},
    {"July", "Jul"},
    {"August", "Aug"},
    {"September", "Sep"},
    {"October", "Oct"},
    {"November", "Nov"},
    {"December", "Dec"},
}};
constexpr MonthRow kGermanMonths = {{
    {"Januar", "Jan"},
    {"Februar", "Feb"},
    {"Maerz", "Mar"},  // umlauts are written as two letters, and the abbreviation keeps its "a"
    {"April", "Apr"},
    {"Mai", "Mai"},
    {"Juni", "Jun"},
    {"Juli", "Jul"},
    {"August", "Aug"},
    {"September", "Sep"},
    {"Oktober", "Okt"},
    {"November", "Nov"},
    {"Dezember", "Dez"},
}};
constexpr std::array<MonthRow, kMonthLanguages> kMonthNames = {
    {kEnglishMonths, kGermanMonths, {}, {}, {}, {}}};

std::size_t CheckedIndex(std::int32_t index, std::size_t size, const char* what) {
    if (index < 0 || static_cast<std::size_t>(index) >= size) throw std::out_of_range(what);
    return static_cast<std::size_t>(index);
}

}  // namespace

std::string_view WeekdayName(LanguageNumber language, std::int32_t weekday) {
    const WeekdayRow& row = kWeekdayNames[CheckedIndex(language, kWeekdayNames.size(), "language number")];
    return row[CheckedIndex(weekday, row.size(), "weekday")];
}

std::string_view MonthName(LanguageNumber language, std::int32_t month, MonthNameForm form) {
    const MonthRow& row = kMonthNames[CheckedIndex(language, kMonthNames.size(), "language number")];
    return row[CheckedIndex(month, row.size(), "month")][static_cast<std::size_t>(form)];
}

std::array<std::string_view, 7> ShownWeekdayNames(LanguageNumber language) {
    WeekdayRow names = kWeekdayNames[CheckedIndex(language, kWeekdayNames.size(), "language number")];
    for (std::size_t weekday = 0; weekday < names.size(); ++weekday) {
        if (names[weekday].empty()) names[weekday] = kWeekdayNames[LanguageEnglish][weekday];
    }
    return names;
}

std::string_view ShownMonthName(LanguageNumber language, std::int32_t month) {
    const std::string_view name = MonthName(language, month, MonthNameForm::Full);
    return name.empty() ? MonthName(LanguageEnglish, month, MonthNameForm::Full) : name;
}

}  // namespace calvoro
