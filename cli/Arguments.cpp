#include "cli/Arguments.h"

#include <string_view>

#include "cli/Choices.h"
#include "cli/OptionParser.h"
#include "cli/QuotedText.h"

namespace calvoro {
namespace {

// Letters may have any case on the command line.
template <typename Value, std::size_t count>
void AddChoice(OptionParser& parser, const std::string& name, const std::array<Choice<Value>, count>& choices,
               Value& value) {
    parser.AddValue(name, [&choices, &value](const std::string& text) {
        return TakeChoice(choices, text, NameCase::Any, value);
    });
}

void AddToday(OptionParser& parser, std::optional<LocalDate>& today) {
    parser.AddValue("--today", [&today](const std::string& text) { return TakeToday(text, today); });
}

void AddTextOptions(OptionParser& parser, TextOptions& options) {
    AddChoice(parser, "--date-format", kDateFormatChoices, options.dateFormat);
    AddChoice(parser, "--date-separator", kDateSeparatorChoices, options.dateSeparator);
    AddChoice(parser, "--thousands-separator", kThousandsSeparatorChoices, options.thousandsSeparator);
    parser.AddAction("--no-hyphen", [&options] { options.hyphen = false; });
}

// "all", or notations separated by commas.
std::string TakeTargets(std::string_view list, ConvertOptions& options) {
    options.targets.clear();
    options.emptyWhereUnwritable = EqualsIgnoringCase(list, "all");
    if (options.emptyWhereUnwritable) {
        for (const auto& choice : kNotationChoices) options.targets.push_back(choice.value);
        return {};
    }
    for (;;) {
        const std::size_t comma = list.find(',');
        CalendarNumber target{};
        std::string reason = TakeChoice(kNotationChoices, list.substr(0, comma), NameCase::Any, target);
        if (!reason.empty()) return reason + ", or 'all' alone";
        options.targets.push_back(target);
        if (comma == std::string_view::npos) return {};
        list.remove_prefix(comma + 1);
    }
}

ArgumentsOutcome OutcomeOf(const ParsedArguments& parsed) {
    return {parsed.helpIsWanted, parsed.versionIsWanted, parsed.fault};
}

ArgumentsOutcome Fault(std::string fault) {
    return {false, false, std::move(fault)};
}

ArgumentsOutcome RefuseOperandsFrom(std::size_t first, const ParsedArguments& parsed) {
    if (!OutcomeOf(parsed).Runs() || parsed.operands.size() <= first) return OutcomeOf(parsed);
    return Fault("unexpected argument " + QuotedText(parsed.operands[first]));
}

}  // namespace

ArgumentsOutcome ReadConvertArguments(const std::vector<std::string>& words, ConvertArguments& arguments) {
    ConvertOptions& options = arguments.options;
    options.text.thousandsSeparator = kNoSeparator;
    OptionParser parser;
    AddChoice(parser, "--from", kNotationChoices, options.from);
    parser.AddValue("--to", [&options](const std::string& list) { return TakeTargets(list, options); });
    AddTextOptions(parser, options.text);
    parser.AddAction("--tag", [&options] { options.tag = true; });
    parser.AddAction("--weekday", [&options] { options.weekday = true; });
    parser.AddAction("--csv", [&options] { options.csv = true; });
    parser.AddValue("--input", [&arguments](const std::string& name) {
        arguments.inputFile = name;
        return std::string();
    });
    ParsedArguments parsed = parser.Parse(words);
    if (!OutcomeOf(parsed).Runs()) return OutcomeOf(parsed);
    if (!parser.WasGiven("--from")) return Fault("--from is missing");
    if (!parser.WasGiven("--to")) return Fault("--to is missing");
    if (arguments.inputFile && !parsed.operands.empty()) return Fault("--input does not go with dates");

    // Leap-week years from 10000 up are grouped by the system; here the same character groups everything.
    const char grouping = options.text.thousandsSeparator;
    options.text.digitGrouping = grouping == kNoSeparator ? std::string() : std::string(1, grouping);
    arguments.dates = std::move(parsed.operands);
    return {};
}

ArgumentsOutcome ReadComputeArguments(const std::vector<std::string>& words, ComputeArguments& arguments) {
    ComputeRequest& request = arguments.request;
    ComputeOptions& options = request.options;
    options.verbose = false;
    OptionParser parser;
    parser.AddText("--first", request.first);
    parser.AddText("--difference", request.difference);
    parser.AddText("--second", request.second);
    AddChoice(parser, "--first-calendar", kNotationChoices, options.firstCalendar);
    AddChoice(parser, "--second-calendar", kNotationChoices, options.secondCalendar);
    AddTextOptions(parser, options.text);
    parser.AddAction("--verbose", [&options] { options.verbose = true; });
    parser.AddAction("--include-first-date", [&options] { options.includeFirstDate = true; });
    parser.AddAction("--weekdays-only", [&options] { options.countWeekendDays = false; });
    AddChoice(parser, "--unit", kUnitChoices, options.unit);
    AddChoice(parser, "--language", kLanguageChoices, options.texts.InterfaceLanguage);
    AddChoice(parser, "--clear", kClearChoices, request.clear);
    AddToday(parser, request.today);
    parser.AddAction("--json", [&arguments] { arguments.json = true; });
    const ParsedArguments parsed = parser.Parse(words);
    ArgumentsOutcome outcome = RefuseOperandsFrom(0, parsed);
    // Every request line brings its own settings.
    if (outcome.Runs() && arguments.json && words.size() > 1) return Fault("--json stands alone");
    return outcome;
}

ArgumentsOutcome ReadMonthArguments(const std::vector<std::string>& words, MonthArguments& arguments) {
    OptionParser parser;
    AddChoice(parser, "--calendar", kMonthCalendarChoices, arguments.calendar);
    AddChoice(parser, "--week-start", kWeekStartChoices, arguments.weekStart);
    parser.AddAction("--iso", [&arguments] { arguments.iso = true; });
    parser.AddAction("--with-year", [&arguments] { arguments.withYear = true; });
    AddChoice(parser, "--language", kShownLanguageChoices, arguments.language);
    const ParsedArguments parsed = parser.Parse(words);
    ArgumentsOutcome outcome = RefuseOperandsFrom(1, parsed);
    if (!outcome.Runs()) return outcome;
    if (arguments.withYear && !arguments.iso) return Fault("--with-year goes with --iso only");
    if (arguments.iso && arguments.calendar == CalendarCode::J) return Fault("--iso needs --calendar CE");
    if (arguments.iso && parser.WasGiven("--week-start") && arguments.weekStart == WeekStart::Sunday) {
        return Fault("--iso needs --week-start mon");
    }
    if (arguments.iso) arguments.weekStart = WeekStart::Monday;
    if (!parsed.operands.empty()) arguments.yearMonth = parsed.operands.front();
    return outcome;
}

ArgumentsOutcome ReadTodayArguments(const std::vector<std::string>& words, TodayArguments& arguments) {
    OptionParser parser;
    AddChoice(parser, "--calendar", kNotationChoices, arguments.calendar);
    parser.AddAction("--all", [&arguments] { arguments.all = true; });
    AddToday(parser, arguments.today);
    AddChoice(parser, "--language", kShownLanguageChoices, arguments.language);
    return RefuseOperandsFrom(0, parser.Parse(words));
}

}  // namespace calvoro
