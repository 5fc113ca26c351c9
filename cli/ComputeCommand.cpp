#include "cli/ComputeCommand.h"

#include <unistd.h>

#include <string_view>
#include <utility>

#include "cli/Arguments.h"
#include "cli/Diagnostics.h"
#include "cli/ExitStatus.h"
#include "cli/HeadlessWindow.h"
#include "cli/HelpTexts.h"
#include "cli/JsonLines.h"
#include "cli/LineEnds.h"
#include "cli/LineReader.h"
#include "cli/OutputStream.h"
#include "cli/Usage.h"
#include "compute/ComputeClick.h"
#include "platform/SystemClock.h"
#include "text/BuiltInProgramTexts.h"
#include "text/ProgramTextFile.h"

namespace calvoro {
namespace {

int ComputeOnce(ComputeRequest request, Diagnostics& diagnostics) {
    const SystemClock clock;
    HeadlessWindow window(std::move(request), clock);
    ComputeState state;
    const ClickOutcome outcome = cmdCompute_Click(window, state);
    for (const ShownMessage& message : window.Messages()) {
        diagnostics.PrintLine(message.title + " " + OnOneLine(message.text));
    }
    OutputStream output(STDOUT_FILENO);
    // A failed computation ends its line although nothing stands in it; an empty line is no result.
    if (window.Output() != "\r\n") output.Append(WithLineFeeds(window.Output()));
    return FinishOutput(output, outcome == ClickOutcome::Result ? kExitAllGood : kExitRefused, diagnostics);
}

int AnswerJsonLines(Diagnostics& diagnostics) {
    const SystemClock clock;
    OutputStream output(STDOUT_FILENO);
    LineReader reader(STDIN_FILENO, output);
    int status = kExitAllGood;
    std::string_view line;
    std::string response;
    while (!output.HasFailed() && reader.Next(line)) {
        response.clear();
        if (reader.IsCut()) {
            AppendJsonFault("request: longer than a line may be", response);
            status = kExitRefused;
        } else if (!AnswerJsonLine(line, clock, response)) {
            status = kExitRefused;
        }
        response += '\n';
        output.Append(response);
    }
    if (reader.Error() != 0) {
        PrintSystemError("stdin", reader.Error(), diagnostics);
        status = kExitRefused;
    }
    return FinishOutput(output, status, diagnostics);
}

}  // namespace

int RunCompute(const std::vector<std::string>& words) {
    ComputeArguments arguments;
    const ArgumentsOutcome outcome = ReadComputeArguments(words, arguments);
    if (!outcome.Runs()) return AnswerUsage(outcome, "compute", kComputeHelp);

    LoadProgramTextsFromMemory(BuiltInProgramTexts());
    Diagnostics diagnostics(STDERR_FILENO);
    if (arguments.json) return AnswerJsonLines(diagnostics);
    return ComputeOnce(std::move(arguments.request), diagnostics);
}

}  // namespace calvoro
