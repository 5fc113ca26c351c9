#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace calvoro {

/// Lays out the help of the program and of a command as the library does, but for the line of usage, which
/// names arguments that are no options, and for a list of options without remarks on what excludes what.
class HelpFormatter final : public CLI::Formatter {
public:
    /// usage  what follows the command's name in the line of usage; must outlive the formatter
    explicit HelpFormatter(const char* usage) : usage_(usage) { column_width(kColumnWidth); }

    std::string make_help(const CLI::App* command, std::string name, CLI::AppFormatMode mode) const override;
    std::string make_usage(const CLI::App* command, std::string name) const override;
    std::string make_option_opts(const CLI::Option* option) const override;
    std::string make_option_name(const CLI::Option* option, bool isPositional) const override;

private:
    static constexpr std::size_t kColumnWidth = 32;

    const char* usage_;
};

}  // namespace calvoro
