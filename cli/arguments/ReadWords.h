#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace calvoro {

/// What the words of the command line came to, beside the arguments they set.
struct ReadOutcome {
    std::string answer;  // the help or the version, when one was asked for
    std::string fault;   // why the words make no sense, fit to be printed; else empty

    bool Runs() const { return answer.empty() && fault.empty(); }
};

/// Reads the words behind the name of a program or command.
/// app  with its options declared
ReadOutcome ReadWords(CLI::App& app, const std::vector<std::string>& words);

}  // namespace calvoro
