#include "cli/ConvertCommand.h"

#include <string_view>

#include "cli/Conversion.h"
#include "cli/Filter.h"
#include "cli/columns/ColumnConversion.h"
#include "cli/scan/ScanCommand.h"
#include "datetext/Tags.h"

namespace calvoro {
namespace {

/// Converts dates that are lines of their own.
class Batch {
public:
    explicit Batch(const ConvertOptions& options) : options_(options), conversion_(options) {}

    void ConvertDate(std::string_view text, bool isCut, const Place& place) {
        const std::string refusal = isCut ? RefusalOfLongLine() : conversion_.Convert(text, filter_.Output());
        if (!refusal.empty()) filter_.Refuse(refusal, text, place);
        filter_.EndLine("\n");
    }

    /// Converts a whole input; "-" is the standard input.
    void ConvertInput(const std::string& name) {
        filter_.ReadInput(name, [this](LineReader& reader, Place& place) {
            std::string_view line;
            reader.Skip(conversion_.ConvertLines(reader.Ahead(), filter_.Output(), place.number));
            if (!reader.Next(line)) return false;
            ++place.number;
            ConvertDate(line, reader.IsCut(), place);
            return true;
        });
    }

    bool OutputHasFailed() { return filter_.Output().HasFailed(); }

    int Finish() { return filter_.Finish(); }

private:
    std::string RefusalOfLongLine() const {
        const std::string notation =
            options_.reading == Reading::Auto ? "any notation" : std::string(TagText(options_.from));
        return "not valid in " + notation + ", longer than a line may be";
    }

    const ConvertOptions& options_;
    Conversion conversion_;
    Filter filter_;
};

int ConvertColumns(const ConvertArguments& arguments) {
    Filter filter;
    ColumnConversion conversion(arguments.options, arguments.columns, filter);
    filter.ReadInput(arguments.inputFile.value_or("-"), [&conversion](LineReader& reader, Place& place) {
        return conversion.ConvertLine(reader, place);
    });
    return filter.Finish();
}

int ConvertDates(const ConvertArguments& arguments) {
    Batch batch(arguments.options);
    if (arguments.inputFile) batch.ConvertInput(*arguments.inputFile);
    if (!arguments.inputFile && arguments.dates.empty()) batch.ConvertInput("-");
    Place place{"argument", 0};
    for (const std::string& date : arguments.dates) {
        if (batch.OutputHasFailed()) break;
        ++place.number;
        if (date == "-") {
            batch.ConvertInput(date);
        } else {
            batch.ConvertDate(date, false, place);
        }
    }
    return batch.Finish();
}

}  // namespace

int RunConvert(const ConvertArguments& arguments) {
    if (arguments.scan) return RunScan(arguments);
    return arguments.columns.fields.empty() ? ConvertDates(arguments) : ConvertColumns(arguments);
}

}  // namespace calvoro
