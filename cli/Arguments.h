#pragma once

// The arguments of the four commands, as structs.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "calendar/CalendarNumber.h"
#include "calendar/DateRecord.h"
#include "calendar/Today.h"
#include "cli/ComputeRequest.h"
#include "cli/Conversion.h"
#include "datetext/MonthText.h"
#include "text/Language.h"

namespace calvoro {

/// Whether a command runs with its arguments.
struct ArgumentsOutcome {
    bool helpIsWanted = false;
    bool versionIsWanted = false;
    std::string fault;  // why the arguments make no sense; empty when they do

    bool Runs() const { return !helpIsWanted && !versionIsWanted && fault.empty(); }
};

struct ConvertArguments {
    ConvertOptions options;
    std::optional<std::string> inputFile;  // "-" is the standard input
    std::vector<std::string> dates;        // "-" stands for the lines of the standard input
};

struct ComputeArguments {
    ComputeRequest request;
    bool json = false;  // requests come as lines of the standard input
};

struct MonthArguments {
    std::optional<std::string> yearMonth;
    CalendarCode calendar = CalendarCode::G;
    WeekStart weekStart = WeekStart::Sunday;
    bool iso = false;
    bool withYear = false;
    LanguageNumber language = LanguageEnglish;
};

struct TodayArguments {
    CalendarNumber calendar = CalendarNumber::CE;
    bool all = false;
    std::optional<LocalDate> today;
    LanguageNumber language = LanguageEnglish;
};

/// Each reads the words behind the name of its command.
/// arguments  freshly made; what the words do not tell stays as it is
/// returns    whether the command runs with them
ArgumentsOutcome ReadConvertArguments(const std::vector<std::string>& words, ConvertArguments& arguments);
ArgumentsOutcome ReadComputeArguments(const std::vector<std::string>& words, ComputeArguments& arguments);
ArgumentsOutcome ReadMonthArguments(const std::vector<std::string>& words, MonthArguments& arguments);
ArgumentsOutcome ReadTodayArguments(const std::vector<std::string>& words, TodayArguments& arguments);

}  // namespace calvoro
