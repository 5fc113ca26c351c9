#include "platform/WholeFile.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <vector>

namespace calvoro {
namespace {

namespace fs = std::filesystem;

class WholeFile : public testing::Test {
protected:
    void SetUp() override {
        std::string name = (fs::temp_directory_path() / "calvoro-file-XXXXXX").string();
        ASSERT_NE(::mkdtemp(name.data()), nullptr);
        folder_ = name;
        path_ = (folder_ / "file").string();
    }
    void TearDown() override { fs::remove_all(folder_); }

    std::set<std::string> Names() const {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder_)) names.insert(entry.path().filename());
        return names;
    }

    const std::set<std::string> kOnlyTheFile = {"file"};
    fs::path folder_;
    std::string path_;
};

TEST_F(WholeFile, HoldsEveryByteThatWasWritten) {
    std::string content;
    for (int i = 0; i < 300'000; ++i) content += static_cast<char>(i * 7);
    ASSERT_TRUE(ReplaceWholeFile(path_, content));
    EXPECT_EQ(ReadWholeFile(path_), content);
    ASSERT_TRUE(ReplaceWholeFile(path_, "short"));
    EXPECT_EQ(ReadWholeFile(path_), "short");
    ASSERT_TRUE(ReplaceWholeFile(path_, ""));
    EXPECT_EQ(ReadWholeFile(path_), "");
    EXPECT_EQ(Names(), kOnlyTheFile);
}

TEST_F(WholeFile, IsReadOnlyWhenItIsAnOrdinaryFile) {
    EXPECT_EQ(ReadWholeFile(path_), std::nullopt) << "missing";
    EXPECT_EQ(ReadWholeFile(""), std::nullopt) << "no path";
    EXPECT_EQ(ReadWholeFile(folder_.string()), std::nullopt) << "a folder";
    EXPECT_EQ(ReadWholeFile("/dev/zero"), std::nullopt) << "a device without end";
    ASSERT_EQ(::mkfifo(path_.c_str(), 0600), 0);
    EXPECT_EQ(ReadWholeFile(path_), std::nullopt) << "a pipe, which must not be waited for";
}

TEST_F(WholeFile, IsNotMadeInAMissingFolder) {
    EXPECT_FALSE(ReplaceWholeFile((folder_ / "missing" / "file").string(), "x"));
    EXPECT_FALSE(ReplaceWholeFile("", "x"));
    EXPECT_TRUE(Names().empty());
}

TEST_F(WholeFile, StaysAsItWasWhenTheDiskIsFull) {
    ASSERT_TRUE(ReplaceWholeFile(path_, "old"));
    // A limit on the size of files cuts the writing off as a full disk does; in a process of its own, since
    // the limit stays.
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{100, 100};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        ::_exit(ReplaceWholeFile(path_, std::string(200'000, 'x')) ? 1 : 0);
    }
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0) << "the failure must be reported";
    EXPECT_EQ(ReadWholeFile(path_), "old");
    EXPECT_EQ(Names(), kOnlyTheFile);
}

TEST_F(WholeFile, LeavesNoLitterWhenItCannotBeReplaced) {
    fs::create_directories(fs::path(path_) / "in the way");
    EXPECT_FALSE(ReplaceWholeFile(path_, "x"));
    EXPECT_EQ(Names(), kOnlyTheFile);
}

TEST_F(WholeFile, CleansUpAfterAKilledWriter) {
    std::ofstream(path_ + ".new") << "a part of what another process was writing";
    ASSERT_TRUE(ReplaceWholeFile(path_, "x"));
    EXPECT_EQ(ReadWholeFile(path_), "x");
    EXPECT_EQ(Names(), kOnlyTheFile);
}

TEST_F(WholeFile, DoesNotWriteThroughALinkInTheTemporaryName) {
    std::ofstream(folder_ / "precious") << "precious";
    fs::create_symlink(folder_ / "precious", path_ + ".new");
    EXPECT_FALSE(ReplaceWholeFile(path_, "x"));
    EXPECT_EQ(ReadWholeFile((folder_ / "precious").string()), "precious");
    // The link is gone, so the next attempt is good.
    EXPECT_TRUE(ReplaceWholeFile(path_, "x"));
}

TEST_F(WholeFile, FollowsALinkAndKeepsPermissions) {
    const fs::path real = folder_ / "kept elsewhere";
    std::ofstream(real) << "old";
    fs::permissions(real, fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink(real, path_);
    ASSERT_TRUE(ReplaceWholeFile(path_, "new"));
    EXPECT_TRUE(fs::is_symlink(path_));
    EXPECT_EQ(ReadWholeFile(real.string()), "new");
    EXPECT_EQ(fs::status(real).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

// Large enough for the writing to be met in the middle.
const std::string kOne(300'000, 'a');
const std::string kOther(300'000, 'b');

TEST_F(WholeFile, IsWholeWheneverItsWriterIsKilled) {
    ASSERT_TRUE(ReplaceWholeFile(path_, kOne));
    int replaced = 0;
    for (int kill = 0; kill < 60; ++kill) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            for (;;) {
                ReplaceWholeFile(path_, kOther);
                ReplaceWholeFile(path_, kOne);
            }
        }
        ::usleep(static_cast<useconds_t>(500 + kill * 137));
        ASSERT_EQ(::kill(child, SIGKILL), 0);
        ASSERT_EQ(::waitpid(child, nullptr, 0), child);
        const auto read = ReadWholeFile(path_);
        ASSERT_TRUE(read == kOne || read == kOther) << "after " << kill + 1 << " kills";
        if (read == kOther) ++replaced;
    }
    EXPECT_GT(replaced, 0) << "no writer got as far as replacing the file";
    EXPECT_LE(Names().size(), 2U) << "at most the file and one temporary one";
}

TEST_F(WholeFile, IsWholeWhenTwoWriteAtOnce) {
    std::vector<pid_t> writers;
    for (const std::string* content : {&kOne, &kOther}) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            bool good = true;
            for (int round = 0; round < 50; ++round) {
                good = ReplaceWholeFile(path_, *content) && good;
                const auto read = ReadWholeFile(path_);
                good = good && (read == kOne || read == kOther);
            }
            ::_exit(good ? 0 : 1);
        }
        writers.push_back(child);
    }
    for (const pid_t writer : writers) {
        int status = -1;
        ASSERT_EQ(::waitpid(writer, &status, 0), writer);
        EXPECT_EQ(status, 0);
    }
    EXPECT_EQ(Names(), kOnlyTheFile);
}

TEST_F(WholeFile, IsWrittenAllTheSameWhenSomeoneElseKeepsTheFolderLocked) {
    const int folder = ::open(folder_.c_str(), O_RDONLY | O_DIRECTORY);
    ASSERT_GE(folder, 0);
    ASSERT_EQ(::flock(folder, LOCK_EX), 0);
    EXPECT_TRUE(ReplaceWholeFile(path_, "x"));
    ::close(folder);
    EXPECT_EQ(ReadWholeFile(path_), "x");
}

}  // namespace
}  // namespace calvoro
