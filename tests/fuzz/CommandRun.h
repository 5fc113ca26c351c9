#pragma once

// Runs a command of the command line inside the process: its standard streams are files in memory, or a
// source that gives its input in pieces.

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace calvoro::fuzz {

/// What a command left behind.
struct CommandResult {
    int status = 0;
    std::string output;
    std::string messages;

    friend bool operator==(const CommandResult&, const CommandResult&) = default;
};

/// Runs a command on an input.
/// piece    how many bytes every read of the standard input gives at most; 0: all of them at once. More than
///          asked for when the system has no room for so many pieces
/// returns  its exit status and what it wrote
CommandResult RunCommand(std::string_view input, std::size_t piece, const std::function<int()>& command);

}  // namespace calvoro::fuzz
