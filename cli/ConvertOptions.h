#pragma once

#include <vector>

#include "calendar/CalendarNumber.h"
#include "cli/DayReader.h"
#include "datetext/TextOptions.h"
#include "quicktext/QuickWriter.h"

namespace calvoro {

/// How dates are converted, and what one line of the output holds.
struct ConvertOptions {
    CalendarNumber from = CalendarNumber::CE;  // plays no part when the texts tell it
    Reading reading = Reading::Strict;
    std::vector<CalendarNumber> targets;
    bool emptyWhereUnwritable = false;  // a day that a target cannot write gets an empty field, no refusal
    TextOptions text{.thousandsSeparator = kNoSeparator, .digitGrouping = {}};
    EraStyle eraStyle = EraStyle::Astronomical;
    bool tag = false;       // behind every date its tag
    bool weekday = false;   // a last field with the English weekday
    bool csv = false;       // fields are quoted where they need it
    char delimiter = '\t';  // between fields
};

}  // namespace calvoro
