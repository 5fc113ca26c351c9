#include "platform/FileReplacement.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

namespace calvoro {
namespace {

namespace fs = std::filesystem;

class FileReplacementTest : public testing::Test {
protected:
    void SetUp() override {
        std::string name = (fs::temp_directory_path() / "calvoro-piece-XXXXXX").string();
        ASSERT_NE(::mkdtemp(name.data()), nullptr);
        folder_ = name;
        path_ = folder_ / "file";
    }
    void TearDown() override { fs::remove_all(folder_); }

    static std::string Content(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    static void Put(const std::string& path, const std::string& content) { std::ofstream(path) << content; }
    static fs::perms Permissions(const std::string& path) { return fs::status(path).permissions(); }

    std::set<std::string> Names() const {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder_)) names.insert(entry.path().filename());
        return names;
    }
    static int ErrorOf(const std::string& path) {
        FileReplacement file(path);
        file.Write("new");
        file.Commit();
        return file.Error();
    }

    const std::set<std::string> kOnlyTheFile = {"file"};
    fs::path folder_;
    std::string path_;
};

TEST_F(FileReplacementTest, IsTheFileOnlyWhenItIsWhole) {
    Put(path_, "old");
    FileReplacement file(path_);
    file.Write("one ");
    file.Write("");
    file.Write("two");
    EXPECT_EQ(Content(path_), "old");
    file.Commit();
    EXPECT_EQ(file.Error(), 0);
    EXPECT_EQ(Content(path_), "one two");
    EXPECT_EQ(Names(), kOnlyTheFile);
}

TEST_F(FileReplacementTest, LeavesNothingWhenItIsGivenUp) {
    { FileReplacement(path_).Write("new"); }
    EXPECT_EQ(Names(), std::set<std::string>{});
    Put(path_, "old");
    { FileReplacement(path_).Write("new"); }
    EXPECT_EQ(Content(path_), "old");
    EXPECT_EQ(Names(), kOnlyTheFile);
}

TEST_F(FileReplacementTest, LeavesWhatElseLiesBesideTheFile) {
    Put(path_ + ".new", "mine");
    EXPECT_EQ(ErrorOf(path_), 0);
    EXPECT_EQ(Content(path_ + ".new"), "mine");
}

TEST_F(FileReplacementTest, KeepsPermissions) {
    Put(path_, "old");
    fs::permissions(path_, fs::perms(0640));
    EXPECT_EQ(ErrorOf(path_), 0);
    EXPECT_EQ(Permissions(path_), fs::perms(0640));
    const mode_t before = ::umask(027);
    EXPECT_EQ(ErrorOf(folder_ / "fresh"), 0);
    ::umask(before);
    EXPECT_EQ(Permissions(folder_ / "fresh"), fs::perms(0640));
}

TEST_F(FileReplacementTest, FollowsLinks) {
    fs::create_directory(folder_ / "there");
    fs::create_symlink("there/target", path_);
    EXPECT_EQ(ErrorOf(path_), 0);
    EXPECT_TRUE(fs::is_symlink(path_));
    EXPECT_EQ(Content(folder_ / "there" / "target"), "new");
}

TEST_F(FileReplacementTest, ReplacesNothingButOrdinaryFiles) {
    EXPECT_EQ(ErrorOf(folder_), EISDIR);
    EXPECT_EQ(ErrorOf(folder_ / "no" / "file"), ENOENT);
    EXPECT_EQ(ErrorOf(""), ENOENT);
    EXPECT_EQ(ErrorOf("/dev/full"), EINVAL);
    ASSERT_EQ(::mkfifo((folder_ / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(ErrorOf(folder_ / "pipe"), EINVAL);
    Put(path_, "old");
    fs::permissions(path_, fs::perms(0400));
    EXPECT_EQ(ErrorOf(path_), EACCES);
    EXPECT_EQ(Content(path_), "old");
}

TEST_F(FileReplacementTest, SurvivesALimitOnTheSizeOfFiles) {
    Put(path_, "old");
    struct rlimit before {};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    struct rlimit low = before;
    low.rlim_cur = 1000;
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &low), 0);
    {
        FileReplacement file(path_);
        file.Write(std::string(900, 'x'));
        EXPECT_EQ(file.Error(), 0);
        file.Write(std::string(900, 'x'));
        EXPECT_EQ(file.Error(), EFBIG);
        EXPECT_EQ(Names(), kOnlyTheFile);
        file.Write("y");
        file.Commit();
        EXPECT_EQ(file.Error(), EFBIG);
    }
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
    EXPECT_EQ(Content(path_), "old");
    EXPECT_EQ(Names(), kOnlyTheFile);
}

}  // namespace
}  // namespace calvoro
