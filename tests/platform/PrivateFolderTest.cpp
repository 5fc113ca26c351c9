#include "platform/PrivateFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace calvoro {
namespace {

namespace fs = std::filesystem;

class PrivateFolder : public testing::Test {
protected:
    void SetUp() override {
        std::string name = (fs::temp_directory_path() / "calvoro-folder-XXXXXX").string();
        ASSERT_NE(::mkdtemp(name.data()), nullptr);
        folder_ = name;
    }
    void TearDown() override { fs::remove_all(folder_); }

    std::string Path(const char* name) const { return (folder_ / name).string(); }

    fs::path folder_;
};

TEST_F(PrivateFolder, IsForTheUserAlone) {
    EXPECT_TRUE(MakePrivateFolder(Path("a")));
    EXPECT_EQ(fs::status(Path("a")).permissions(), fs::perms::owner_all);
    EXPECT_TRUE(MakePrivateFolders(Path("b/c/d")));
    for (const char* made : {"b", "b/c", "b/c/d"}) {
        EXPECT_EQ(fs::status(Path(made)).permissions(), fs::perms::owner_all) << made;
    }
}

TEST_F(PrivateFolder, StaysAsItIsWhenItIsThere) {
    fs::create_directory(Path("a"));
    fs::permissions(Path("a"), fs::perms::owner_all | fs::perms::group_read);
    EXPECT_TRUE(MakePrivateFolder(Path("a")));
    EXPECT_TRUE(MakePrivateFolders(Path("a/b")));
    EXPECT_EQ(fs::status(Path("a")).permissions(), fs::perms::owner_all | fs::perms::group_read);
}

TEST_F(PrivateFolder, CannotBeMadeEverywhere) {
    EXPECT_FALSE(MakePrivateFolder(Path("missing/a"))) << "one level only";
    EXPECT_FALSE(fs::exists(Path("missing")));
    std::ofstream(Path("file")) << "x";
    EXPECT_FALSE(MakePrivateFolder(Path("file")));
    EXPECT_FALSE(MakePrivateFolders(Path("file/a")));
    EXPECT_FALSE(MakePrivateFolder(""));
    EXPECT_FALSE(MakePrivateFolders(""));
}

}  // namespace
}  // namespace calvoro
