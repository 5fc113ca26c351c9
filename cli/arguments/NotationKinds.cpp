#include "cli/arguments/NotationKinds.h"

#include <string_view>

#include "cli/Choices.h"

namespace calvoro {

std::string TakeSource(const std::string& name, ConvertOptions& options) {
    const bool isAuto = EqualsIgnoringCase(name, "auto");
    options.reading = isAuto ? Reading::Auto : Reading::Strict;
    if (isAuto) return {};
    const std::string reason = TakeChoice(kNotationChoices, name, NameCase::Any, options.from);
    return reason.empty() ? reason : reason + ", or 'auto'";
}

std::string TakeTargets(const std::string& names, ConvertOptions& options) {
    options.targets.clear();
    options.emptyWhereUnwritable = EqualsIgnoringCase(names, "all");
    if (options.emptyWhereUnwritable) {
        for (const auto& choice : kNotationChoices) options.targets.push_back(choice.value);
        return {};
    }
    for (std::string_view rest = names;;) {
        const std::size_t comma = rest.find(',');
        CalendarNumber target{};
        const std::string reason = TakeChoice(kNotationChoices, rest.substr(0, comma), NameCase::Any, target);
        if (!reason.empty()) return reason + ", or 'all' alone";
        options.targets.push_back(target);
        if (comma == std::string_view::npos) return {};
        rest.remove_prefix(comma + 1);
    }
}

void AddAnswerOptions(CLI::App& command, ConvertOptions& options) {
    constexpr const char* kGroup = "Output";
    command.add_flag("--tag", options.tag, "append its notation to every date: 2024-W11-5 ISO")
        ->group(kGroup);
    const auto takeEra = [&options] { options.eraStyle = EraStyle::BeforeCommonEra; };
    command.add_flag_callback("--era", takeEra, "write years of 0 and below of CE and JC as 0044-03-13 BCE")
        ->group(kGroup);
    command.add_flag("--weekday", options.weekday, "add the English weekday as a last field")->group(kGroup);
    command.add_flag("--csv", options.csv, "comma-separated values, quoted where needed")->group(kGroup);
}

}  // namespace calvoro
