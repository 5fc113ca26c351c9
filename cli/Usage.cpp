#include "cli/Usage.h"

#include <unistd.h>

#include <cerrno>
#include <string>
#include <string_view>
#include <system_error>

#include "cli/ExitStatus.h"

namespace calvoro {

int AnswerUsage(const ArgumentsOutcome& outcome, std::string_view command, std::string_view help) {
    Diagnostics diagnostics(STDERR_FILENO);
    if (outcome.fault.empty()) {
        OutputStream output(STDOUT_FILENO);
        output.Append(outcome.versionIsWanted ? "calvoro-cli " CALVORO_VERSION "\n" : help);
        return FinishOutput(output, kExitAllGood, diagnostics);
    }
    std::string message = outcome.fault + " (try 'calvoro-cli ";
    if (!command.empty()) message.append(command).append(" ");
    diagnostics.Print(message.append("--help')"));
    return kExitUsage;
}

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
