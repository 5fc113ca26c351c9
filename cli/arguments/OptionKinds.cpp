#include "cli/arguments/OptionKinds.h"

#include <algorithm>
#include <memory>

#include "cli/arguments/HelpFormatter.h"

namespace calvoro {
namespace {

constexpr const char* kFormGroup = "Form of dates and numbers, read and written";

// The help tells what is in force without an option.
const char* ThousandsDescription(char separator) {
    return separator == kNoSeparator ? "in numbers, and in CE and JC years beyond 9999 (none)"
                                     : "in numbers, and in CE and JC years beyond 9999 (,)";
}
const char* GroupingDescription(const std::string& grouping) {
    return grouping.empty() ? "in LPM and LPW years beyond 9999 (none)"
                            : "in LPM and LPW years beyond 9999 (,)";
}

}  // namespace

bool WasGiven(const CLI::App& command, const char* name) {
    const CLI::Option* const option = command.get_option_no_throw(name);
    return option != nullptr && option->count() > 0;
}

bool Mentions(const std::vector<std::string>& words, std::initializer_list<std::string_view> beginnings) {
    return std::any_of(words.begin(), words.end(), [beginnings](std::string_view word) {
        if (word.starts_with("-h") || word.starts_with("--h")) return true;
        return std::any_of(beginnings.begin(), beginnings.end(),
                           [word](std::string_view beginning) { return word.starts_with(beginning); });
    });
}

CLI::Option* AddText(CLI::App& command, const char* name, std::optional<std::string>& text,
                     const char* description) {
    const auto set = [&text](const std::string& given) { text = given; };
    return command.add_option_function<std::string>(name, set, description);
}

CLI::Option* AddToday(CLI::App& command, std::optional<LocalDate>& today) {
    return AddValue(command, "--today", today, TakeToday, "take this day for today")->type_name("YYYY-MM-DD");
}

void AddTextOptions(CLI::App& command, TextOptions& options) {
    AddChoice(command, "--date-format", kDateFormatChoices, options.dateFormat,
              "order of year, month and day in CE and JC (YMD)")
        ->type_name("YMD|DMY|MDY")
        ->group(kFormGroup);
    AddChoice(command, "--date-separator", kDateSeparatorChoices, options.dateSeparator,
              "what stands between them (-)")
        ->type_name("-|/|.")
        ->group(kFormGroup);
    AddChoice(command, "--thousands-separator", kThousandsSeparatorChoices, options.thousandsSeparator,
              ThousandsDescription(options.thousandsSeparator))
        ->type_name(",|.|none")
        ->group(kFormGroup);
    AddValue(command, "--digit-grouping", options.digitGrouping, TakeDigitGrouping,
             GroupingDescription(options.digitGrouping))
        ->type_name(",|.|none")
        ->group(kFormGroup);
    command
        .add_flag("!--no-hyphen", options.hyphen, "ISO and ordinal dates without hyphens: 2024W115, 2024075")
        ->group(kFormGroup);
}

void BeginCommand(CLI::App& command, const char* usage, const char* footer) {
    command.formatter(std::make_shared<HelpFormatter>(usage));
    command.footer(footer);
    command.option_defaults()->take_last();
    command.allow_windows_style_options(false);  // "/help" is a text there too
    command.set_help_flag("-h,--help", "this help");
    command.set_version_flag("--version", "calvoro-cli " CALVORO_VERSION "\n" CALVORO_NOTICE, "the version");
}

}  // namespace calvoro
