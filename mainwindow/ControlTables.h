#pragma once

// The option buttons of the main window, a row each: what it stands for, its name, its caption. The order
// of the rows is the order on the window; the first row is what an unknown value falls back to.

#include <array>
#include <cstddef>
#include <string_view>

#include "calendar/CalendarNumber.h"
#include "compute/ComputeOptions.h"
#include "datetext/TextOptions.h"
#include "text/Language.h"
#include "text/NamedTexts.h"

namespace calvoro {

struct CalendarOption {
    CalendarNumber value;
    std::string_view firstName;   // of the button for the first date
    std::string_view secondName;  // of the button for the second date
    TextId caption;
};
inline constexpr std::array<CalendarOption, kOfferedNotations.size()> kCalendarOptions = {{
    {CalendarNumber::CE, "optFirstDateIsCE", "optSecondDateIsCE", TextId::CommonEraDate},
    {CalendarNumber::JC, "optFirstDateIsJC", "optSecondDateIsJC", TextId::JulianCalendarDate},
    {CalendarNumber::ISO, "optFirstDateIsISO", "optSecondDateIsISO", TextId::ISOWeekDate},
    {CalendarNumber::JDN, "optFirstDateIsJDN", "optSecondDateIsJDN", TextId::JulianDayNumber},
    {CalendarNumber::ORD, "optFirstDateIsORD", "optSecondDateIsORD", TextId::OrdinalDate},
    {CalendarNumber::LPM, "optFirstDateIsLPM", "optSecondDateIsLPM", TextId::LeapWeekMonthDate},
    {CalendarNumber::LPW, "optFirstDateIsLPW", "optSecondDateIsLPW", TextId::LeapWeekWeekDate},
}};
static_assert(HoldsEachOfferedNotation(kCalendarOptions, &CalendarOption::value));

struct DateFormatOption {
    DateFormat value;
    std::string_view name;
    std::string_view english;  // shown in lower case
    std::string_view german;
    std::array<std::string_view, 3> example;  // the fields of an example date, in this format's order
};
inline constexpr std::array<DateFormatOption, 3> kDateFormatOptions = {{
    {DateFormat::YMD, "optDateFormatIsYMD", "yyyy-mm-dd", "JJJJ-MM-TT", {"2012", "12", "31"}},
    {DateFormat::DMY, "optDateFormatIsDMY", "dd-mm-yyyy", "TT-MM-JJJJ", {"31", "12", "2012"}},
    {DateFormat::MDY, "optDateFormatIsMDY", "MM-DD-YYYY", "MM-TT-JJJJ", {"12", "31", "2012"}},
}};

struct DateSeparatorOption {
    char value;
    std::string_view name;
};
inline constexpr std::array<DateSeparatorOption, 3> kDateSeparatorOptions = {{
    {'-', "optSeparatorIsDash"},
    {'/', "optSeparatorIsSlash"},
    {'.', "optSeparatorIsDot"},
}};

struct ThousandsOption {
    char value;
    std::string_view name;
    std::string_view caption;  // empty: the named text "None"
};
inline constexpr std::array<ThousandsOption, 3> kThousandsOptions = {{
    {',', "optThousSepIsComma", ","},
    {'.', "optThousSepIsDot", "."},
    {kNoSeparator, "optThousSepNone", ""},
}};

struct UnitOption {
    DifferenceUnit value;
    std::string_view name;
    TextId caption;
};
inline constexpr std::array<UnitOption, 2> kUnitOptions = {{
    {DifferenceUnit::Days, "optDays", TextId::Days},
    {DifferenceUnit::Months, "optMonths", TextId::Months},
}};

struct LanguageOption {
    LanguageNumber value;
    std::string_view name;
    std::string_view caption;  // the language's own name, the same in every language
};
inline constexpr std::array<LanguageOption, 2> kLanguageOptions = {{
    {LanguageEnglish, "optLanguageIsEnglish", "English"},
    {LanguageGerman, "optLanguageIsGerman", "Deutsch"},
}};

inline constexpr int kNoOption = -1;

/// Index of the row with a value, or `otherwise` when there is none.
template <typename Row, std::size_t Size, typename Value>
constexpr int RowOf(const std::array<Row, Size>& table, Value value, int otherwise = 0) {
    for (std::size_t i = 0; i < Size; ++i) {
        if (table[i].value == value) return static_cast<int>(i);
    }
    return otherwise;
}

/// Value of the row with an index; of the first row for kNoOption.
template <typename Row, std::size_t Size>
constexpr auto ValueAt(const std::array<Row, Size>& table, int index) {
    return table[index == kNoOption ? 0 : static_cast<std::size_t>(index)].value;
}

}  // namespace calvoro
