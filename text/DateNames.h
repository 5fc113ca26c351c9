#pragma once

// Names of weekdays and months by language. The tables are kept as they are, with empty elements for the
// languages that have none; the Shown... functions give what a person sees.

#include <array>
#include <cstdint>
#include <string_view>

#include "text/Language.h"

namespace calvoro {

/// Which of a month's two names.
enum class MonthNameForm { Full = 0, Abbreviation = 1 };

/// WeekdayNames[language][weekday].
/// language  0 to 2; Spanish is empty
/// weekday   0 Sunday to 6 Saturday
/// throws    std::out_of_range
std::string_view WeekdayName(LanguageNumber language, std::int32_t weekday);

/// MonthNames[language][month][form].
/// language  0 to 5; only English and German are filled
/// month     0 January to 11 December
/// throws    std::out_of_range
std::string_view MonthName(LanguageNumber language, std::int32_t month, MonthNameForm form);

/// The seven weekday names to show, Sunday first: the English ones where the language has none.
std::array<std::string_view, 7> ShownWeekdayNames(LanguageNumber language);

/// The full month name to show: the English one where the language has none.
std::string_view ShownMonthName(LanguageNumber language, std::int32_t month);

}  // namespace calvoro
