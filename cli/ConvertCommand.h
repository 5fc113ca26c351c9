#pragma once

#include "cli/arguments/ConvertArguments.h"

namespace calvoro {

/// `calvoro-cli convert`: dates of the arguments or lines of the input, one output line each.
/// returns  the exit status
int RunConvert(const ConvertArguments& arguments);

}  // namespace calvoro
