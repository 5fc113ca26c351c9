#pragma once

// How every command ends: with its output handed to the system, or with what the system says against it.

#include <string_view>

#include "cli/Diagnostics.h"
#include "cli/OutputStream.h"

namespace calvoro {

/// Prints what the system says about an error of its own: "nosuch: No such file or directory".
void PrintSystemError(std::string_view what, int error, Diagnostics& diagnostics);

/// Hands the rest of the output to the system. A reader that went away is no fault; any other failure is
/// told.
/// returns  the exit status: `status`, unless writing failed
int FinishOutput(OutputStream& output, int status, Diagnostics& diagnostics);

}  // namespace calvoro
