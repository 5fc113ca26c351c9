#pragma once

// Reads the arguments of one command: options with a value, flags, and operands (what is no option). A
// repeated option counts as it stands last. "--" ends the options. A lone "-" and whatever begins with "-"
// and a digit are operands wherever they stand.

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace calvoro {

/// What the arguments came to, beside the values they set.
struct ParsedArguments {
    bool helpIsWanted = false;
    bool versionIsWanted = false;
    std::string fault;  // why the arguments make no sense; empty when they do
    std::vector<std::string> operands;
};

class OptionParser {
public:
    OptionParser();
    ~OptionParser();
    OptionParser(const OptionParser&) = delete;
    OptionParser& operator=(const OptionParser&) = delete;

    /// An option that is followed by a value.
    /// name  with its dashes, "--from"
    /// take  is given the value when the option is there; returns empty, or the reason to refuse it
    void AddValue(const std::string& name, std::function<std::string(const std::string&)> take);

    /// An option whose value is any text.
    void AddText(const std::string& name, std::string& text);

    /// An option without a value.
    /// act  is called when the option is there
    void AddAction(const std::string& name, std::function<void()> act);

    /// Whether this option was among the arguments.
    bool WasGiven(const std::string& name) const;

    /// Reads the arguments. "--help", "-h" and "--version" are known to every command.
    ParsedArguments Parse(const std::vector<std::string>& arguments);

private:
    struct Implementation;
    std::unique_ptr<Implementation> implementation_;
};

}  // namespace calvoro
