#include "cli/arguments/ConvertArguments.h"

#include <string_view>
#include <utility>

#include "cli/arguments/ColumnKinds.h"
#include "cli/arguments/NotationKinds.h"
#include "cli/arguments/OptionKinds.h"
#include "cli/scan/DateScanner.h"

namespace calvoro {
namespace {

constexpr const char* kConvertFooter =
    R"(Every date gives one line of output, in order; a refused one gives an empty line and a
message with its source and line number. A day outside the years 1 to 9999 has no ordinal
date: the date is refused when ORD is asked for by name, and its field is empty with
"all". Names may be in any case. An option given again replaces what it said before. Among
the dates, "-" stands for the lines of the standard input, and "--" ends the options; dates
of negative years need no "--".

With --field only these columns of a line are dates. Each is replaced by its answer, or keeps
its place and the answers follow the line with --append; all other columns stay as they are,
to the byte. A refused date leaves its columns empty. With --csv columns may be quoted, and
hold line ends then. --header gives new columns names.

With --scan the input, or every argument, is running text. Dates of CE, JC, ISO or ORD that
stand alone in it, year first and with hyphens, become dates of the one notation of --to;
the weekday follows behind a blank. Everything else passes through to the byte, also what
is no day of the calendar (2024-02-30). How dates are written changes nothing in what is
found. --scan goes with no columns, no --csv, no --lenient and no --from auto.

Exit status: 0 every date was converted; 1 some were refused, or reading or writing failed;
2 the arguments make no sense.
Limits: lines of at most 1 MiB; days from -2,100,000,000 to 2,100,000,000.

Examples:
  calvoro-cli convert --from CE --to all 2021-03-04
  calvoro-cli convert --from JC --to CE,JDN --weekday -44-03-15
  calvoro-cli convert --from ISO --to CE --input weeks.txt
  seq 2460000 2460009 | calvoro-cli convert --from JDN --to CE --tag
  calvoro-cli convert --from CE --to ISO --csv --header --field 2 --input people.csv
  calvoro-cli convert --from CE --to ISO --scan --input notes.txt
  printf '2024-W11-5\n2024-03-15 CE\n' | calvoro-cli convert --from auto --to JDN)";

bool LooksLikeOption(std::string_view word) {
    return word.size() > 1 && word.front() == '-' && (word[1] < '0' || word[1] > '9');
}

// Dates are the words that no option takes: as values of a positional argument they would lose brackets,
// and a date in brackets would pass for a date.
std::vector<std::string> TakeDates(const CLI::App& command) {
    std::vector<std::string> dates;
    bool optionsEnded = false;
    for (std::string& word : command.remaining()) {
        if (!optionsEnded && word == "--") {
            optionsEnded = true;
        } else if (!optionsEnded && LooksLikeOption(word)) {
            throw CLI::ExtrasError({word});
        } else {
            dates.push_back(std::move(word));
        }
    }
    return dates;
}

// The answer to a date in running text can neither be several fields nor depend on what is beside it.
void SettleScan(const CLI::App& command, ConvertArguments& arguments) {
    for (const char* option : {"--field", "--delimiter", "--append", "--header", "--csv", "--lenient"}) {
        if (WasGiven(command, option)) throw CLI::ExcludesError("--scan", option);
    }
    ConvertOptions& options = arguments.options;
    if (options.reading == Reading::Auto || !CanBeScannedFor(options.from)) {
        throw CLI::ValidationError("--from", "must be one of 'CE', 'ISO', 'JC', 'ORD' with --scan");
    }
    if (options.targets.size() != 1) {
        throw CLI::ValidationError("--to", "must be one notation with --scan");
    }
    options.delimiter = ' ';
}

}  // namespace

void DeclareArguments(CLI::App& command, ConvertArguments& arguments, const std::vector<std::string>& words) {
    ConvertOptions& options = arguments.options;
    BeginCommand(command, "--from NOTATION --to NOTATION[,NOTATION...] [OPTIONS] [DATE...]", kConvertFooter);
    command.allow_extras();

    constexpr const char* kConversion = "Conversion";
    AddValue(command, "--from", options, TakeSource,
             "how the dates are written: CE, ISO, JC, ORD, LPM, LPW, JDN;\n"
             "\"auto\": as the tag at the end of each tells, or a form\n"
             "that no other notation has")
        ->type_name("NOTATION|auto")
        ->required()
        ->group(kConversion);
    AddValue(command, "--to", options, TakeTargets,
             "how to write them; several are separated by tabs;\n"
             "\"all\" is CE ISO JC ORD LPM LPW JDN")
        ->type_name("NOTATION,...|all")
        ->required()
        ->group(kConversion);
    command
        .add_flag("--lenient", arguments.lenient,
                  "read as the window does, dropping what is no part of a date")
        ->group(kConversion);
    command
        .add_flag("--scan", arguments.scan,
                  "convert the dates that stand alone in running text,\n"
                  "and pass everything else through")
        ->group(kConversion);
    AddText(command, "--input", arguments.inputFile,
            "read the lines of a file; \"-\" is the standard input,\n"
            "which is read anyway when no date is given")
        ->type_name("FILE")
        ->group(kConversion);

    AddAnswerOptions(command, options);
    if (Mentions(words, {"--field", "--delimiter", "--append", "--header"})) {
        AddColumnOptions(command, arguments.columns, "convert the dates in these columns of every line");
    }
    if (Mentions(words, {"--date-", "--thousands-", "--digit-", "--no-hyphen"})) {
        AddTextOptions(command, options.text);
    }

    command.callback([&command, &arguments] {
        arguments.dates = TakeDates(command);
        if (arguments.lenient) {
            // What the window reads leniently it reads in a notation that it was told.
            if (arguments.options.reading == Reading::Auto)
                throw CLI::ExcludesError("--lenient", "--from auto");
            arguments.options.reading = Reading::Lenient;
        }
        if (arguments.inputFile && !arguments.dates.empty()) throw CLI::ExcludesError("--input", "DATE");
        // The name of an added column is that of the old one, a blank, and the tag.
        SettleColumns(command, arguments.columns, arguments.options, arguments.columns.header ? " " : "");
        arguments.options.delimiter = arguments.columns.delimiter;
        if (arguments.scan) SettleScan(command, arguments);
        if (arguments.columns.fields.empty()) {
            for (const char* option : {"--append", "--header"}) {
                if (WasGiven(command, option)) throw CLI::RequiresError(option, "--field");
            }
        } else if (!arguments.dates.empty()) {
            throw CLI::ExcludesError("--field", "DATE");
        }
    });
}

}  // namespace calvoro
