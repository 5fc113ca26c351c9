#pragma once

// What the commands that answer pairs declare alike.

#include <CLI/CLI.hpp>
#include <string_view>

#include "cli/ConvertOptions.h"
#include "cli/arithmetic/PairFilter.h"

namespace calvoro {

/// How one of two arguments is called, and what it is.
struct PairName {
    const char* name;
    const char* description;
};

/// The two positional arguments of a pair, and "--input".
void AddPairSource(CLI::App& command, PairSource& source, const PairName& first, const PairName& second);

/// Where the help lists the options below, and those of the command that belong beside them.
inline constexpr const char* kPairGroup = "Dates and counting";

/// "--from", how dates are read.
void AddSourceOfPair(CLI::App& command, ConvertOptions& dates);

/// "--include-first-date" and "--weekdays-only".
void AddCountingFlags(CLI::App& command, bool& includeFirstDate, bool& weekdaysOnly);

/// Settles what these and the column options mean together.
/// others  as for SettleColumns
/// throws  CLI::ParseError
void SettlePairSource(const CLI::App& command, PairSource& source, const ConvertOptions& answers,
                      std::string_view others);

}  // namespace calvoro
