#include "cli/arguments/MonthArguments.h"

#include "cli/arguments/OptionKinds.h"

namespace calvoro {
namespace {

constexpr const char* kMonthFooter = R"(Without YEAR-MONTH the current month is printed.

Exit status: 0 a month was printed; 1 the month is refused, or writing failed; 2 the
arguments make no sense.
Limits: years from -5,884,201 to 5,874,776.

Examples:
  calvoro-cli month 2024-09 --iso
  calvoro-cli month --week-start mon --language de
  calvoro-cli month --calendar JC -44-03)";

}  // namespace

void DeclareArguments(CLI::App& command, MonthArguments& arguments) {
    BeginCommand(command, "[OPTIONS] [YEAR-MONTH]", kMonthFooter);
    AddText(command, "YEAR-MONTH", arguments.yearMonth, "the month, 2024-09 or -44-3")->type_name("");
    AddChoice(command, "--calendar", kMonthCalendarChoices, arguments.calendar,
              "Common Era or Julian Calendar (CE)")
        ->type_name("CE|JC");
    CLI::Option* const weekStart = AddChoice(command, "--week-start", kWeekStartChoices, arguments.weekStart,
                                             "first day of the week (sun; mon with --iso)");
    weekStart->type_name("sun|mon");
    CLI::Option* const iso = command.add_flag(
        "--iso", arguments.iso, "ISO week dates of the same weeks; Common Era, weeks from Monday");
    command
        .add_flag("--with-year", arguments.withYear,
                  "begin each with the final digit of its ISO year; with --iso")
        ->needs(iso);
    AddLanguage(command, kShownLanguageChoices, arguments.language, "of the names (en)");

    command.callback([weekStart, &arguments] {
        if (!arguments.iso) return;
        if (arguments.calendar == CalendarCode::J) throw CLI::RequiresError("--iso", "--calendar CE");
        if (weekStart->count() > 0 && arguments.weekStart == WeekStart::Sunday) {
            throw CLI::RequiresError("--iso", "--week-start mon");
        }
        arguments.weekStart = WeekStart::Monday;
    });
}

}  // namespace calvoro
