#pragma once

// The kinds of options that the commands share, declared with the library that reads the command line. A
// value that makes no sense is refused by a check of its option, so that the library names the option.

#include <CLI/CLI.hpp>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calendar/Today.h"
#include "cli/Choices.h"
#include "datetext/TextOptions.h"

namespace calvoro {

/// An option whose value is read by a function.
/// name  with its dashes, "--from"
/// take  given a text and the value to set; returns empty, or the reason to refuse the text
template <typename Value, typename Take>
CLI::Option* AddValue(CLI::App& command, const char* name, Value& value, Take take, const char* description) {
    const auto set = [&value, take](const std::string& text) { take(text, value); };
    return command.add_option_function<std::string>(name, set, description)
        ->check([take](const std::string& text) {
            Value checked{};
            return take(text, checked);
        });
}

/// An option, or a positional argument, that takes any text.
CLI::Option* AddText(CLI::App& command, const char* name, std::optional<std::string>& text,
                     const char* description);

/// An option whose value is chosen by name; letters may have any case.
/// choices  must outlive the command
template <typename Value, std::size_t count>
CLI::Option* AddChoice(CLI::App& command, const char* name, const std::array<Choice<Value>, count>& choices,
                       Value& value, const char* description) {
    const auto take = [&choices](const std::string& text, Value& chosen) {
        return TakeChoice(choices, text, NameCase::Any, chosen);
    };
    return AddValue(command, name, value, take, description);
}

/// "--language en|de", or with Spanish where messages exist in it.
template <std::size_t count>
CLI::Option* AddLanguage(CLI::App& command, const std::array<Choice<LanguageNumber>, count>& languages,
                         LanguageNumber& language, const char* description) {
    return AddChoice(command, "--language", languages, language, description)
        ->type_name(count == kShownLanguageChoices.size() ? "en|de" : "en|de|es");
}

/// Whether an option was among the words; also when the command was spared its declaration.
bool WasGiven(const CLI::App& command, const char* name);

/// Whether one of the words could be one of some options, or asks for the help, which shows all of them.
/// beginnings  how the options begin
bool Mentions(const std::vector<std::string>& words, std::initializer_list<std::string_view> beginnings);

/// "--today YYYY-MM-DD".
CLI::Option* AddToday(CLI::App& command, std::optional<LocalDate>& today);

/// How dates and numbers are written: order and separator of CE and JC, groups of digits, hyphens.
/// options  holds what is in force without an option; the help tells it
void AddTextOptions(CLI::App& command, TextOptions& options);

/// Makes a command ready for its options: how its help is laid out, "--help" and "--version", and that a
/// repeated option counts as it stands last.
/// usage   what follows the command's name in the first line of its help
/// footer  the end of the help: what the command does with its input, exit statuses, limits, examples
void BeginCommand(CLI::App& command, const char* usage, const char* footer);

}  // namespace calvoro
