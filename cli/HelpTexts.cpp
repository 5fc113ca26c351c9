#include "cli/HelpTexts.h"

namespace calvoro {

const std::string_view kProgramHelp =
    R"(Usage: calvoro-cli COMMAND [OPTIONS] [ARGUMENTS]

Converts dates between seven notations and does arithmetic with them.

Commands:
  convert    dates from one notation into others, one a line
  compute    one click on Compute: convert a date, count days, add days or months
  month      a month as a grid of weeks
  today      today and a week from today

Options:
  -h, --help    this help, or behind a command's name the help of the command
  --version     the version

Notations:
  CE     Common Era date (Gregorian, with year 0 and negative years)    2024-03-15
  ISO    ISO 8601 week date                                             2024-W11-5
  JC     Julian Calendar date                                           2024-03-02
  ORD    ordinal date, years 1 to 9999                                  2024-075
  LPM    Vantorel Leap Week month date                                  2024-03-19
  LPW    Vantorel Leap Week week date                                   2024-12-5
  JDN    Julian day number                                              2460385

Exit status: 0 all good, 1 some input was refused or could not be read or written,
2 the arguments make no sense.
)";

const std::string_view kConvertHelp =
    R"(Usage: calvoro-cli convert --from NOTATION --to NOTATION[,NOTATION...] [OPTIONS] [DATE...]

Converts dates given as arguments, or one a line from the standard input. Every date
gives one line of output, in order; a refused one gives an empty line, a message with
its source and line number, and exit status 1.

  --from NOTATION             how the dates are written: CE, ISO, JC, ORD, LPM, LPW, JDN
  --to NOTATION,...           how to write them; several are separated by tabs
  --to all                    every notation, in the order CE ISO JC ORD LPM LPW JDN
  --input FILE                read the lines of a file; "-" is the standard input
  --date-format YMD|DMY|MDY   order of year, month and day in CE and JC (YMD)
  --date-separator -|/|.      what stands between them (-)
  --thousands-separator ,|.|none
                              in day numbers and in years beyond 9999 (none)
  --no-hyphen                 ISO and ordinal dates without hyphens: 2024W115, 2024075
  --tag                       append its notation to every date: 2024-W11-5 ISO
  --weekday                   add the English weekday as a last field
  --csv                       separate by commas, quote where needed; there is no header
  --version                   the version
  -h, --help                  this help

All of these apply to reading and to writing. Names may be in any case. An option given
again replaces what it said before. Among the dates, "-" stands for the lines of the
standard input, and "--" ends the options; dates of negative years need no "--".
A day outside the years 1 to 9999 has no ordinal date: the date is refused when ORD is
asked for by name, and the field is empty with "all". Lines longer than 1 MiB are refused.

Examples:
  calvoro-cli convert --from CE --to all 2021-03-04
  printf -- '-44-03-15\n' | calvoro-cli convert --from JC --to CE,JDN --weekday
)";

const std::string_view kComputeHelp =
    R"(Usage: calvoro-cli compute [OPTIONS]
       calvoro-cli compute --json

One click on Compute. Which of the three boxes are filled decides the task: one date is
converted into the calendar of the other box, two dates are counted from the first to the
second, a date and a difference give the other date. With all boxes empty the first date
is today. The result goes to the standard output, messages to the standard error.
Exit status 0 with a result, 1 without.

  --first TEXT                the first date
  --difference TEXT           the number of days or months
  --second TEXT               the second date
  --first-calendar NOTATION   of the first date: CE, ISO, JC, ORD, LPM, LPW, JDN (CE)
  --second-calendar NOTATION  of the second date (CE)
  --unit days|months          of the difference (days)
  --include-first-date        count the first date as well
  --weekdays-only             count Monday to Friday only
  --verbose                   say more: weekday, rules of counting, all notations
  --date-format YMD|DMY|MDY   order of year, month and day in CE and JC (YMD)
  --date-separator -|/|.      what stands between them (-)
  --thousands-separator ,|.|none
                              in numbers and in years beyond 9999 (,)
  --no-hyphen                 ISO and ordinal dates without hyphens
  --language en|de|es         of results and messages (en)
  --clear cancel|first|difference|second
                              which box to empty when all three are filled
  --today YYYY-MM-DD          take this day for today
  --json                      answer requests; stands alone
  --version                   the version
  -h, --help                  this help

With --json every line of the standard input is a request, a JSON object, and gives one
line of output. Its keys, all optional, with the values they have when missing:
  "first": "", "difference": "", "second": "",
  "first_calendar": "CE", "second_calendar": "CE",
  "date_format": "YMD", "date_separator": "-", "thousands_separator": ",",
  "hyphen": true, "verbose": true, "include_first_date": false,
  "count_weekend_days": true, "unit": "days", "language": "en",
  "clear": "cancel", "today": the system's date as "YYYY-MM-DD"
"thousands_separator" may be "" for none; "clear" may be "first", "difference" or
"second". The response has the keys "first", "difference" and "second" (the boxes after
the click), "output", "messages" (each with "title" and "text"), "unit", and "result":
true, false, or null when the click ended before computing. A line that is no valid
request gives {"error":"..."}, and exit status 1 at the end.

Examples:
  calvoro-cli compute --first 2021-03-04 --difference 10 --second-calendar JC
  calvoro-cli compute --first 2021-03-01 --second 2021-03-08 --verbose
)";

const std::string_view kMonthHelp =
    R"(Usage: calvoro-cli month [OPTIONS] [YEAR-MONTH]

Prints a month as the month window copies it; without YEAR-MONTH the current one.

  --calendar CE|JC        Common Era or Julian Calendar (CE)
  --week-start sun|mon    first day of the week (sun)
  --iso                   ISO week dates of the same weeks; Common Era, weeks from Monday
  --with-year             begin each with the final digit of its ISO year; with --iso
  --language en|de        of the names (en)
  --version               the version
  -h, --help              this help

Examples:
  calvoro-cli month 2024-09 --iso
  calvoro-cli month --calendar JC -44-03
)";

const std::string_view kTodayHelp =
    R"(Usage: calvoro-cli today [OPTIONS]

Prints today and the day a week from today, as the main window shows them.

  --calendar NOTATION     CE, ISO, JC, ORD, LPM, LPW, JDN (CE)
  --all                   in every notation, in the order CE ISO JC ORD LPM LPW JDN
  --today YYYY-MM-DD      take this day for today
  --language en|de        of the words (en)
  --version               the version
  -h, --help              this help
)";

}  // namespace calvoro
