#include "cli/arguments/PairKinds.h"

#include "cli/arguments/ColumnKinds.h"

namespace calvoro {

void AddPairSource(CLI::App& command, PairSource& source, const PairName& first, const PairName& second) {
    const auto set = [](std::optional<std::string>& to) {
        return [&to](const std::string& text) { to = text; };
    };
    CLI::Option* const one =
        command.add_option_function<std::string>(first.name, set(source.first), first.description);
    CLI::Option* const other =
        command.add_option_function<std::string>(second.name, set(source.second), second.description);
    one->type_name("")->needs(other);
    other->type_name("");
    command
        .add_option("--input", source.input,
                    "read two columns of the lines of a file; \"-\" is the standard\n"
                    "input, which is read anyway without arguments")
        ->type_name("FILE")
        ->excludes(one);
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
