#pragma once

// Everything that is carried from one run to the next, with the factory values as initial values.

#include <cstdint>
#include <string>

#include "calendar/CalendarNumber.h"
#include "compute/ComputeOptions.h"
#include "datetext/MonthText.h"
#include "datetext/TextOptions.h"
#include "text/Language.h"

namespace calvoro {

struct Settings {
    LanguageNumber interfaceLanguage = LanguageEnglish;
    DateFormat dateFormat = DateFormat::YMD;
    char dateSeparator = '-';
    char thousandsSeparator = ',';  // kNoSeparator for none
    CalendarNumber todayCalendar = CalendarNumber::CE;
    CalendarNumber firstCalendar = CalendarNumber::CE;
    CalendarNumber secondCalendar = CalendarNumber::CE;
    bool includeFirstDate = false;
    bool includeWeekends = true;
    bool verbose = true;
    bool hyphen = true;
    bool saveOutput = true;
    WeekStart monthWeekStart = WeekStart::Sunday;
    CalendarNumber monthCalendar = CalendarNumber::CE;  // CE or JC
    std::string firstDate;
    std::string dateDiff;
    std::string secondDate;
    std::string output;  // lines end with CR LF
    DifferenceUnit differenceUnit = DifferenceUnit::Days;

    friend bool operator==(const Settings&, const Settings&) = default;
};

}  // namespace calvoro
