#pragma once

namespace calvoro {

/// Runs the command that the arguments name, on the process's standard streams.
/// returns  the exit status: 0 all good, 1 some input was refused, 2 arguments that make no sense
int RunCommandLine(int argc, const char* const* argv);

}  // namespace calvoro
