#pragma once

// What the program was asked to do on its command line, decided without Qt: help and version are answered
// where there is no display.

#include <span>
#include <string>
#include <string_view>

namespace calvoro {

enum class Request { ShowWindow, Help, Version, Refuse };

struct ReadArguments {
    Request request = Request::ShowWindow;
    std::string refused;  // the argument that is not known, when the request is Refuse
};

/// Reads the arguments after the program's name. Help and version win over whatever stands beside them.
/// Options of the toolkit, such as -platform NAME, are accepted and left to it.
ReadArguments ReadProgramArguments(std::span<const std::string_view> arguments);

/// What --help prints.
std::string_view HelpMessage();

}  // namespace calvoro
