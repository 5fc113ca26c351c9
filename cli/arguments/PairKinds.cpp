#include "cli/arguments/PairKinds.h"

#include "cli/arguments/ColumnKinds.h"
#include "cli/arguments/NotationKinds.h"
#include "cli/arguments/OptionKinds.h"

namespace calvoro {

void AddPairSource(CLI::App& command, PairSource& source, const PairName& first, const PairName& second) {
    CLI::Option* const one = AddText(command, first.name, source.first, first.description);
    CLI::Option* const other = AddText(command, second.name, source.second, second.description);
    one->type_name("")->needs(other);
    other->type_name("");
    command
        .add_option("--input", source.input,
                    "read two columns of the lines of a file; \"-\" is the standard\n"
                    "input, which is read anyway without arguments")
        ->type_name("FILE")
        ->excludes(one);
}

void AddSourceOfPair(CLI::App& command, ConvertOptions& dates) {
    AddValue(command, "--from", dates, TakeSource,
             "how the dates are written: CE, ISO, JC, ORD, LPM, LPW, JDN,\nauto (CE)")
        ->type_name("NOTATION")
        ->group(kPairGroup);
}

void AddCountingFlags(CLI::App& command, bool& includeFirstDate, bool& weekdaysOnly) {
    command.add_flag("--include-first-date", includeFirstDate, "count the first date as well")
        ->group(kPairGroup);
    command.add_flag("--weekdays-only", weekdaysOnly, "count Monday to Friday only")->group(kPairGroup);
}

void SettlePairSource(const CLI::App& command, PairSource& source, const ConvertOptions& answers,
                      std::string_view others) {
    ColumnOptions& columns = source.columns;
    SettleColumns(command, columns, answers, others);
    if (columns.fields.empty()) columns.fields = {0, 1};
    if (columns.fields.size() != 2) throw CLI::ValidationError("--field", "must be two columns");
    if (!source.first) return;
    for (const char* option : {"--field", "--delimiter", "--append", "--header"}) {
        if (command.count(option) > 0) throw CLI::ExcludesError(option, "arguments");
    }
}

}  // namespace calvoro
