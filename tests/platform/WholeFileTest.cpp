#include "platform/WholeFile.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace calvoro {
namespace {

namespace fs = std::filesystem;

bool Replace(const std::string& path, const std::string& content) {
    return ReplaceWholeFile(path, [&content](const std::optional<std::string>&) { return content; });
}

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
    ASSERT_TRUE(Replace(path_, content));
    EXPECT_EQ(ReadWholeFile(path_), content);
    ASSERT_TRUE(Replace(path_, "short"));
    EXPECT_EQ(ReadWholeFile(path_), "short");
    ASSERT_TRUE(Replace(path_, ""));
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
    EXPECT_FALSE(Replace((folder_ / "missing" / "file").string(), "x"));
    EXPECT_FALSE(Replace("", "x"));
    EXPECT_TRUE(Names().empty());
}

TEST_F(WholeFile, StaysAsItWasWhenTheDiskIsFull) {
    ASSERT_TRUE(Replace(path_, "old"));
    // A limit on the size of files cuts the writing off as a full disk does; in a process of its own, since
    // the limit stays.
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        const rlimit limit{100, 100};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        ::_exit(Replace(path_, std::string(200'000, 'x')) ? 1 : 0);
    }
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0) << "the failure must be reported";
    EXPECT_EQ(ReadWholeFile(path_), "old");
    EXPECT_EQ(Names(), kOnlyTheFile);
}

TEST_F(WholeFile, LeavesNoLitterWhenItCannotBeReplaced) {
    fs::create_directories(fs::path(path_) / "in the way");
    EXPECT_FALSE(Replace(path_, "x"));
    EXPECT_EQ(Names(), kOnlyTheFile);
}

TEST_F(WholeFile, CleansUpAfterAKilledWriter) {
    std::ofstream(path_ + ".new") << "a part of what another process was writing";
    ASSERT_TRUE(Replace(path_, "x"));
    EXPECT_EQ(ReadWholeFile(path_), "x");
    EXPECT_EQ(Names(), kOnlyTheFile);
}

TEST_F(WholeFile, LeavesALinkInTheTemporaryNameAlone) {
    std::ofstream(folder_ / "precious") << "precious";
    fs::create_symlink(folder_ / "precious", path_ + ".new");
    EXPECT_FALSE(Replace(path_, "x"));
    EXPECT_EQ(ReadWholeFile((folder_ / "precious").string()), "precious");
    EXPECT_TRUE(fs::is_symlink(path_ + ".new"));
}

TEST_F(WholeFile, LeavesAPipeInTheTemporaryNameAloneAndDoesNotWaitForIt) {
    ASSERT_TRUE(Replace(path_, "old"));
    ASSERT_EQ(::mkfifo((path_ + ".new").c_str(), 0600), 0);
    EXPECT_FALSE(Replace(path_, "x"));
    EXPECT_TRUE(fs::is_fifo(path_ + ".new"));
    EXPECT_EQ(ReadWholeFile(path_), "old");
}

TEST_F(WholeFile, LeavesAFolderInTheTemporaryNameAlone) {
    fs::create_directory(path_ + ".new");
    EXPECT_FALSE(Replace(path_, "x"));
    EXPECT_TRUE(fs::is_directory(path_ + ".new"));
}

TEST_F(WholeFile, LeavesWhatIsNoOrdinaryFileAlone) {
    ASSERT_EQ(::mkfifo(path_.c_str(), 0600), 0);
    EXPECT_FALSE(Replace(path_, "x"));
    DeleteWholeFile(path_);
    EXPECT_TRUE(fs::is_fifo(path_));

    // A device, where the folder is the tests' own.
    fs::remove(path_);
    fs::create_symlink("/dev/null", path_);
    EXPECT_FALSE(Replace(path_, "x"));
    DeleteWholeFile(path_);
    EXPECT_TRUE(fs::is_symlink(path_));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));

    fs::remove(path_);
    fs::create_directory(path_);
    EXPECT_FALSE(Replace(path_, "x"));
    DeleteWholeFile(path_);
    EXPECT_TRUE(fs::is_directory(path_));
    EXPECT_EQ(Names(), kOnlyTheFile);
}

TEST_F(WholeFile, IsLeftAloneWithoutWritePermission) {
    ASSERT_TRUE(Replace(path_, "old"));
    fs::permissions(path_, fs::perms::owner_read);
    EXPECT_FALSE(Replace(path_, "x"));
    EXPECT_EQ(ReadWholeFile(path_), "old");
    DeleteWholeFile(path_);
    EXPECT_EQ(Names(), kOnlyTheFile);
}

TEST_F(WholeFile, IsForTheUserAloneWhenItIsNew) {
    ASSERT_TRUE(Replace(path_, "x"));
    EXPECT_EQ(fs::status(path_).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(WholeFile, KeepsItsPermissions) {
    ASSERT_TRUE(Replace(path_, "x"));
    const auto shared = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read |
                        fs::perms::group_write | fs::perms::others_read;
    fs::permissions(path_, shared);
    ASSERT_TRUE(Replace(path_, "y"));
    EXPECT_EQ(fs::status(path_).permissions(), shared);
}

TEST_F(WholeFile, FollowsALinkAndKeepsPermissions) {
    const fs::path real = folder_ / "kept elsewhere";
    std::ofstream(real) << "old";
    fs::permissions(real, fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink(real, path_);
    ASSERT_TRUE(Replace(path_, "new"));
    EXPECT_TRUE(fs::is_symlink(path_));
    EXPECT_EQ(ReadWholeFile(real.string()), "new");
    EXPECT_EQ(fs::status(real).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(WholeFile, IsMadeWhereALinkLeads) {
    fs::create_symlink("another", path_);
    fs::create_symlink(folder_ / "real", folder_ / "another");
    ASSERT_TRUE(Replace(path_, "new"));
    EXPECT_TRUE(fs::is_symlink(path_));
    EXPECT_FALSE(fs::is_symlink(folder_ / "real"));
    EXPECT_EQ(ReadWholeFile((folder_ / "real").string()), "new");
}

TEST_F(WholeFile, IsNotReplacedAtTheEndOfLinksInACircle) {
    fs::create_symlink("file", path_);
    EXPECT_FALSE(Replace(path_, "x"));
    EXPECT_TRUE(fs::is_symlink(path_));
}

TEST_F(WholeFile, IsMadeFromWhatItHolds) {
    const auto twice = [](const std::optional<std::string>& current) {
        return current ? *current + *current : std::string("x");
    };
    ASSERT_TRUE(ReplaceWholeFile(path_, twice));
    ASSERT_TRUE(ReplaceWholeFile(path_, twice));
    ASSERT_TRUE(ReplaceWholeFile(path_, twice));
    EXPECT_EQ(ReadWholeFile(path_), "xxxx");
}

TEST_F(WholeFile, KeepsWhatEveryWriterAdds) {
    std::vector<pid_t> writers;
    for (int writer = 0; writer < 3; ++writer) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            bool good = true;
            for (int round = 0; round < 20; ++round) {
                good = ReplaceWholeFile(path_,
                                        [writer](const std::optional<std::string>& current) {
                                            return current.value_or("") + static_cast<char>('a' + writer);
                                        }) &&
                       good;
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
    const std::string content = ReadWholeFile(path_).value_or("");
    for (const char letter : {'a', 'b', 'c'}) {
        EXPECT_EQ(std::count(content.begin(), content.end(), letter), 20) << letter;
    }
}

TEST_F(WholeFile, IsDeletedWhetherItIsThereOrNot) {
    ASSERT_TRUE(Replace(path_, "x"));
    DeleteWholeFile(path_);
    EXPECT_TRUE(Names().empty());
    DeleteWholeFile(path_);
    DeleteWholeFile("");
    EXPECT_TRUE(Names().empty());
}

// Large enough for the writing to be met in the middle.
const std::string kOne(300'000, 'a');
const std::string kOther(300'000, 'b');

TEST_F(WholeFile, IsWholeWheneverItsWriterIsKilled) {
    // An emulator or a busy machine takes many times as long; the kills spread over four rounds of the
    // writer.
    const auto start = std::chrono::steady_clock::now();
    ASSERT_TRUE(Replace(path_, kOther));
    ASSERT_TRUE(Replace(path_, kOne));
    const std::chrono::microseconds round =
        std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - start);
    int replaced = 0;
    for (int kill = 0; kill < 60; ++kill) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            for (;;) {
                Replace(path_, kOther);
                Replace(path_, kOne);
            }
        }
        std::this_thread::sleep_for(std::max(std::chrono::microseconds(500 + kill * 137), round * kill / 15));
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
                good = Replace(path_, *content) && good;
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
    EXPECT_TRUE(Replace(path_, "x"));
    ::close(folder);
    EXPECT_EQ(ReadWholeFile(path_), "x");
}

}  // namespace
}  // namespace calvoro
