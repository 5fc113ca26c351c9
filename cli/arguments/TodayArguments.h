#pragma once

#include <optional>

#include "calendar/CalendarNumber.h"
#include "calendar/Today.h"
#include "text/Language.h"

namespace CLI {
class App;
}

namespace calvoro {

/// What `calvoro-cli today` was asked to do.
struct TodayArguments {
    CalendarNumber calendar = CalendarNumber::CE;
    bool all = false;
    std::optional<LocalDate> today;  // the system's date when not given
    LanguageNumber language = LanguageEnglish;
};

/// Declares the options of the command; reading them sets the arguments.
/// arguments  freshly made; must outlive the command
void DeclareArguments(CLI::App& command, TodayArguments& arguments);

}  // namespace calvoro
