#include "cli/ComputeCommand.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "cli/Diagnostics.h"
#include "cli/ExitStatus.h"
#include "cli/FinishOutput.h"
#include "cli/HeadlessWindow.h"
#include "cli/JsonLines.h"
#include "cli/LineEnds.h"
#include "cli/LineReader.h"
#include "cli/OutputStream.h"
#include "compute/ComputeClick.h"
#include "platform/Streams.h"
#include "platform/SystemClock.h"

namespace calvoro {
namespace {

// Why a click ended before it computed anything.
std::string_view ReasonToStop(const HeadlessWindow& window) {
    const bool hasDate =
        !window.InputText(InputBox::FirstDate).empty() || !window.InputText(InputBox::SecondDate).empty();
    return hasDate ? "nothing computed: all three boxes are filled; choose with --clear which one to empty"
                   : "nothing computed: a date is missing";
}

int ComputeOnce(const ComputeRequest& request, Diagnostics& diagnostics) {
    const SystemClock clock;
    HeadlessWindow window(request, clock);
    ComputeState state;
    const ClickOutcome outcome = cmdCompute_Click(window, state);
    for (const ShownMessage& message : window.Messages()) diagnostics.Print(OnOneLine(message.text));
    if (outcome == ClickOutcome::Stopped) diagnostics.Print(ReasonToStop(window));
    OutputStream output(kStandardOutput);
    // A failed computation ends its line although nothing stands in it; an empty line is no result.
    if (window.Output() != "\r\n") output.Append(WithLineFeeds(window.Output()));
    const bool hasResult = outcome == ClickOutcome::Result && !LacksItsResult(window.Output());
    return FinishOutput(output, hasResult ? kExitAllGood : kExitRefused, diagnostics);
}

int AnswerOnceInJson(const ComputeRequest& request, Diagnostics& diagnostics) {
    std::string response;
    AnswerRequest(request, SystemClock(), response);
    OutputStream output(kStandardOutput);
    output.Append(response);
    output.Append('\n');
    return FinishOutput(output, kExitAllGood, diagnostics);
}

int AnswerJsonLines(Diagnostics& diagnostics) {
    const SystemClock clock;
    OutputStream output(kStandardOutput);
    LineReader reader(kStandardInput, output);
    int status = kExitAllGood;
    std::string_view line;
    std::string response;
    std::uint64_t number = 0;
    while (!output.HasFailed() && reader.Next(line)) {
        response.clear();
        ++number;
        if (reader.IsCut()) {
            AppendJsonFault("request: longer than a line may be", number, response);
            status = kExitRefused;
        } else if (!AnswerJsonLine(line, number, clock, response)) {
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

int RunCompute(const ComputeArguments& arguments) {
    Diagnostics diagnostics(kStandardError);
    if (arguments.jsonLines) return AnswerJsonLines(diagnostics);
    if (arguments.json) return AnswerOnceInJson(arguments.request, diagnostics);
    return ComputeOnce(arguments.request, diagnostics);
}

}  // namespace calvoro
