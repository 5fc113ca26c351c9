#include "app/Arguments.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace calvoro {

namespace {

struct ToolkitOption {
    std::string_view name;  // without the hyphens; Qt takes one or two
    bool takesValue;
};

// The options that Qt and its X11 part take out of the command line themselves.
constexpr std::array<ToolkitOption, 18> kToolkitOptions = {{
    {"display", true},
    {"geometry", true},
    {"icon", true},
    {"name", true},
    {"platform", true},
    {"platformpluginpath", true},
    {"platformtheme", true},
    {"plugin", true},
    {"qwindowgeometry", true},
    {"qwindowicon", true},
    {"qwindowtitle", true},
    {"session", true},
    {"style", true},
    {"stylesheet", true},
    {"title", true},
    {"nograb", false},
    {"reverse", false},
    {"sync", false},
}};

const ToolkitOption* FindToolkitOption(std::string_view argument) {
    if (!argument.starts_with('-')) return nullptr;
    argument.remove_prefix(argument.starts_with("--") ? 2 : 1);
    const auto* const found =
        std::find_if(kToolkitOptions.begin(), kToolkitOptions.end(),
                     [argument](const auto& option) { return option.name == argument; });
    return found == kToolkitOptions.end() ? nullptr : found;
}

bool AnyIs(std::span<const std::string_view> arguments, std::string_view brief, std::string_view full) {
    return std::any_of(arguments.begin(), arguments.end(),
                       [=](std::string_view argument) { return argument == brief || argument == full; });
}

}  // namespace

ReadArguments ReadProgramArguments(std::span<const std::string_view> arguments) {
    if (AnyIs(arguments, "-h", "--help")) return {Request::Help, {}};
    if (AnyIs(arguments, "-V", "--version")) return {Request::Version, {}};
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const ToolkitOption* const option = FindToolkitOption(arguments[i]);
        if (option == nullptr || (option->takesValue && i + 1 == arguments.size())) {
            return {Request::Refuse, std::string(arguments[i])};
        }
        if (option->takesValue) ++i;
    }
    return {};
}

std::string_view HelpMessage() {
    return "Usage: calvoro [OPTION]...\n"
           "Shows the window of Calvoro, a date calculator.\n"
           "\n"
           "  -h, --help        print this help\n"
           "  -V, --version     print the version\n"
           "  -platform NAME, -display NAME, -style NAME and Qt's other options are handed on to it\n"
           "\n"
           "What was chosen and typed is kept in calvoro.usr in the folder Calvoro of the configuration "
           "folder\n"
           "($XDG_CONFIG_HOME, or ~/.config). calvoro-cli does the same computations without a display.\n";
}

}  // namespace calvoro
