#include "windows/list/lines/LinesBuilder.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "tests/support/RowName.h"
#include "tests/windows/list/ListTesting.h"

namespace calvoro {
namespace {

using Strings = std::vector<std::string>;

struct TextRow {
    const char* name;
    std::string text;
    bool isCsv;
    Strings lines;
    std::size_t columns;
};
void PrintTo(const TextRow& row, std::ostream* out) {
    *out << row.name;
}

class Lines : public testing::TestWithParam<TextRow> {};

TEST_P(Lines, AreFound) {
    const TextRow& row = GetParam();
    const auto lines = LinesOf(row.text, row.isCsv);
    ASSERT_NE(lines, nullptr);
    EXPECT_EQ(AllLines(*lines), row.lines);
    EXPECT_EQ(lines->Columns(), row.columns);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Lines,
    testing::Values(
        TextRow{"LineFeeds", "1\n2\n3\n", false, {"1", "2", "3"}, 1},
        TextRow{"NoEndAtTheEnd", "1\n2", false, {"1", "2"}, 1},
        TextRow{"CarriageReturns", "1\r\n2\r\n", false, {"1", "2"}, 1},
        TextRow{"Mixed", "1\r\n2\n3\r4\n", false, {"1", "2", "3\r4"}, 1},
        TextRow{"EmptyLines", "\n\r\n1\n\n", false, {"", "", "1", ""}, 1},
        TextRow{"ByteOrderMark",
                "\xEF\xBB\xBF"
                "1\n2\n",
                false,
                {"1", "2"},
                1},
        TextRow{"ByteOrderMarkInside",
                "1\n\xEF\xBB\xBF"
                "2\n",
                false,
                {"1",
                 "\xEF\xBB\xBF"
                 "2"},
                1},
        TextRow{"Tabs", "a\t1\nb\t2\t3\n", false, {"a\t1", "b\t2\t3"}, 3},
        TextRow{"CommasOutsideCsv", "1,2\n3,4\n", false, {"1,2", "3,4"}, 1},
        TextRow{"Commas", "a,1\nb\n", true, {"a,1", "b"}, 2},
        TextRow{"Semicolons", "a;1,5;x\nb;2;y\n", true, {"a;1,5;x", "b;2;y"}, 3},
        TextRow{"TabsInCsv", "a\t1\nb\t2\n", true, {"a\t1", "b\t2"}, 2},
        TextRow{"QuotedLineEnd", "a,\"1\n2\"\nb,3\n", true, {"a,\"1\n2\"", "b,3"}, 2},
        TextRow{"QuotedTwice", "\"1\r\n\",\"2\n\n3\"x\r\nb\r\n", true, {"\"1\r\n\",\"2\n\n3\"x", "b"}, 2},
        TextRow{"QuotedSemicolonsBeforeALineEnd", "\"a;2;\n\",1\n", true, {"\"a;2;\n\",1"}, 2},
        TextRow{"DoubledQuotes", "\"a\"\"\nb\",1\n2\n", true, {"\"a\"\"\nb\",1", "2"}, 2},
        TextRow{"EmptyQuotes", "\"\",x\n\"y\"\n", true, {"\"\",x", "\"y\""}, 2},
        TextRow{"QuotesNeverClosed", "\"1\n2,3\n4\n", true, {"\"1", "2,3", "4"}, 2},
        TextRow{"QuotesInside", "a\"b\n1\"\n", true, {"a\"b", "1\""}, 1},
        TextRow{"QuotesOutsideCsv", "\"a\nb\"\n", false, {"\"a", "b\""}, 1}),
    RowName<TextRow>);

struct FaultRow {
    const char* name;
    std::string text;
    ListFault fault;
};
void PrintTo(const FaultRow& row, std::ostream* out) {
    *out << row.name;
}

class NoList : public testing::TestWithParam<FaultRow> {};

TEST_P(NoList, IsMadeOf) {
    LinesBuilder builder(GetParam().text, false);
    RunToEnd(builder);
    EXPECT_EQ(builder.Refusal().fault, GetParam().fault);
}

INSTANTIATE_TEST_SUITE_P(Rows, NoList,
                         testing::Values(FaultRow{"Nothing", "", ListFault::Empty},
                                         FaultRow{"OnlyAMark", "\xEF\xBB\xBF", ListFault::Empty},
                                         FaultRow{"Nul", std::string("1\n2\0003\n", 6), ListFault::NotText},
                                         FaultRow{"NulAfterPlainBytes",
                                                  std::string("12345678901234567\0", 18), ListFault::NotText},
                                         FaultRow{"Latin1", "M\xE4rz\n", ListFault::NotText},
                                         FaultRow{"CutCharacter", "M\xC3", ListFault::NotText},
                                         FaultRow{"Utf16",
                                                  std::string("\xFF\xFE"
                                                              "1\0\n\0",
                                                              6),
                                                  ListFault::NotText}),
                         RowName<FaultRow>);

TEST(LinesBuilder, TakesLinesOfOneMebibyteAndNoneLonger) {
    // In figures of its own: the message tells the user of 1 MiB.
    constexpr std::size_t kMebibyte = 1'048'576;
    const std::string longest(kMebibyte, '1');
    for (const char* end : {"", "\n", "\r\n", "\n2\n", "\r\n2\n"}) {
        const auto lines = LinesOf(longest + end);
        ASSERT_NE(lines, nullptr) << end;
        ListLines::Cursor cursor;
        EXPECT_EQ(lines->Line(0, cursor).size(), kMebibyte);
        LinesBuilder builder("0\n" + longest + "1" + end, false);
        RunToEnd(builder);
        EXPECT_EQ(builder.Refusal().fault, ListFault::LineTooLong) << end;
        EXPECT_EQ(builder.Refusal().line, 2U) << end;
    }
}

TEST(LinesBuilder, FindsAFaultAtTheEndOfALongText) {
    std::string text;
    for (int i = 0; i < 300'000; ++i) text += "2000-01-01\n";
    text += "\xFF";
    LinesBuilder builder(text, false);
    EXPECT_GT(RunToEnd(builder), 10);
    EXPECT_EQ(builder.Refusal().fault, ListFault::NotText);
}

TEST(LinesBuilder, TakesCharactersAcrossItsPieces) {
    // Three bytes each, so that no piece ends at the end of one.
    std::string text;
    while (text.size() < 1'000'000) text += "€";
    EXPECT_EQ(AllLines(*LinesOf(text)), Strings{text});
}

TEST(LinesBuilder, CountsUpTo256Columns) {
    const auto columnsOf = [](std::size_t fields) {
        return LinesOf("0" + std::string(fields - 1, '\t'))->Columns();
    };
    EXPECT_EQ(columnsOf(255), 255U);
    EXPECT_EQ(columnsOf(256), 256U);
    EXPECT_EQ(columnsOf(257), 256U);
    EXPECT_EQ(columnsOf(1000), 256U);
}

TEST(LinesBuilder, TellsHowFarItIs) {
    LinesBuilder builder(std::string(1'000'000, '\n'), false);
    double before = 0;
    do {
        EXPECT_GE(builder.Done(), before);
        before = builder.Done();
    } while (!builder.Step());
    EXPECT_EQ(builder.Done(), 1);
    EXPECT_EQ(builder.Take()->Count(), 1'000'000U);
}

// Lines of every length, long ones between short ones, asked for in any order.
TEST(ListLines, AreFoundInAnyOrder) {
    std::mt19937 random(1);
    Strings expected;
    std::string text;
    for (int i = 0; i < 5'000; ++i) {
        const std::size_t length = random() % (i % 500 == 0 ? 100'000 : 20);
        expected.emplace_back(length, static_cast<char>('a' + i % 26));
        text += expected.back() + (i % 3 == 0 ? "\r\n" : "\n");
    }
    const auto lines = LinesOf(text);
    ASSERT_EQ(lines->Count(), expected.size());
    ListLines::Cursor cursor;
    for (int i = 0; i < 20'000; ++i) {
        const auto any = static_cast<std::uint32_t>(random());
        const std::uint32_t row = (i % 4 == 0 ? any : cursor.row) % lines->Count();
        ASSERT_EQ(lines->Line(row, cursor), expected[row]) << row;
    }
}

}  // namespace
}  // namespace calvoro
