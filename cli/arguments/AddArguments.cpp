#include "cli/arguments/AddArguments.h"

#include "cli/arguments/ColumnKinds.h"
#include "cli/arguments/NotationKinds.h"
#include "cli/arguments/OptionKinds.h"
#include "cli/arguments/PairKinds.h"
#include "compute/FindDate.h"

namespace calvoro {
namespace {

constexpr const char* kAddFooter =
    R"(Adds days or months to a date, or takes them away when the number is negative, as a click
on Compute does. Months are added to CE, JC and LPM dates; a day beyond the end of the
month becomes its last day. Dates are read strictly, as convert reads them. Without
arguments, two columns of every line of the standard input are read, a date and a number,
and every line gives one line of output; a refused one gives an empty answer and a message
with its source and line number.

Exit status: 0 every pair has an answer; 1 some were refused, or reading or writing failed;
2 the arguments make no sense.
Limits: lines of at most 1 MiB; days from -2,100,000,000 to 2,100,000,000; numbers below
2,100,000,000.

Examples:
  calvoro-cli add 2024-01-31 90
  calvoro-cli add 2024-01-31 -1 --unit months --to CE,ISO --weekday
  calvoro-cli add --weekdays-only 2024-03-15 10
  calvoro-cli add --csv --header --field 2,4 --append --input orders.csv)";

}  // namespace

void DeclareArguments(CLI::App& command, AddArguments& arguments) {
    AddOptions& options = arguments.options;
    ConvertOptions& dates = options.dates;
    BeginCommand(command, "[OPTIONS] [DATE NUMBER]", kAddFooter);
    AddPairSource(command, arguments.source, {"DATE", "the date"},
                  {"NUMBER", "how many days or months: 90, -90, 1,000"});
    AddSourceOfPair(command, dates);
    AddValue(command, "--to", dates, TakeTargets, "how to write the answer (as the dates are written)")
        ->type_name("NOTATION,...|all")
        ->group(kPairGroup);
    AddChoice(command, "--unit", kUnitChoices, options.unit, "of the number (days)")
        ->type_name("days|months")
        ->group(kPairGroup);
    AddCountingFlags(command, options.includeFirstDate, options.weekdaysOnly);
    AddAnswerOptions(command, dates);
    AddColumnOptions(command, arguments.source.columns, "the columns of the date and of the number (1,2)");
    AddTextOptions(command, dates.text);

    command.callback([&command, &arguments] {
        AddOptions& settled = arguments.options;
        ConvertOptions& answers = settled.dates;
        if (answers.targets.empty()) {
            if (answers.reading == Reading::Auto) throw CLI::RequiresError("--from auto", "--to");
            answers.targets = {answers.from};
        }
        if (settled.unit == DifferenceUnit::Months) {
            if (answers.reading != Reading::Auto && !HasMonths(answers.from)) {
                throw CLI::RequiresError("--unit months", "--from CE, JC or LPM");
            }
            if (settled.weekdaysOnly) throw CLI::ExcludesError("--unit months", "--weekdays-only");
            if (settled.includeFirstDate) throw CLI::ExcludesError("--unit months", "--include-first-date");
        }
        SettlePairSource(command, arguments.source, answers, {});
        settled.delimiter = answers.delimiter = arguments.source.columns.delimiter;
    });
}

}  // namespace calvoro
