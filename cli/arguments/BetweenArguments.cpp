#include "cli/arguments/BetweenArguments.h"

#include "cli/arguments/ColumnKinds.h"
#include "cli/arguments/NotationKinds.h"
#include "cli/arguments/OptionKinds.h"
#include "cli/arguments/PairKinds.h"

namespace calvoro {
namespace {

constexpr const char* kBetweenFooter =
    R"(Counts the days from the first date to the second as a click on Compute does: negative when
the second is the earlier. Dates are read strictly, as convert reads them. Without dates,
two columns of every line of the standard input are read, and every line gives one line of
output; a refused one gives an empty answer and a message with its source and line number.

Exit status: 0 every pair has an answer; 1 some were refused, or reading or writing failed;
2 the arguments make no sense.
Limits: lines of at most 1 MiB; days from -2,100,000,000 to 2,100,000,000.

Examples:
  calvoro-cli between 2021-03-01 2024-08-08 --breakdown
  calvoro-cli between --weekdays-only --include-first-date 2024-03-01 2024-03-31
  calvoro-cli between --second-from ISO 2024-03-01 2024-W11-5
  calvoro-cli between --csv --header --field 3,4 --append --input stays.csv)";

}  // namespace

void DeclareArguments(CLI::App& command, BetweenArguments& arguments) {
    BetweenOptions& options = arguments.options;
    ConvertOptions& first = options.first;
    BeginCommand(command, "[OPTIONS] [FIRST SECOND]", kBetweenFooter);
    AddPairSource(command, arguments.source, {"FIRST", "the first date"}, {"SECOND", "the second date"});
    AddSourceOfPair(command, first);
    AddValue(command, "--second-from", options.second, TakeSource, "how the second one is, if otherwise")
        ->type_name("NOTATION")
        ->group(kPairGroup);
    AddCountingFlags(command, options.includeFirstDate, options.weekdaysOnly);
    command
        .add_flag("--breakdown", options.breakdown,
                  "add a column with years, months or weeks, and days, where a\n"
                  "result line of compute has them")
        ->group(kPairGroup);
    command.add_flag("--csv", first.csv, "columns are comma-separated values, quoted where needed")
        ->group(kPairGroup);
    AddColumnOptions(command, arguments.source.columns, "the two columns of the dates (1,2)");
    AddTextOptions(command, first.text);

    command.callback([&command, &arguments] {
        BetweenOptions& settled = arguments.options;
        if (command.count("--second-from") == 0) {
            settled.second.from = settled.first.from;
            settled.second.reading = settled.first.reading;
        }
        settled.second.text = settled.first.text;
        SettlePairSource(command, arguments.source, settled.first, settled.breakdown ? ", " : "");
        settled.delimiter = arguments.source.columns.delimiter;
    });
}

}  // namespace calvoro
