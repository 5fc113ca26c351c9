#include "cli/CommandLine.h"

#include <CLI/CLI.hpp>
#include <array>
#include <string>
#include <type_traits>
#include <vector>

#include "cli/ComputeCommand.h"
#include "cli/ConvertCommand.h"
#include "cli/Diagnostics.h"
#include "cli/ExitStatus.h"
#include "cli/FinishOutput.h"
#include "cli/MonthCommand.h"
#include "cli/OutputStream.h"
#include "cli/TodayCommand.h"
#include "cli/arguments/AddArguments.h"
#include "cli/arguments/BetweenArguments.h"
#include "cli/arguments/OptionKinds.h"
#include "cli/arguments/ReadWords.h"
#include "platform/Streams.h"

namespace calvoro {
namespace {

constexpr const char* kProgramName = "calvoro-cli";
constexpr const char* kHelpCommand = "help";
constexpr const char* kSummary = "Converts dates between seven notations and does arithmetic with them.";
constexpr const char* kProgramFooter = R"(Notations:
  CE     Common Era date (Gregorian, with year 0 and negative years)    2024-03-15
  ISO    ISO 8601 week date                                             2024-W11-5
  JC     Julian Calendar date                                           2024-03-02
  ORD    ordinal date, years 1 to 9999                                  2024-075
  LPM    Vantorel Leap Week month date                                  2024-03-19
  LPW    Vantorel Leap Week week date                                   2024-12-5
  JDN    Julian day number                                              2460385

Exit status: 0 all good, 1 some input was refused or could not be read or written,
2 the arguments make no sense.

Examples:
  calvoro-cli convert --from CE --to ISO,JDN 2024-03-15
  calvoro-cli convert --from CE --to ISO --csv --header --field 2 --input people.csv
  calvoro-cli between 2021-03-01 2024-08-08
  calvoro-cli add 2024-01-31 90
  calvoro-cli compute --first 2021-03-04 --difference 10 --second-calendar JC
  calvoro-cli month 2024-09 --iso
  calvoro-cli today --all
  calvoro-cli help convert)";

int AnswerOutcome(const ReadOutcome& outcome, const std::string& name) {
    Diagnostics diagnostics(kStandardError);
    if (outcome.fault.empty()) {
        OutputStream output(kStandardOutput);
        output.Append(outcome.answer);
        return FinishOutput(output, kExitAllGood, diagnostics);
    }
    diagnostics.Print(outcome.fault + " (try '" + name + " --help')");
    return kExitUsage;
}

// Never freed: the end of the process does that faster, and a start is felt where a script makes many.
CLI::App& NewApp(const char* summary, const std::string& name) {
    static CLI::App* app = nullptr;
    app = new CLI::App(summary, name);
    return *app;
}

int RunBetween(const BetweenArguments& arguments) {
    Between work(arguments.options);
    return AnswerPairs(arguments.source, work);
}

int RunAdd(const AddArguments& arguments) {
    Add work(arguments.options);
    return AnswerPairs(arguments.source, work);
}

struct Command {
    const char* name;
    const char* summary;
    int (*answer)(const Command& command, const std::vector<std::string>& words);
};

template <typename Arguments, int (*run)(const Arguments& arguments)>
int Answer(const Command& command, const std::vector<std::string>& words) {
    CLI::App& app = NewApp(command.summary, std::string(kProgramName) + " " + command.name);
    Arguments arguments;
    if constexpr (std::is_same_v<Arguments, ConvertArguments>) {
        DeclareArguments(app, arguments, words);
    } else {
        DeclareArguments(app, arguments);
    }
    const ReadOutcome outcome = ReadWords(app, words);
    return outcome.Runs() ? run(arguments) : AnswerOutcome(outcome, app.get_name());
}

constexpr std::array<Command, 6> kCommands = {{
    {"convert", "Dates from one notation into others, one a line.", Answer<ConvertArguments, RunConvert>},
    {"between", "The number of days between two dates.", Answer<BetweenArguments, RunBetween>},
    {"add", "A date plus days or months.", Answer<AddArguments, RunAdd>},
    {"compute", "One click on Compute: a date converted, days counted, or added.",
     Answer<ComputeArguments, RunCompute>},
    {"month", "A month as a grid of weeks.", Answer<MonthArguments, RunMonth>},
    {"today", "Today and a week from today, as the main window shows them.",
     Answer<TodayArguments, RunToday>},
}};

// What the program answers by itself: its help, its version, and that no command is asked for.
int AnswerWithoutCommand(const std::vector<std::string>& words) {
    CLI::App& program = NewApp(kSummary, kProgramName);
    BeginCommand(program, "COMMAND [OPTIONS] [ARGUMENTS]", kProgramFooter);
    for (const Command& command : kCommands) {
        program.add_subcommand(command.name, command.summary)->group("Commands");
    }
    program.add_subcommand(kHelpCommand, "The help of a command.")->group("Commands");
    ReadOutcome outcome = ReadWords(program, words);
    if (outcome.Runs()) outcome.fault = "A command is required";
    return AnswerOutcome(outcome, program.get_name());
}

const Command* FindCommand(const std::string& name) {
    for (const Command& command : kCommands) {
        if (name == command.name) return &command;
    }
    return nullptr;
}

// "help" is "--help", and "help COMMAND" is "COMMAND --help".
std::vector<std::string> WithHelpOption(std::vector<std::string> words) {
    if (words.empty() || words.front() != kHelpCommand) return words;
    words.erase(words.begin());
    if (words.empty() || FindCommand(words.front()) != nullptr) words.emplace_back("--help");
    return words;
}

}  // namespace

int RunCommandLine(int argc, const char* const* argv) {
    std::vector<std::string> words = WithHelpOption(PrepareStreams(argc, argv));
    if (words.empty()) return AnswerWithoutCommand(words);
    const Command* const command = FindCommand(words.front());
    if (command == nullptr) return AnswerWithoutCommand(words);
    words.erase(words.begin());
    return command->answer(*command, words);
}

}  // namespace calvoro
