#pragma once

#include "cli/arithmetic/Between.h"
#include "cli/arithmetic/PairFilter.h"

namespace CLI {
class App;
}

namespace calvoro {

/// What `calvoro-cli between` was asked to do.
struct BetweenArguments {
    BetweenOptions options;
    PairSource source;
};

/// Declares the options of the command; reading them sets the arguments.
/// arguments  freshly made; must outlive the command
void DeclareArguments(CLI::App& command, BetweenArguments& arguments);

}  // namespace calvoro
