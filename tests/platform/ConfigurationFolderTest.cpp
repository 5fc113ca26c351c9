#include "platform/ConfigurationFolder.h"

#include <gtest/gtest.h>

#include <ostream>

namespace calvoro {
namespace {

struct FolderRow {
    const char* name;
    const char* configured;
    const char* home;
    const char* accountHome;
    const char* folder;

    friend void PrintTo(const FolderRow& row, std::ostream* out) { *out << row.name; }
};

class Folder : public testing::TestWithParam<FolderRow> {};

TEST_P(Folder, IsTheFirstAbsoluteOne) {
    const FolderRow& row = GetParam();
    EXPECT_EQ(ConfigurationFolder(row.configured, row.home, row.accountHome), row.folder);
}

INSTANTIATE_TEST_SUITE_P(ConfigurationFolder, Folder,
                         testing::Values(FolderRow{"Configured", "/c", "/h", "/a", "/c"},
                                         FolderRow{"ConfiguredWithSeparators", "/c//", "/h", "/a", "/c"},
                                         FolderRow{"ConfiguredIsRelative", "c", "/h", "/a", "/h/.config"},
                                         FolderRow{"Home", "", "/h", "/a", "/h/.config"},
                                         FolderRow{"HomeWithSeparator", "", "/h/", "/a", "/h/.config"},
                                         FolderRow{"HomeIsTheRoot", "", "/", "/a", "/.config"},
                                         FolderRow{"HomeIsUnset", "", "", "/a", "/a/.config"},
                                         FolderRow{"HomeIsRelative", "", "h", "/a", "/a/.config"},
                                         FolderRow{"HomeIsADot", "", ".", "/a", "/a/.config"},
                                         FolderRow{"NoneIsAbsolute", "c", "h", "a", ""},
                                         FolderRow{"NoneIsGiven", "", "", "", ""}),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace calvoro
