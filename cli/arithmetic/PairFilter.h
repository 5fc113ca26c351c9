#pragma once

#include <optional>
#include <string>

#include "cli/arithmetic/PairWork.h"
#include "cli/columns/ColumnOptions.h"

namespace calvoro {

/// Where the two texts come from: the arguments, or two columns of every line of an input.
struct PairSource {
    std::optional<std::string> first;
    std::optional<std::string> second;
    std::string input = "-";
    ColumnOptions columns;  // with two fields
};

/// Answers every pair with one line of output, in order; a refused one gets empty columns and a message.
/// returns  the exit status
int AnswerPairs(const PairSource& source, PairWork& work);

}  // namespace calvoro
