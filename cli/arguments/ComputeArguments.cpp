#include "cli/arguments/ComputeArguments.h"

#include "cli/arguments/OptionKinds.h"

namespace calvoro {
namespace {

constexpr const char* kComputeFooter =
    R"(Which of the three boxes are filled decides the task: one date is converted into the
calendar of the other box, two dates are counted from the first to the second, a date and a
difference give the other date. With all boxes empty the first date is today. The result
goes to the standard output, messages to the standard error. Results are in English or
German; with "es" only messages are in Spanish, words of the result in English.

With --json alone every line of the standard input is a request, a JSON object, and gives one
line of output. Its keys, all optional, with the values they have when missing:
  "first": "", "difference": "", "second": "",
  "first_calendar": "CE", "second_calendar": "CE",
  "date_format": "YMD", "date_separator": "-", "thousands_separator": ",",
  "digit_grouping": ",", "hyphen": true, "verbose": true,
  "include_first_date": false, "count_weekend_days": true, "unit": "days",
  "language": "en", "clear": "cancel", "today": the system's date as "YYYY-MM-DD"
The separators may be "" for none; "clear" may be "first", "difference" or "second". The
response has the keys "first", "difference" and "second" (the boxes after the click),
"output", "messages" (each with "title" and "text"), "unit", "result" (true, false, or null
when the click ended before computing), and "value": null without a result, else
  {"kind":"days","days":1256,"breakdown":{"years":3,"months":5,"days":7}} or
  {"kind":"date","text":"2021-03-01","calendar":"JC","day_number":2459288,"weekday":7}
where "breakdown" is null or has the parts that the line shows, and weekdays count from 1,
Monday. A line that is no valid request gives {"error":"...","line":N}. With --json and
other options there is one response, to the request that the options make.

Exit status: 0 a result stands on the line, or with --json every line was a request; 1 there
is none, some line was no request, or reading or writing failed; 2 the arguments make no
sense.
Limits: lines of at most 1 MiB; days from -2,100,000,000 to 2,100,000,000.

Examples:
  calvoro-cli compute --first 2021-03-04 --difference 10 --second-calendar JC
  calvoro-cli compute --first 2021-03-01 --second 2021-03-08 --verbose
  calvoro-cli compute --first 2024-01-31 --difference 1 --unit months
  calvoro-cli compute --json --first 2021-03-01 --second 2024-08-08
  echo '{"first":"2021-03-01","second":"2021-03-08"}' | calvoro-cli compute --json)";

}  // namespace

void DeclareArguments(CLI::App& command, ComputeArguments& arguments) {
    ComputeRequest& request = arguments.request;
    ComputeOptions& options = request.options;
    options.verbose = false;
    BeginCommand(command, "[OPTIONS]", kComputeFooter);

    constexpr const char* kBoxes = "The three boxes";
    command.add_option("--first", request.first, "the first date")->group(kBoxes);
    command.add_option("--difference", request.difference, "the number of days or months")->group(kBoxes);
    command.add_option("--second", request.second, "the second date")->group(kBoxes);
    AddChoice(command, "--first-calendar", kNotationChoices, options.firstCalendar,
              "of the first date: CE, ISO, JC, ORD, LPM, LPW, JDN (CE)")
        ->type_name("NOTATION")
        ->group(kBoxes);
    AddChoice(command, "--second-calendar", kNotationChoices, options.secondCalendar,
              "of the second date (CE)")
        ->type_name("NOTATION")
        ->group(kBoxes);
    AddChoice(command, "--clear", kClearChoices, request.clear,
              "which box to empty when all three are filled")
        ->type_name("first|difference|second|cancel")
        ->group(kBoxes);

    constexpr const char* kCounting = "Counting and answering";
    AddChoice(command, "--unit", kUnitChoices, options.unit, "of the difference (days)")
        ->type_name("days|months")
        ->group(kCounting);
    command.add_flag("--include-first-date", options.includeFirstDate, "count the first date as well")
        ->group(kCounting);
    command.add_flag("!--weekdays-only", options.countWeekendDays, "count Monday to Friday only")
        ->group(kCounting);
    command.add_flag("--verbose", options.verbose, "say more: weekday, rules of counting, all notations")
        ->group(kCounting);
    AddLanguage(command, kLanguageChoices, options.texts.InterfaceLanguage, "of results and messages (en)")
        ->group(kCounting);
    AddToday(command, request.today)->group(kCounting);
    CLI::Option* const json = command.add_flag("--json", arguments.json,
                                               "answer in JSON: alone, requests of the standard input; with\n"
                                               "other options, the request that they make");
    json->group(kCounting);

    AddTextOptions(command, options.text);

    command.callback([&command, &arguments, json] {
        const auto isOther = [json](const CLI::Option* option) {
            return option != json && option->count() > 0;
        };
        arguments.jsonLines = arguments.json && command.get_options(isOther).empty();
    });
}

}  // namespace calvoro
