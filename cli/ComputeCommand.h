#pragma once

#include "cli/arguments/ComputeArguments.h"

namespace calvoro {

/// `calvoro-cli compute`: one Compute click told by options, or one for every line of JSON.
/// returns  the exit status
int RunCompute(const ComputeArguments& arguments);

}  // namespace calvoro
