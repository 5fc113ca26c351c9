#include "cli/scan/ScanCommand.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "cli/Filter.h"
#include "cli/RecordWriter.h"
#include "cli/scan/BlockReader.h"
#include "cli/scan/DateScanner.h"

namespace calvoro {
namespace {

static_assert(DateScanner::kMostOpen <= BlockReader::kMostKept && kBytesBefore <= BlockReader::kMostKept);

class Scan {
public:
    explicit Scan(const ConvertOptions& options) : scanner_(options.from), writer_(options) {}

    /// Converts a whole input; "-" is the standard input.
    void ScanInput(const std::string& name) {
        std::size_t at = 0;
        filter_.ReadInput<BlockReader>(name, [this, &at](BlockReader& reader, Place& place) {
            if (reader.BytesRead() == 0) place.number = 1;
            const bool more = reader.ReadOn(at, kBytesBefore);
            at = reader.Begin();
            ScanText(
                reader.Text(), !more, at,
                [this, &place](std::string_view passed) {
                    Pass(passed);
                    place.number +=
                        static_cast<std::uint64_t>(std::count(passed.begin(), passed.end(), '\n'));
                },
                place);
            return more;
        });
    }

    /// Converts a text of its own.
    void ScanArgument(std::string_view text, const Place& place) {
        std::size_t at = 0;
        ScanText(
            text, true, at, [this](std::string_view passed) { Pass(passed); }, place);
        filter_.EndLine("\n");
    }

    bool OutputHasFailed() { return filter_.Output().HasFailed(); }

    int Finish() { return filter_.Finish(); }

private:
    // at    where to begin; moved behind everything that could be judged
    // pass  is given what comes between the dates
    template <typename PassOn>
    void ScanText(std::string_view text, bool isWhole, std::size_t& at, const PassOn& pass,
                  const Place& place) {
        for (;;) {
            const std::size_t begin = at;
            const std::optional<ScannedDate> date = scanner_.Next(text, isWhole, at);
            pass(text.substr(begin, at - begin));
            if (!date) return;
            ConvertDate(*date, text.substr(at, date->length), place);
            at += date->length;
        }
    }

    void Pass(std::string_view text) { filter_.Output().Append(text); }

    void ConvertDate(const ScannedDate& date, std::string_view text, const Place& place) {
        if (writer_.CanWrite(date.jdn)) {
            filter_.Output().AppendWith(writer_.Room(),
                                        [&](char* to) { return writer_.Write(date.jdn, to); });
            return;
        }
        Pass(text);
        filter_.Refuse(writer_.RefusalText(date.jdn), text, place);
        filter_.EndLine({});
    }

    DateScanner scanner_;
    RecordWriter writer_;
    Filter filter_;
};

}  // namespace

int RunScan(const ConvertArguments& arguments) {
    Scan scan(arguments.options);
    if (arguments.inputFile) scan.ScanInput(*arguments.inputFile);
    if (!arguments.inputFile && arguments.dates.empty()) scan.ScanInput("-");
    Place place{"argument", 0};
    for (const std::string& text : arguments.dates) {
        if (scan.OutputHasFailed()) break;
        ++place.number;
        if (text == "-") {
            scan.ScanInput(text);
        } else {
            scan.ScanArgument(text, place);
        }
    }
    return scan.Finish();
}

}  // namespace calvoro
