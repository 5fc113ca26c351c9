#pragma once

// How every command ends: with its help, with a complaint about its arguments, or with its output handed to
// the system.

#include <string_view>

#include "cli/Arguments.h"
#include "cli/Diagnostics.h"
#include "cli/OutputStream.h"

namespace calvoro {

/// Prints the help or the version that was asked for, or the fault of the arguments and where to find help.
/// command  the command's name; empty for the program itself
/// returns  the exit status
int AnswerUsage(const ArgumentsOutcome& outcome, std::string_view command, std::string_view help);

/// Prints what the system says about an error of its own: "nosuch: No such file or directory".
void PrintSystemError(std::string_view what, int error, Diagnostics& diagnostics);

/// Hands the rest of the output to the system. A reader that went away is no fault; any other failure is
/// told.
/// returns  the exit status: `status`, unless writing failed
int FinishOutput(OutputStream& output, int status, Diagnostics& diagnostics);

}  // namespace calvoro
