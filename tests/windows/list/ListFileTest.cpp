#include "windows/list/lines/ListFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <string>

#include "tests/windows/list/ListTesting.h"

namespace calvoro {
namespace {

namespace fs = std::filesystem;

class ListFileTest : public testing::Test {
protected:
    void SetUp() override {
        std::string name = (fs::temp_directory_path() / "calvoro-list-XXXXXX").string();
        ASSERT_NE(::mkdtemp(name.data()), nullptr);
        folder_ = name;
    }
    void TearDown() override { fs::remove_all(folder_); }

    std::string Write(const std::string& name, const std::string& content) const {
        const std::string path = folder_ / name;
        std::ofstream(path, std::ios::binary) << content;
        return path;
    }

    static ListRefusal RefusalOf(const std::string& path) {
        ListFile file(path);
        RunToEnd(file);
        return file.Refusal();
    }

    fs::path folder_;
};

TEST_F(ListFileTest, IsReadWhole) {
    std::string content;
    for (int i = 0; i < 400'000; ++i) content += std::to_string(i) + "\n";
    ListFile file(Write("List.txt", content));
    double before = 0;
    while (!file.Step()) {
        EXPECT_GE(file.Done(), before);
        before = file.Done();
    }
    const auto lines = file.Take();
    ASSERT_EQ(lines->Count(), 400'000U);
    ListLines::Cursor cursor;
    EXPECT_EQ(lines->Line(399'999, cursor), "399999");
}

TEST_F(ListFileTest, IsDividedByItsName) {
    for (const char* name : {"a.csv", "a.CSV", "März.Csv"}) {
        ListFile file(Write(name, "a,1\n"));
        RunToEnd(file);
        EXPECT_EQ(file.Take()->Columns(), 2U) << name;
    }
    for (const char* name : {"csv", "a.csv.txt", "a.tsv", "a.c\x13v", "acsv"}) {
        ListFile file(Write(name, "a,1\n"));
        RunToEnd(file);
        EXPECT_EQ(file.Take()->Columns(), 1U) << name;
    }
}

TEST_F(ListFileTest, IsClosedWhetherItWasReadOrNot) {
    const std::string path = Write("list", "1\n2\n");
    const auto firstFree = [] {
        const int descriptor = ::dup(STDIN_FILENO);
        ::close(descriptor);
        return descriptor;
    };
    const int before = firstFree();
    ASSERT_GE(before, 0);
    { const ListFile opened(path); }
    EXPECT_EQ(firstFree(), before);
    ListFile read(path);
    RunToEnd(read);
    EXPECT_EQ(firstFree(), before);
    EXPECT_EQ(RefusalOf(folder_ / "missing").fault, ListFault::Unreadable);
    EXPECT_EQ(firstFree(), before);
}

TEST_F(ListFileTest, TellsWhyItIsNone) {
    const ListRefusal missing = RefusalOf(folder_ / "missing");
    EXPECT_EQ(missing.fault, ListFault::Unreadable);
    EXPECT_EQ(missing.error, ENOENT);
    EXPECT_EQ(RefusalOf(folder_).fault, ListFault::NoFile);
    EXPECT_EQ(RefusalOf("/dev/zero").fault, ListFault::NoFile);
    EXPECT_EQ(RefusalOf(Write("empty", "")).fault, ListFault::Empty);
    EXPECT_EQ(RefusalOf(Write("binary", std::string("\x7F"
                                                    "ELF\0\0",
                                                    6)))
                  .fault,
              ListFault::NotText);
    const std::string secret = Write("secret", "1\n");
    fs::permissions(secret, fs::perms::none);
    if (::geteuid() != 0) {
        EXPECT_EQ(RefusalOf(secret).error, EACCES);
    }
}

TEST_F(ListFileTest, IsNeverWaitedFor) {
    const std::string pipe = folder_ / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(RefusalOf(pipe).fault, ListFault::NoFile);
}

TEST_F(ListFileTest, RefusesALineOfAGigabyteAtOnce) {
    const std::string path = Write("one-line", "");
    fs::resize_file(path, kLargestList + 1);  // a hole: takes no room on the disk
    ListFile large(path);
    EXPECT_TRUE(large.Step()) << "read before it is refused";
    EXPECT_EQ(large.Refusal().fault, ListFault::TooLarge);
    const std::string text = Write("long-line", std::string(3 * kLongestLine, '1') + "\n2\n");
    EXPECT_EQ(RefusalOf(text).fault, ListFault::LineTooLong);
    EXPECT_EQ(RefusalOf(text).line, 1U);
}

// What another program does to the file while it is read, or afterwards, is no danger.
TEST_F(ListFileTest, MayVanishOrShrinkMeanwhile) {
    const std::string path = Write("list", std::string(4'000'000, '\n'));
    ListFile vanishing(path);
    ASSERT_FALSE(vanishing.Step());
    fs::remove(path);
    RunToEnd(vanishing);
    EXPECT_EQ(vanishing.Take()->Count(), 4'000'000U);

    Write("list", std::string(4'000'000, '\n'));
    ListFile shrinking(path);
    ASSERT_FALSE(shrinking.Step());
    fs::resize_file(path, 10);
    RunToEnd(shrinking);
    EXPECT_EQ(shrinking.Refusal().fault, ListFault::None);
    const auto lines = shrinking.Take();
    EXPECT_LT(lines->Count(), 4'000'000U);
    fs::resize_file(path, 0);
    ListLines::Cursor cursor;
    EXPECT_EQ(lines->Line(lines->Count() - 1, cursor), "");
}

}  // namespace
}  // namespace calvoro
