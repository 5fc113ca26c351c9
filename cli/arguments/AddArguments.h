#pragma once

#include "cli/arithmetic/Add.h"
#include "cli/arithmetic/PairFilter.h"

namespace CLI {
class App;
}

namespace calvoro {

/// What `calvoro-cli add` was asked to do.
struct AddArguments {
    AddOptions options;
    PairSource source;
};

/// Declares the options of the command; reading them sets the arguments.
/// arguments  freshly made; must outlive the command
void DeclareArguments(CLI::App& command, AddArguments& arguments);

}  // namespace calvoro
