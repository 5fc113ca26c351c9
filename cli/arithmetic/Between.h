#pragma once

// Days between two dates, for many pairs.

#include <string>

#include "cli/ConvertOptions.h"
#include "cli/DayReader.h"
#include "cli/arithmetic/PairWork.h"
#include "compute/ComputeState.h"

namespace calvoro {

struct BetweenOptions {
    ConvertOptions first;   // how the first date is read, and how answers are written
    ConvertOptions second;  // how the second date is read
    bool includeFirstDate = false;
    bool weekdaysOnly = false;
    bool breakdown = false;  // a second column with years, months or weeks, and days
    char delimiter = '\t';
};

class Between final : public PairWork {
public:
    /// options  must outlive the object
    explicit Between(const BetweenOptions& options);

    std::size_t Room() const override;
    char* Answer(std::string_view first, std::string_view second, char* to, PairRefusal& refusal) override;
    std::size_t AnswerLines(std::string_view block, OutputStream& output, std::uint64_t& lines) override;
    std::string Header() const override;
    std::string_view EmptyAnswer() const override;

private:
    char* WriteBreakdown(char* to);

    const BetweenOptions& options_;
    DayReader first_;
    DayReader second_;
    ComputeState state_;
};

}  // namespace calvoro
