#include "cli/arguments/ReadWords.h"

#include <string_view>

#include "datetext/PrintableText.h"

namespace calvoro {
namespace {

// "--first=" of an option that takes a value.
bool HasEmptyValue(std::string_view word, const CLI::App& app) {
    if (word.size() < 4 || !word.starts_with("--") || word.back() != '=') return false;
    const CLI::Option* const option = app.get_option_no_throw(std::string(word.substr(0, word.size() - 1)));
    return option != nullptr && option->get_items_expected_min() > 0;
}

// The library takes "--first=" for "--first" whose value is the next word; a script's "--first=$date" with
// nothing in it means an empty one.
std::vector<std::string> WithEmptyValuesApart(const CLI::App& app, const std::vector<std::string>& words) {
    std::vector<std::string> apart;
    apart.reserve(2 * words.size());
    bool optionsEnded = false;
    for (const std::string& word : words) {
        optionsEnded = optionsEnded || word == "--";
        const bool isEmpty = !optionsEnded && HasEmptyValue(word, app);
        apart.push_back(isEmpty ? word.substr(0, word.size() - 1) : word);
        if (isEmpty) apart.emplace_back();
    }
    return apart;
}

}  // namespace

ReadOutcome ReadWords(CLI::App& app, const std::vector<std::string>& words) {
    try {
        const std::vector<std::string> apart = WithEmptyValuesApart(app, words);
        std::vector<const char*> arguments = {app.get_name().c_str()};
        for (const std::string& word : apart) arguments.push_back(word.c_str());
        app.parse(static_cast<int>(arguments.size()), arguments.data());
        return {};
    } catch (const CLI::CallForHelp&) {
        return {app.help(), {}};
    } catch (const CLI::CallForVersion& version) {
        return {std::string(version.what()) + "\n", {}};
    } catch (const CLI::ParseError& error) {
        // The library repeats the words as they are.
        return {{}, PrintableText(error.what())};
    }
}

}  // namespace calvoro
