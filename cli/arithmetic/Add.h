#pragma once

// A date plus days or months, for many pairs.

#include <string>

#include "cli/ConvertOptions.h"
#include "cli/DayReader.h"
#include "cli/RecordWriter.h"
#include "cli/arithmetic/PairWork.h"
#include "compute/ComputeState.h"

namespace calvoro {

struct AddOptions {
    ConvertOptions dates;  // how the date is read, and how answers are written; with targets
    DifferenceUnit unit = DifferenceUnit::Days;
    bool includeFirstDate = false;
    bool weekdaysOnly = false;
    char delimiter = '\t';
};

class Add final : public PairWork {
public:
    /// options  must outlive the object
    explicit Add(const AddOptions& options);

    std::size_t Room() const override { return writer_.Room(); }
    char* Answer(std::string_view date, std::string_view number, char* to, PairRefusal& refusal) override;
    std::size_t AnswerLines(std::string_view block, OutputStream& output, std::uint64_t& lines) override;
    std::string Header() const override;
    std::string_view EmptyAnswer() const override { return emptyAnswer_; }

private:
    bool FindDate(std::int32_t jdn, CalendarNumber notation);

    const AddOptions& options_;
    DayReader reader_;
    RecordWriter writer_;
    std::string emptyAnswer_;
    ComputeState state_;
};

}  // namespace calvoro
