#pragma once

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

/// Settles what these and the column options mean together.
/// others  as for SettleColumns
/// throws  CLI::ParseError
void SettlePairSource(const CLI::App& command, PairSource& source, const ConvertOptions& answers,
                      std::string_view others);

}  // namespace calvoro
