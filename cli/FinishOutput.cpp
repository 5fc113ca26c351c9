#include "cli/FinishOutput.h"

#include <cerrno>
#include <string>
#include <system_error>

#include "cli/ExitStatus.h"

namespace calvoro {

void PrintSystemError(std::string_view what, int error, Diagnostics& diagnostics) {
    diagnostics.Print(std::string(what) + ": " + std::generic_category().message(error));
}

int FinishOutput(OutputStream& output, int status, Diagnostics& diagnostics) {
    output.Flush();
    if (!output.HasFailed() || output.Error() == EPIPE) return status;
    PrintSystemError("cannot write the output", output.Error(), diagnostics);
    return kExitRefused;
}

}  // namespace calvoro
