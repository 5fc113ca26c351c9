#include "cli/arguments/ColumnKinds.h"

#include <algorithm>
#include <charconv>
#include <string_view>

#include "cli/arguments/OptionKinds.h"

namespace calvoro {
namespace {

constexpr const char* kGroup = "Columns";
constexpr std::size_t kMostColumns = 100000;

// Numbers from 1, separated by commas.
std::string TakeFields(const std::string& text, std::vector<std::size_t>& fields) {
    fields.clear();
    for (std::string_view rest = text;;) {
        const std::size_t comma = rest.find(',');
        const std::string_view digits = rest.substr(0, comma);
        std::size_t number = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
        if (error != std::errc() || end != digits.data() + digits.size() || number < 1 ||
            number > kMostColumns) {
            return "must be numbers of columns from 1 to 100000, separated by commas";
        }
        if (std::find(fields.begin(), fields.end(), number - 1) != fields.end()) {
            return "names a column twice";
        }
        fields.push_back(number - 1);
        if (comma == std::string_view::npos) return {};
        rest.remove_prefix(comma + 1);
    }
}

// One character of ASCII; a tab may be written as "\\t".
std::string TakeDelimiter(const std::string& text, char& delimiter) {
    const std::string_view character = text == "\\t" ? "\t" : std::string_view(text);
    const bool isOne = character.size() == 1 && static_cast<unsigned char>(character.front()) < 0x80;
    if (!isOne || std::string_view("\r\n\"\0", 4).find(character.front()) != std::string_view::npos) {
        return "must be one ASCII character, no quote and no line end";
    }
    delimiter = character.front();
    return {};
}

bool IsLetterOrDigit(char character) {
    return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z') ||
           (character >= 'a' && character <= 'z');
}

// Whether a date that is written could hold the character.
bool MayStandInAnAnswer(char character, const ConvertOptions& answers) {
    const TextOptions& text = answers.text;
    if (IsLetterOrDigit(character) || character == '-' || character == text.dateSeparator) return true;
    if (character == ' ' && (answers.tag || answers.eraStyle != EraStyle::Astronomical)) return true;
    // Negative years that stand last are in parentheses.
    const bool isParenthesis = character == '(' || character == ')';
    if (isParenthesis && text.dateFormat != DateFormat::YMD) return true;
    const bool groups =
        character == text.thousandsSeparator || text.digitGrouping.find(character) != std::string::npos;
    return groups && !(answers.csv && character == ',');  // which is quoted there
}

}  // namespace

void AddColumnOptions(CLI::App& command, ColumnOptions& columns, const char* fields) {
    AddValue(command, "--field", columns.fields, TakeFields, fields)->type_name("N[,M...]")->group(kGroup);
    AddValue(command, "--delimiter", columns.delimiter, TakeDelimiter,
             "what separates columns (a tab; \",\" with --csv)")
        ->type_name("CHAR")
        ->group(kGroup);
    command.add_flag("--append", columns.append, "keep the columns as they are, add the answer in new ones")
        ->group(kGroup);
    command.add_flag("--header", columns.header, "the first line names the columns")->group(kGroup);
}

void SettleColumns(const CLI::App& command, ColumnOptions& columns, const ConvertOptions& answers,
                   std::string_view others) {
    columns.csv = answers.csv;
    if (columns.csv && !WasGiven(command, "--delimiter")) columns.delimiter = ',';
    const bool mayStandInOthers = !columns.csv && others.find(columns.delimiter) != std::string_view::npos;
    if (mayStandInOthers || MayStandInAnAnswer(columns.delimiter, answers)) {
        throw CLI::ValidationError("--delimiter", "could stand in an answer");
    }
}

}  // namespace calvoro
