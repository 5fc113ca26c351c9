#include "cli/arguments/HelpFormatter.h"

#include <utility>

namespace calvoro {

// One empty line between paragraphs, where the library leaves two.
std::string HelpFormatter::make_help(const CLI::App* command, std::string name,
                                     CLI::AppFormatMode mode) const {
    return CLI::detail::find_and_replace(CLI::Formatter::make_help(command, std::move(name), mode), "\n\n\n",
                                         "\n\n");
}

std::string HelpFormatter::make_usage(const CLI::App* /*command*/, std::string name) const {
    return "\nUsage: " + name + " " + usage_ + "\n";
}

std::string HelpFormatter::make_option_opts(const CLI::Option* option) const {
    const std::string type = option->get_type_size() == 0 ? std::string() : option->get_type_name();
    return type.empty() ? type : " " + type;
}

std::string HelpFormatter::make_option_name(const CLI::Option* option, bool isPositional) const {
    // A flag that turns something off is known by its name alone.
    const std::string name = CLI::Formatter::make_option_name(option, isPositional);
    return name.substr(0, name.find('{'));
}

}  // namespace calvoro
