#pragma once

// What `--help` prints, for the program and for each command.

#include <string_view>

namespace calvoro {

extern const std::string_view kProgramHelp;
extern const std::string_view kConvertHelp;
extern const std::string_view kComputeHelp;
extern const std::string_view kMonthHelp;
extern const std::string_view kTodayHelp;

}  // namespace calvoro
