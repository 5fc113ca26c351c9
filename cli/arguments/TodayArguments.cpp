#include "cli/arguments/TodayArguments.h"

#include "cli/arguments/OptionKinds.h"

namespace calvoro {
namespace {

constexpr const char* kTodayFooter =
    R"(Exit status: 0 the labels were printed; 1 writing failed; 2 the arguments make no sense.

Examples:
  calvoro-cli today
  calvoro-cli today --calendar ISO --language de
  calvoro-cli today --all --today 2026-11-20)";

}  // namespace

void DeclareArguments(CLI::App& command, TodayArguments& arguments) {
    BeginCommand(command, "[OPTIONS]", kTodayFooter);
    AddChoice(command, "--calendar", kNotationChoices, arguments.calendar,
              "CE, ISO, JC, ORD, LPM, LPW, JDN (CE)")
        ->type_name("NOTATION");
    command.add_flag("--all", arguments.all, "in every notation, in the order CE ISO JC ORD LPM LPW JDN");
    AddToday(command, arguments.today);
    AddLanguage(command, kShownLanguageChoices, arguments.language, "of the words (en)");
}

}  // namespace calvoro
