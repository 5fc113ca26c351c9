#pragma once

#include "cli/ComputeRequest.h"

namespace CLI {
class App;
}

namespace calvoro {

/// What `calvoro-cli compute` was asked to do.
struct ComputeArguments {
    ComputeRequest request;
    bool json = false;       // the answer is JSON
    bool jsonLines = false;  // and there is one for every line of the standard input, which is a request
};

/// Declares the options of the command; reading them sets the arguments.
/// arguments  freshly made; must outlive the command
void DeclareArguments(CLI::App& command, ComputeArguments& arguments);

}  // namespace calvoro
