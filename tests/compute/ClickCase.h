#pragma once

// One Compute click as a test row: what stands in the boxes, what is chosen, and every effect in order.

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "compute/ComputeClick.h"
#include "tests/support/FakeComputeWindow.h"
#include "tests/support/RowName.h"

namespace calvoro {

using Choice = void (*)(FakeComputeWindow& window);

struct ClickCase {
    std::string name;
    std::string first;
    std::string difference;
    std::string second;
    Choice choose;                     // on top of the factory settings without Verbose
    std::vector<std::string> effects;  // after the three boxes were trimmed
    ClickOutcome outcome;
};

inline void PrintTo(const ClickCase& row, std::ostream* out) {
    *out << row.name;
}

class ClickTest : public testing::TestWithParam<ClickCase> {};

/// Clicks and compares every effect; the texts of the row must be trimmed ones.
inline void ExpectClick(const ClickCase& row) {
    FakeComputeWindow window(row.first, row.difference, row.second);
    window.options.verbose = false;
    if (row.choose != nullptr) row.choose(window);
    ComputeState state;
    const ClickOutcome outcome = cmdCompute_Click(window, state);

    std::vector<std::string> effects = {"first := " + row.first, "difference := " + row.difference,
                                        "second := " + row.second};
    effects.insert(effects.end(), row.effects.begin(), row.effects.end());
    EXPECT_EQ(window.log, effects);
    EXPECT_EQ(outcome, row.outcome);
}

}  // namespace calvoro
