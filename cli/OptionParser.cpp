#include "cli/OptionParser.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <string_view>
#include <utility>

#include "cli/QuotedText.h"

namespace calvoro {
namespace {

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

// "-44-03-15" is a date of a year before 0: no option begins with a digit.
bool LooksLikeOption(std::string_view argument) {
    return argument.size() > 1 && argument.front() == '-' && !IsDigit(argument[1]);
}

// "--from: 1 required value missing", or "tag was given a disallowed flag override".
std::string FaultOfMismatch(std::string_view message) {
    const std::size_t colon = message.find(':');
    if (colon != std::string_view::npos) return std::string(message.substr(0, colon)) + " needs a value";
    return "--" + std::string(message.substr(0, message.find(' '))) + " takes no value";
}

}  // namespace

struct OptionParser::Implementation {
    CLI::App app;

    std::vector<std::string> WithEmptyValuesApart(const std::vector<std::string>& arguments) const;
};

OptionParser::OptionParser() : implementation_(std::make_unique<Implementation>()) {
    // Operands are collected as extras, which leaves their texts untouched; as values of a list they would
    // lose brackets.
    implementation_->app.allow_extras();
    implementation_->app.set_version_flag("--version", "")->disable_flag_override();
    implementation_->app.get_help_ptr()->disable_flag_override();
}

OptionParser::~OptionParser() = default;

void OptionParser::AddValue(const std::string& name, std::function<std::string(const std::string&)> take) {
    const auto takeOrThrow = [name, take = std::move(take)](const std::string& value) {
        const std::string reason = take(value);
        if (!reason.empty()) throw CLI::ValidationError(name + " " + reason);
    };
    implementation_->app.add_option_function<std::string>(name, takeOrThrow)
        ->type_name("value")
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
}

void OptionParser::AddText(const std::string& name, std::string& text) {
    AddValue(name, [&text](const std::string& value) {
        text = value;
        return std::string();
    });
}

void OptionParser::AddAction(const std::string& name, std::function<void()> act) {
    implementation_->app.add_flag_callback(name, std::move(act))
        ->disable_flag_override()
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
}

bool OptionParser::WasGiven(const std::string& name) const {
    return implementation_->app.count(name) > 0;
}

// The library takes "--first=" for "--first" whose value follows.
std::vector<std::string> OptionParser::Implementation::WithEmptyValuesApart(
    const std::vector<std::string>& arguments) const {
    std::vector<std::string> apart;
    bool optionsEnded = false;
    for (const std::string& argument : arguments) {
        optionsEnded = optionsEnded || argument == "--";
        const CLI::Option* option = nullptr;
        if (!optionsEnded && argument.size() > 3 && argument.back() == '=') {
            option = app.get_option_no_throw(argument.substr(0, argument.size() - 1));
        }
        if (option != nullptr && option->get_items_expected_min() > 0) {
            apart.push_back(argument.substr(0, argument.size() - 1));
            apart.emplace_back();
        } else {
            apart.push_back(argument);
        }
    }
    return apart;
}

ParsedArguments OptionParser::Parse(const std::vector<std::string>& arguments) {
    CLI::App& app = implementation_->app;
    ParsedArguments parsed;
    try {
        std::vector<std::string> backwards = implementation_->WithEmptyValuesApart(arguments);
        std::reverse(backwards.begin(), backwards.end());
        app.parse(std::move(backwards));
    } catch (const CLI::CallForHelp&) {
        parsed.helpIsWanted = true;
        return parsed;
    } catch (const CLI::CallForVersion&) {
        parsed.versionIsWanted = true;
        return parsed;
    } catch (const CLI::ArgumentMismatch& error) {
        parsed.fault = FaultOfMismatch(error.what());
        return parsed;
    } catch (const CLI::ParseError& error) {
        parsed.fault = error.what();
        return parsed;
    }
    bool optionsEnded = false;
    for (std::string& operand : app.remaining()) {
        if (!optionsEnded && operand == "--") {
            optionsEnded = true;
        } else if (!optionsEnded && LooksLikeOption(operand)) {
            parsed.fault = "unknown option " + QuotedText(operand);
            return parsed;
        } else {
            parsed.operands.push_back(std::move(operand));
        }
    }
    return parsed;
}

}  // namespace calvoro
