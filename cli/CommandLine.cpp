#include "cli/CommandLine.h"

#include <array>
#include <csignal>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Arguments.h"
#include "cli/ComputeCommand.h"
#include "cli/ConvertCommand.h"
#include "cli/HelpTexts.h"
#include "cli/MonthCommand.h"
#include "cli/QuotedText.h"
#include "cli/TodayCommand.h"
#include "cli/Usage.h"

namespace calvoro {
namespace {

struct Command {
    std::string_view name;
    int (*run)(const std::vector<std::string>& words);
};
constexpr std::array<Command, 4> kCommands = {{
    {"convert", RunConvert},
    {"compute", RunCompute},
    {"month", RunMonth},
    {"today", RunToday},
}};

}  // namespace

int RunCommandLine(int argc, const char* const* argv) {
    // Writing to a reader that went away shall fail, not kill: the output's end decides how to leave.
    std::signal(SIGPIPE, SIG_IGN);

    if (argc < 2) return AnswerUsage({false, false, "no command given"}, "", kProgramHelp);
    const std::string_view word = argv[1];
    const std::vector<std::string> rest(argv + 2, argv + argc);
    for (const Command& command : kCommands) {
        if (command.name == word) return command.run(rest);
    }
    if (word == "--help" || word == "-h") return AnswerUsage({true, false, {}}, "", kProgramHelp);
    if (word == "--version") return AnswerUsage({false, true, {}}, "", kProgramHelp);
    const std::string_view kind = word.substr(0, 1) == "-" ? "unknown option " : "unknown command ";
    return AnswerUsage({false, false, std::string(kind) + QuotedText(word)}, "", kProgramHelp);
}

}  // namespace calvoro
