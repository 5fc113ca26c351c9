#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/ConvertOptions.h"
#include "cli/columns/ColumnOptions.h"

namespace CLI {
class App;
}

namespace calvoro {

/// What `calvoro-cli convert` was asked to do.
struct ConvertArguments {
    ConvertOptions options;
    ColumnOptions columns;                 // no fields: a line is one date
    bool lenient = false;                  // was asked for; `options` say it too
    bool scan = false;                     // dates stand in running text
    std::optional<std::string> inputFile;  // "-" is the standard input
    std::vector<std::string> dates;        // "-" stands for the lines of the standard input
};

/// Declares the options of the command; reading them sets the arguments.
/// arguments  freshly made; must outlive the command
/// words      that will be read: options are declared in groups, and a group that they do not mention is left
///            out, because declaring takes a good part of the time of a single conversion
void DeclareArguments(CLI::App& command, ConvertArguments& arguments, const std::vector<std::string>& words);

}  // namespace calvoro
