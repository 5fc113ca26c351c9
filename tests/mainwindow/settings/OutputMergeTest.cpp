#include "mainwindow/settings/OutputMerge.h"

#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <string>

namespace calvoro {
namespace {

// Letters stand for result lines: s and t what was there at the start, a what this window has added, b and c
// what others have. A missing text is nullptr.
struct MergeRow {
    const char* name;
    const char* start;
    const char* file;
    const char* window;
    const char* merged;

    friend void PrintTo(const MergeRow& row, std::ostream* out) { *out << row.name; }
};

std::optional<std::string_view> Given(const char* text) {
    return text == nullptr ? std::nullopt : std::optional<std::string_view>(text);
}

class Merge : public testing::TestWithParam<MergeRow> {};

TEST_P(Merge, LosesNothingAndSavesNothingTwice) {
    const MergeRow& row = GetParam();
    EXPECT_EQ(MergedOutput(row.start, Given(row.file), Given(row.window)), row.merged);
}

INSTANTIATE_TEST_SUITE_P(
    Output, Merge,
    testing::Values(
        // Nobody else has saved.
        MergeRow{"FirstEver", "", nullptr, "a", "a"}, MergeRow{"Alone", "st", "st", "sta", "sta"},
        MergeRow{"AloneAndEmptied", "st", "st", "", ""}, MergeRow{"AloneAndEdited", "st", "st", "xta", "xta"},
        MergeRow{"AloneFromNothing", "", "", "a", "a"}, MergeRow{"AloneNotSaving", "st", "st", nullptr, ""},
        // The file was deleted, by Reset or by hand.
        MergeRow{"Deleted", "st", nullptr, "sta", "sta"},
        MergeRow{"DeletedNotSaving", "st", nullptr, nullptr, ""},
        // Somebody has added.
        MergeRow{"Both", "st", "stb", "sta", "stba"}, MergeRow{"Several", "st", "stbc", "sta", "stbca"},
        MergeRow{"OnlyTheOther", "st", "stb", "st", "stb"}, MergeRow{"BothFromNothing", "", "b", "a", "ba"},
        MergeRow{"SameLine", "st", "sta", "sta", "staa"},
        // Somebody has emptied or edited.
        MergeRow{"EmptiedByTheOther", "st", "", "sta", "sta"},
        MergeRow{"EmptiedAndAddedByTheOther", "st", "b", "sta", "stba"},
        MergeRow{"EditedByTheOther", "st", "xtb", "sta", "stxtba"},
        // This window has emptied or edited.
        MergeRow{"EmptiedHere", "st", "stb", "", "b"},
        MergeRow{"EmptiedAndAddedHere", "st", "stb", "a", "ba"},
        MergeRow{"EditedHere", "st", "stb", "xta", "bxta"}, MergeRow{"EmptiedByBoth", "st", "b", "a", "ba"},
        // This window does not save.
        MergeRow{"NotSavingBesideAdded", "st", "stb", nullptr, "b"},
        MergeRow{"NotSavingBesideEmptied", "st", "", nullptr, ""},
        MergeRow{"NotSavingFromNothing", "", "b", nullptr, "b"}),
    [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace calvoro
