#pragma once

#include "cli/arguments/ConvertArguments.h"

namespace calvoro {

/// `calvoro-cli convert --scan`: running text, the dates in it converted, everything else as it is. A day
/// that the target cannot write stays as it is too, and is told. returns  the exit status
int RunScan(const ConvertArguments& arguments);

}  // namespace calvoro
