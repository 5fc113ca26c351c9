#pragma once

#include <CLI/CLI.hpp>
#include <string_view>

#include "cli/ConvertOptions.h"
#include "cli/columns/ColumnOptions.h"

namespace calvoro {

/// "--field", "--delimiter", "--append" and "--header". "--csv" is declared by the command.
/// fields  what the help says of --field
void AddColumnOptions(CLI::App& command, ColumnOptions& columns, const char* fields);

/// Settles what the column options and --csv mean together.
/// answers  how answers are written
/// others   characters that the output may hold beside dates, names and numbers; quoted with --csv
/// throws   CLI::ValidationError when the delimiter could stand in an answer
void SettleColumns(const CLI::App& command, ColumnOptions& columns, const ConvertOptions& answers,
                   std::string_view others);

}  // namespace calvoro
