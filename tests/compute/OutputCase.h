#pragma once

// One Compute click as a test row of which only the output counts.

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "compute/ComputeClick.h"
#include "tests/support/Calendars.h"
#include "tests/support/FakeComputeWindow.h"
#include "tests/support/RowName.h"

namespace calvoro {

struct OutputCase {
    std::string name;
    std::string first;
    std::string difference;
    std::string second;
    CalendarNumber firstCalendar;
    CalendarNumber secondCalendar;
    std::string output;                                 // without the line end that closes it
    void (*choose)(ComputeOptions& options) = nullptr;  // on top of the factory settings without Verbose
};

inline void PrintTo(const OutputCase& row, std::ostream* out) {
    *out << row.name;
}

class OutputTest : public testing::TestWithParam<OutputCase> {};

inline void InGerman(ComputeOptions& options) {
    options.texts.InterfaceLanguage = LanguageGerman;
}

/// Clicks and compares the output; no message may be shown.
inline void ExpectOutput(const OutputCase& row) {
    FakeComputeWindow window(row.first, row.difference, row.second);
    window.options.verbose = false;
    window.options.firstCalendar = row.firstCalendar;
    window.options.secondCalendar = row.secondCalendar;
    if (row.choose != nullptr) row.choose(window.options);
    ComputeState state;
    EXPECT_EQ(cmdCompute_Click(window, state), ClickOutcome::Result);
    EXPECT_EQ(window.output, row.output + "\r\n");
    EXPECT_TRUE(window.messages.empty());
}

}  // namespace calvoro
