#include "cli/ConvertCommand.h"

#include <unistd.h>

#include <chrono>
#include <cstdint>
#include <string_view>

#include "cli/Arguments.h"
#include "cli/Conversion.h"
#include "cli/Diagnostics.h"
#include "cli/ExitStatus.h"
#include "cli/HelpTexts.h"
#include "cli/InputFile.h"
#include "cli/LineReader.h"
#include "cli/OutputStream.h"
#include "cli/QuotedText.h"
#include "cli/Usage.h"
#include "datetext/Tags.h"

namespace calvoro {
namespace {

constexpr std::chrono::milliseconds kProgressInterval{200};

/// Converts what it is given, and remembers whether all of it was good.
class Batch {
public:
    Batch(const ConvertOptions& options, Diagnostics& diagnostics)
        : options_(options), conversion_(options), diagnostics_(diagnostics), output_(STDOUT_FILENO) {}

    /// source  the name of the input and `number` the line in it, for a message
    void ConvertLine(std::string_view text, bool isCut, std::string_view source, std::uint64_t number) {
        const ConversionOutcome outcome =
            isCut ? ConversionOutcome{Refusal::NotValid, options_.from} : conversion_.Convert(text, output_);
        output_.Append('\n');
        if (outcome.refusal != Refusal::None) Refuse(outcome, text, isCut, source, number);
    }

    /// Converts a whole input; "-" is the standard input.
    void ConvertInput(const std::string& name) {
        const InputFile file(name);
        int error = file.Error();
        if (error == 0) error = ConvertLines(file.Descriptor(), file.ShownName());
        if (error == 0) return;
        PrintSystemError(file.ShownName(), error, diagnostics_);
        allGood_ = false;
    }

    bool OutputHasFailed() const { return output_.HasFailed(); }

    int Finish() { return FinishOutput(output_, allGood_ ? kExitAllGood : kExitRefused, diagnostics_); }

private:
    int ConvertLines(int descriptor, std::string_view source) {
        LineReader reader(descriptor, output_);
        const std::uint64_t size = SizeForProgress(descriptor, STDOUT_FILENO, STDERR_FILENO);
        if (size > 0) diagnostics_.BeginProgress(size, kProgressInterval);
        std::uint64_t number = 0;
        std::uint64_t lastShown = 0;
        std::string_view line;
        while (!output_.HasFailed() && reader.Next(line)) {
            ConvertLine(line, reader.IsCut(), source, ++number);
            if (reader.BytesRead() != lastShown) {
                lastShown = reader.BytesRead();
                diagnostics_.ShowProgress(lastShown);
            }
        }
        diagnostics_.EndProgress();
        return reader.Error();
    }

    void Refuse(const ConversionOutcome& outcome, std::string_view text, bool isCut, std::string_view source,
                std::uint64_t number) {
        allGood_ = false;
        // On a terminal the message belongs below the line it is about.
        if (isatty(STDOUT_FILENO) != 0) output_.Flush();
        std::string message(source);
        message.append(":").append(std::to_string(number)).append(": ");
        message.append(outcome.refusal == Refusal::NotValid ? "not valid in " : "out of range in ");
        message.append(TagText(outcome.notation));
        if (isCut) message.append(", longer than a line may be");
        diagnostics_.Print(message.append(": ").append(QuotedText(text)));
    }

    const ConvertOptions& options_;
    Conversion conversion_;
    Diagnostics& diagnostics_;
    OutputStream output_;
    bool allGood_ = true;
};

}  // namespace

int RunConvert(const std::vector<std::string>& words) {
    ConvertArguments arguments;
    const ArgumentsOutcome outcome = ReadConvertArguments(words, arguments);
    if (!outcome.Runs()) return AnswerUsage(outcome, "convert", kConvertHelp);

    Diagnostics diagnostics(STDERR_FILENO);
    Batch batch(arguments.options, diagnostics);
    if (arguments.inputFile) batch.ConvertInput(*arguments.inputFile);
    if (!arguments.inputFile && arguments.dates.empty()) batch.ConvertInput("-");
    std::uint64_t number = 0;
    for (const std::string& date : arguments.dates) {
        if (batch.OutputHasFailed()) break;
        ++number;
        if (date == "-") {
            batch.ConvertInput(date);
        } else {
            batch.ConvertLine(date, false, "argument", number);
        }
    }
    return batch.Finish();
}

}  // namespace calvoro
