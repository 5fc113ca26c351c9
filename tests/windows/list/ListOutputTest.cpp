#include "windows/list/lines/ListOutput.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "tests/windows/list/ListTesting.h"
#include "windows/list/lines/ListToFile.h"

namespace calvoro {
namespace {

namespace fs = std::filesystem;

constexpr OutputForm kTabs{.csv = false, .withGiven = true};
constexpr OutputForm kBare{.csv = false, .withGiven = false};
constexpr OutputForm kCsv{.csv = true, .withGiven = true};

std::string Written(const ListSheet& sheet, OutputForm form, ChosenRows rows = {}) {
    if (rows.ranges.empty()) rows.ranges = {{0, sheet.lines->Count() - 1}};
    ListToText output(sheet, rows, form, 1'000'000'000);
    RunToEnd(output);
    EXPECT_EQ(output.Written(), rows.Count());
    return output.Text();
}

TEST(ListOutput, WritesWhatTheTableShows) {
    const ListSheet sheet = SheetOf("1\nx\n\n 2\n");
    EXPECT_EQ(Written(sheet, kTabs),
              "1\t<1>\t2\todd\t\n"
              "x\t\t\t\tno number\n"
              "\t\t\t\t\n"
              " 2\t\t\t\tno number\n");
    EXPECT_EQ(Written(sheet, kBare), "<1>\t2\todd\t\n\t\t\tno number\n\t\t\t\n\t\t\tno number\n");
    EXPECT_EQ(Written(sheet, kCsv), "1,<1>,2,odd,\nx,,,,no number\n,,,,\n 2,,,,no number\n");
}

TEST(ListOutput, LeavesTheWeekdayOutWhereThereIsNone) {
    const ListSheet sheet = SheetOf("1\n");
    static_cast<NumberRows&>(*sheet.maker).weekdays = false;
    EXPECT_EQ(Written(sheet, kTabs), "1\t<1>\t2\t\n");
}

TEST(ListOutput, WritesTheChosenRowsInTheirOrder) {
    const ListSheet sheet = SheetOf("0\n1\n2\n3\n4\n");
    ChosenRows rows{std::make_shared<std::vector<std::uint32_t>>(std::vector<std::uint32_t>{4, 3, 2, 1, 0}),
                    {{0, 1}, {4, 4}}};
    EXPECT_EQ(rows.Count(), 3U);
    EXPECT_EQ(Written(sheet, kBare, rows), "<4>\t5\teven\t\n<3>\t4\todd\t\n<0>\t1\teven\t\n");
}

TEST(ListOutput, KeepsColumnsBelowEachOther) {
    const ListSheet tabs = SheetOf("a\t1\nb\nc\t3\tx\n", false, 1);
    EXPECT_EQ(Written(tabs, kTabs), "a\t1\t\t<1>\t2\todd\t\nb\t\t\t\t\t\t\nc\t3\tx\t<3>\t4\todd\t\n");
    const ListSheet csv = SheetOf("\"a,b\",1\n\"say \"\"no\"\"\",2\n", true, 1);
    EXPECT_EQ(Written(csv, kCsv), "\"a,b\",1,<1>,2,odd,\n\"say \"\"no\"\"\",2,<2>,3,even,\n");
    EXPECT_EQ(Written(csv, kTabs), "a,b\t1\t<1>\t2\todd\t\nsay \"no\"\t2\t<2>\t3\teven\t\n");
}

TEST(ListOutput, QuotesWhatWouldBreakARow) {
    const ListSheet csv = SheetOf("\"a\tb\",\"c\nd\",\"\"\"e\"\"\",1\n", true, 3);
    EXPECT_EQ(Written(csv, kTabs), "\"a\tb\"\t\"c\nd\"\t\"\"\"e\"\"\"\t1\t<1>\t2\todd\t\n");
    EXPECT_EQ(Written(csv, kCsv), "a\tb,\"c\nd\",\"\"\"e\"\"\",1,<1>,2,odd,\n");
}

TEST(ListOutput, StopsAtTheMostThatMayBe) {
    ListToText output(SheetOf(std::string(100'000, '\n')), {{}, {{0, 99'999}}}, kBare, 1000);
    RunToEnd(output);
    EXPECT_TRUE(output.IsTooLong());
    EXPECT_LE(output.Text().size(), 1000U);
}

class ListToFileTest : public testing::Test {
protected:
    void SetUp() override {
        std::string name = (fs::temp_directory_path() / "calvoro-save-XXXXXX").string();
        ASSERT_NE(::mkdtemp(name.data()), nullptr);
        folder_ = name;
        path_ = folder_ / "list.tsv";
    }
    void TearDown() override { fs::remove_all(folder_); }

    static std::string Content(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    std::ptrdiff_t Files() const {
        return std::distance(fs::directory_iterator(folder_), fs::directory_iterator());
    }

    fs::path folder_;
    std::string path_;
};

TEST_F(ListToFileTest, ReplacesTheFileWhenAllIsWritten) {
    std::ofstream(path_) << "old";
    const ListSheet sheet = SheetOf(std::string(100'000, '\n') + "1\n");
    ListToFile save(sheet, {{}, {{0, 100'000}}}, kBare, path_);
    ASSERT_FALSE(save.Step());
    EXPECT_EQ(Content(path_), "old");
    RunToEnd(save);
    EXPECT_EQ(save.Error(), 0);
    EXPECT_EQ(Content(path_), Written(sheet, kBare));
    EXPECT_EQ(Files(), 1);
}

TEST_F(ListToFileTest, TellsHowFarItHasCome) {
    const ListSheet sheet = SheetOf(std::string(100'000, '\n'));
    ListToFile save(sheet, {{}, {{0, 99'999}}}, kBare, path_);
    EXPECT_EQ(save.Done(), 0);
    double before = 0;
    while (!save.Step()) {
        EXPECT_GT(save.Done(), before);
        EXPECT_DOUBLE_EQ(save.Done(), static_cast<double>(save.Written()) / 100'000);
        before = save.Done();
    }
    EXPECT_GT(before, 0);
    EXPECT_EQ(save.Done(), 1);
    EXPECT_EQ(ListToFile(sheet, {{}, {}}, kBare, path_).Done(), 1);
}

TEST_F(ListToFileTest, LeavesTheFileWhenItIsStopped) {
    std::ofstream(path_) << "old";
    {
        ListToFile save(SheetOf(std::string(100'000, '\n')), {{}, {{0, 99'999}}}, kBare, path_);
        ASSERT_FALSE(save.Step());
    }
    EXPECT_EQ(Content(path_), "old");
    EXPECT_EQ(Files(), 1);
}

TEST_F(ListToFileTest, LeavesTheFileWhenTheDiskIsFull) {
    std::ofstream(path_) << "old";
    struct rlimit before {};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    struct rlimit low = before;
    low.rlim_cur = 100'000;
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &low), 0);
    ListToFile save(SheetOf(std::string(100'000, '\n')), {{}, {{0, 99'999}}}, kBare, path_);
    RunToEnd(save);
    EXPECT_EQ(save.Error(), EFBIG);
    EXPECT_LT(save.Written(), 100'000U);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
    EXPECT_EQ(Content(path_), "old");
}

}  // namespace
}  // namespace calvoro
