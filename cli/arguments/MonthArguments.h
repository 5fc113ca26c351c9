#pragma once

#include <optional>
#include <string>

#include "calendar/DateRecord.h"
#include "datetext/MonthText.h"
#include "text/Language.h"

namespace CLI {
class App;
}

namespace calvoro {

/// What `calvoro-cli month` was asked to do.
struct MonthArguments {
    std::optional<std::string> yearMonth;  // the current month when not given
    CalendarCode calendar = CalendarCode::G;
    WeekStart weekStart = WeekStart::Sunday;
    bool iso = false;
    bool withYear = false;
    LanguageNumber language = LanguageEnglish;
};

/// Declares the options of the command; reading them sets the arguments.
/// arguments  freshly made; must outlive the command
void DeclareArguments(CLI::App& command, MonthArguments& arguments);

}  // namespace calvoro
