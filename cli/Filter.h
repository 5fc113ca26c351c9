#pragma once

// What all filters do beside their work on a line: they read named inputs, show how far they have come, tell
// what is refused, and end with a status.

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Diagnostics.h"
#include "cli/ExitStatus.h"
#include "cli/FinishOutput.h"
#include "cli/InputFile.h"
#include "cli/LineReader.h"
#include "cli/OutputStream.h"
#include "platform/Streams.h"

namespace calvoro {

/// Where a text comes from, for a message: "stdin:3".
struct Place {
    std::string_view source;
    std::uint64_t number = 0;
};

class Filter {
public:
    Filter() : diagnostics_(kStandardError), output_(kStandardOutput) {}

    OutputStream& Output() { return output_; }

    /// Reads a whole input; "-" is the standard input.
    /// step  is given the reader and the place of the last line, takes what it likes, moves the place on, and
    ///       returns false when there is nothing left
    template <typename Reader = LineReader, typename Step>
    void ReadInput(const std::string& name, const Step& step) {
        const InputFile file(name);
        int error = file.Error();
        if (error == 0) error = ReadAll<Reader>(file, step);
        if (error == 0) return;
        PrintSystemError(file.ShownName(), error, diagnostics_);
        allGood_ = false;
    }

    /// Ends a line of the output, and tells what was refused in it.
    void EndLine(std::string_view end) {
        output_.Append(end);
        if (!refusals_.empty()) TellRefusals();
    }

    /// Notes why a text of the line is refused.
    void Refuse(std::string_view refusal, std::string_view text, const Place& place);

    /// returns  the exit status
    int Finish() { return FinishOutput(output_, allGood_ ? kExitAllGood : kExitRefused, diagnostics_); }

private:
    static constexpr std::chrono::milliseconds kProgressInterval{200};

    template <typename Reader, typename Step>
    int ReadAll(const InputFile& file, const Step& step) {
        Reader reader(file.Descriptor(), output_);
        const std::uint64_t size = SizeForProgress(file.Descriptor(), kStandardOutput, kStandardError);
        if (size > 0) diagnostics_.BeginProgress(size, kProgressInterval);
        std::uint64_t lastShown = 0;
        Place place{file.ShownName(), 0};
        while (!output_.HasFailed() && step(reader, place)) {
            if (reader.BytesRead() == lastShown) continue;
            lastShown = reader.BytesRead();
            diagnostics_.ShowProgress(lastShown);
        }
        diagnostics_.EndProgress();
        return reader.Error();
    }

    void TellRefusals();

    Diagnostics diagnostics_;
    OutputStream output_;
    std::vector<std::string> refusals_;
    bool allGood_ = true;
};

}  // namespace calvoro
