#include "cli/columns/Columns.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/cli/TemporaryFiles.h"

namespace calvoro {
namespace {

using Texts = std::vector<std::string>;

struct ColumnRow {
    std::string name;
    std::string line;
    Texts raw;
    Texts texts;
};
void PrintTo(const ColumnRow& row, std::ostream* out) {
    *out << row.name;
}

class CsvColumns : public testing::TestWithParam<ColumnRow> {};

TEST_P(CsvColumns, AreFoundAsTheyStandAndAsTheySay) {
    const ColumnRow& row = GetParam();
    Columns columns(',', true, row.raw.size());
    ASSERT_TRUE(columns.Split(row.line));
    for (std::size_t i = 0; i < row.raw.size(); ++i) {
        EXPECT_EQ(columns.Raw(i), row.raw[i]);
        EXPECT_EQ(columns.Text(i), row.texts[i]);
    }
    Columns oneMore(',', true, row.raw.size() + 1);
    EXPECT_FALSE(oneMore.Split(row.line));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CsvColumns,
    testing::Values(ColumnRow{"Empty", "", {""}, {""}}, ColumnRow{"Plain", "a,b", {"a", "b"}, {"a", "b"}},
                    ColumnRow{"EmptyColumns", ",,", {"", "", ""}, {"", "", ""}},
                    ColumnRow{"Quoted", R"("a,b",c)", {R"("a,b")", "c"}, {"a,b", "c"}},
                    ColumnRow{"EmptyQuoted", R"("",x)", {R"("")", "x"}, {"", "x"}},
                    ColumnRow{"TwoQuotes", R"("a""b")", {R"("a""b")"}, {R"(a"b)"}},
                    ColumnRow{"OnlyQuotes", R"("""""",x)", {R"("""""")", "x"}, {R"("")", "x"}},
                    ColumnRow{"QuoteInside", R"(a"b,c)", {R"(a"b)", "c"}, {R"(a"b)", "c"}},
                    ColumnRow{"BehindTheQuotes", R"("a"b,c)", {R"("a"b)", "c"}, {"ab", "c"}},
                    ColumnRow{"NeverClosed", R"("a,b)", {R"("a,b)"}, {"a,b"}},
                    ColumnRow{"LineEndInside", "\"a\r\nb\",c", {"\"a\r\nb\"", "c"}, {"a\r\nb", "c"}}),
    [](const auto& row) { return row.param.name; });

TEST(PlainColumns, KnowNoQuotes) {
    Columns columns('\t', false, 2);
    ASSERT_TRUE(columns.Split("\"a\tb\"\tc"));
    EXPECT_EQ(columns.Text(0), "\"a");
    EXPECT_EQ(columns.Text(1), "b\"");
}

/// The records of a text, their ends replaced by "|".
Texts RecordsOf(const std::string& text) {
    const TemporaryFile file(text);
    const TemporaryFile answers;
    OutputStream output(answers.Number());
    LineReader reader(file.Number(), output);
    Texts records;
    std::string_view line;
    while (reader.Next(line)) {
        const std::size_t joined = JoinQuotedLines(reader, ',', line);
        records.push_back(std::string(line) + "|" + std::to_string(joined) + "|" +
                          std::string(reader.EndOf(line)));
    }
    return records;
}

TEST(JoinQuotedLines, MakesARecordOfTheLinesInsideQuotes) {
    EXPECT_EQ(RecordsOf("a,b\nc\r\nd"), (Texts{"a,b|0|\n", "c|0|\r\n", "d|0|"}));
    EXPECT_EQ(RecordsOf("\"a\nb\",c\nd\n"), (Texts{"\"a\nb\",c|1|\n", "d|0|\n"}));
    EXPECT_EQ(RecordsOf("x,\"\r\n\"\"\n\"\ny\"z\n"), (Texts{"x,\"\r\n\"\"\n\"|2|\n", "y\"z|0|\n"}));
    EXPECT_EQ(RecordsOf("\"a\"\"\n\",b\n\"c\""), (Texts{"\"a\"\"\n\",b|1|\n", "\"c\"|0|"}));
    EXPECT_EQ(RecordsOf("\"a\nb\n"), (Texts{"\"a\nb|1|\n"}));
}

TEST(JoinQuotedLines, KeepsARecordWholeAcrossBlocks) {
    const std::size_t block = std::size_t{128} * 1024;
    for (std::size_t length = block - 4; length <= block + 4; ++length) {
        const std::string field = "\"" + std::string(length, 'a') + "\n" + std::string(block, 'b') + "\"";
        EXPECT_TRUE(RecordsOf("x\n" + field + ",c\ny\n") == (Texts{"x|0|\n", field + ",c|1|\n", "y|0|\n"}));
    }
}

TEST(JoinQuotedLines, TakesNoLongerForManyLinesThanForOne) {
    const std::string lines(1000000, '\n');
    EXPECT_TRUE(RecordsOf("\"" + lines + "\",c\nd\n") == (Texts{"\"" + lines + "\",c|1000000|\n", "d|0|\n"}));
}

}  // namespace
}  // namespace calvoro
