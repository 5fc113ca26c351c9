#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <type_traits>
#include <vector>

#include "cli/arguments/ConvertArguments.h"
#include "cli/arguments/ReadWords.h"

namespace calvoro {

using Words = std::vector<std::string>;

/// Reads words as the arguments of a command.
template <typename Arguments>
ReadOutcome ReadArguments(const Words& words, Arguments& arguments) {
    CLI::App command("", "command");
    if constexpr (std::is_same_v<Arguments, ConvertArguments>) {
        DeclareArguments(command, arguments, words);
    } else {
        DeclareArguments(command, arguments);
    }
    return ReadWords(command, words);
}

}  // namespace calvoro
