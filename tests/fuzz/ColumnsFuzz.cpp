// Arbitrary bytes as lines, or as columns of lines, whose dates are converted: the answer does not depend on
// the pieces that the input comes in, and is what each field alone is answered with; everything else passes
// through unchanged.

#include <algorithm>
#include <string>

#include "cli/ConvertCommand.h"
#include "cli/CsvField.h"
#include "cli/ExitStatus.h"
#include "datetext/AnyNotation.h"
#include "datetext/Utf8.h"
#include "tests/fuzz/CommandRun.h"
#include "tests/fuzz/FuzzInput.h"
#include "tests/fuzz/PlainRecords.h"

namespace {

using namespace calvoro;
using fuzz::Require;

ConvertArguments ChooseArguments(fuzz::FuzzInput& input) {
    ConvertArguments arguments;
    ConvertOptions& options = arguments.options;
    options.text.dateFormat = input.ChooseDateFormat();
    options.text.dateSeparator = input.ChooseDateSeparator();
    options.text.thousandsSeparator = input.ChooseThousandsSeparator();
    options.text.digitGrouping.clear();
    options.from = Notations()[input.Choose(7)].number;
    options.reading = static_cast<Reading>(input.Choose(3));
    for (std::size_t count = 1 + input.Choose(2); count > 0; --count) {
        options.targets.push_back(Notations()[input.Choose(7)].number);
    }
    ColumnOptions& columns = arguments.columns;
    for (std::size_t count = input.Choose(4); count > 0; --count) columns.fields.push_back(input.Choose(4));
    columns.delimiter = "\t,;| "[input.Choose(5)];
    columns.csv = options.csv = input.Choose(2) == 1;
    // Of what may stand in an answer, only a comma that is quoted there separates columns.
    if (columns.delimiter == options.text.thousandsSeparator && !columns.csv) columns.delimiter = '\t';
    options.delimiter = columns.delimiter;
    columns.append = input.Choose(2) == 1;
    columns.header = input.Choose(8) == 1;
    return arguments;
}

/// What each field alone is answered with, put together in the plainest way.
class PlainAnswer {
public:
    explicit PlainAnswer(const ConvertArguments& arguments)
        : arguments_(arguments),
          reader_(arguments.options.from, arguments.options.reading, arguments.options.text) {}

    fuzz::CommandResult Of(std::string_view text) {
        const bool hasMark = text.starts_with(kByteOrderMark);
        if (hasMark) text.remove_prefix(kByteOrderMark.size());
        const ColumnOptions& columns = arguments_.columns;
        const bool isLine = columns.fields.empty();
        if (hasMark && !isLine) result_.output = kByteOrderMark;
        for (const fuzz::PlainRecord& record :
             fuzz::PlainRecords(text, isLine ? '\n' : columns.delimiter, columns.csv && !isLine)) {
            result_.output += isLine ? Answer(record.text) : Converted(record);
            result_.output += isLine ? "\n" : record.end;
        }
        result_.status = refusals_ == 0 ? kExitAllGood : kExitRefused;
        return result_;
    }

    std::ptrdiff_t Refusals() const { return refusals_; }

private:
    std::string Converted(const fuzz::PlainRecord& record) {
        const ColumnOptions& columns = arguments_.columns;
        if (*std::max_element(columns.fields.begin(), columns.fields.end()) >= record.raw.size()) {
            ++refusals_;
            return {};
        }
        std::string line = columns.append ? record.text : std::string();
        if (columns.append) {
            for (const std::size_t field : columns.fields) {
                line += columns.delimiter + Answer(record.Text(field, columns.csv));
            }
            return line;
        }
        for (std::size_t field = 0; field < record.raw.size(); ++field) {
            if (field > 0) line += columns.delimiter;
            const bool isDate =
                std::find(columns.fields.begin(), columns.fields.end(), field) != columns.fields.end();
            line += isDate ? Answer(record.Text(field, columns.csv)) : record.raw[field];
        }
        return line;
    }

    std::string Answer(const std::string& text) {
        const ConvertOptions& options = arguments_.options;
        const StrictResult day = reader_.Read(text).result;
        const bool isWritten = day.status == ParseStatus::Valid &&
                               std::all_of(options.targets.begin(), options.targets.end(),
                                           [&](CalendarNumber to) { return CanWriteDate(to, day.jdn); });
        refusals_ += isWritten ? 0 : 1;
        std::string answer;
        for (std::size_t i = 0; i < options.targets.size(); ++i) {
            if (i > 0) answer += options.delimiter;
            if (isWritten) answer += Quoted(WriteDate(options.targets[i], day.jdn, options.text));
        }
        return isWritten || !arguments_.columns.fields.empty() ? answer : std::string();
    }

    std::string Quoted(const std::string& date) const {
        const ConvertOptions& options = arguments_.options;
        if (!options.csv || !NeedsCsvQuotes(date, options.delimiter)) return date;
        return "\"" + date + "\"";
    }

    const ConvertArguments& arguments_;
    DayReader reader_;
    fuzz::CommandResult result_;
    std::ptrdiff_t refusals_ = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::FuzzInput input(data, size);
    const ConvertArguments arguments = ChooseArguments(input);
    // No column is named twice.
    std::vector<std::size_t> fields = arguments.columns.fields;
    std::sort(fields.begin(), fields.end());
    if (std::adjacent_find(fields.begin(), fields.end()) != fields.end()) return 0;
    const std::size_t piece = 1 + input.Choose(256);
    const std::string text = input.Text();
    const auto convert = [&arguments] { return RunConvert(arguments); };
    fuzz::CommandResult found = fuzz::RunCommand(text, 0, convert);
    Require(fuzz::RunCommand(text, piece, convert) == found);

    if (arguments.columns.header && !fields.empty()) return 0;
    PlainAnswer plain(arguments);
    const fuzz::CommandResult expected = plain.Of(text);
    Require(std::count(found.messages.begin(), found.messages.end(), '\n') == plain.Refusals());
    Require(found.output == expected.output && found.status == expected.status);
    return 0;
}
