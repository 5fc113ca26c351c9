#pragma once

// The named texts: short captions and messages in English and German. Texts are stored exactly as they are
// shown, slips of spelling included.

#include <array>
#include <cstdint>
#include <string_view>

#include "text/Language.h"

namespace calvoro {

/// One named text a row of the table, named after its English words.
enum class TextId : std::uint8_t {
    AWeekFromTodayIs,
    TodayIs,
    Calendar,
    CancelThisOperation,
    DateFormatCaption,
    DateSeparatorCaption,
    Clear,
    ClickToChangeCalendar,
    Close,
    CommonEra,
    CommonEraCalendar,
    CommonEraDate,
    Compute,
    Continue,
    CopyToClipboard,
    DateDifference,
    Day,
    Days,
    DisplayISOWeekDates,
    DisplayMonth,
    DisplayNextMonth,
    DisplayPreviousMonth,
    Enlarge,
    Error,
    ExcludingFirstDate,
    IncludingFirstDate,
    NotCountingWeekendDays,
    FirstDate,
    FirstDayOfWeek,
    Help,
    ISOWeekDate,
    HyphenInOrdinalAnd,
    InISOWeekDates,
    IncludeFirstDate,
    CountWeekendDays,
    InvalidInput,
    PleaseSpecifyYear,
    Julian,
    JulianCalendar,
    JulianCalendarDate,
    JulianDayNumber,
    LeapWeekMonthDate,
    LeapWeekWeekDate,
    Minus,
    Plus,
    Month,
    Months,
    None,
    Or,
    OrdinalDate,
    OrdinalExampleCompact,
    OrdinalExampleHyphenated,
    OutOfRange,
    OutputWindow,
    OutputWindowIsEmpty,
    Quit,
    Reset,
    SaveResultsOnQuit,
    SecondDate,
    SecondToFirst,
    ThisIsA,
    ThousandsSeparator,
    Today,
    Verbose,
    WithFinalDigitOfYear,
    Year,
    Years,
    To,
    Week,
    Weeks,
};
inline constexpr std::size_t kNamedTextCount = 70;

/// The text as it is stored: English, German, and an empty Spanish element.
/// throws  std::out_of_range for a language below 0 or above 2
std::string_view NamedText(TextId id, LanguageNumber language);

/// The text as it is shown: where the language has none, the English one.
/// throws  std::out_of_range as NamedText
std::string_view ShownText(TextId id, LanguageNumber language);

}  // namespace calvoro
