#include "cli/columns/QuickColumns.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "tests/cli/TemporaryFiles.h"

namespace calvoro {
namespace {

constexpr std::string_view kDate = "2024-03-15";
constexpr std::string_view kAnswer = "2024-W11-5";

// Without a line end, and too short for another date: what every block ends with is left.
constexpr std::string_view kRest = "the line that the next block will end";

struct Answered {
    std::size_t size = 0;  // bytes of the block
    std::uint64_t lines = 0;
    std::string output;
};

// Converts a block that is a copy of its own, so that a sanitizer sees whatever else is looked at.
// before  what the output holds already
Answered Answer(const ColumnOptions& columns, std::string_view block, const std::string& before = {}) {
    ConvertOptions options;
    options.from = CalendarNumber::CE;
    options.targets = {CalendarNumber::ISO};
    const std::vector<char> copy(block.begin(), block.end());
    const TemporaryFile file;
    OutputStream output(file.Number());
    output.Append(before);
    Answered answered;
    answered.size =
        QuickColumns(columns, options.text, columns.fields)
            .ConvertLines({copy.data(), copy.size()}, DayReader(options.from, options.reading, options.text),
                          RecordWriter(options), output, answered.lines);
    output.Flush();
    answered.output = file.Contents();
    return answered;
}

ColumnOptions Field(std::vector<std::size_t> fields, bool append = false) {
    ColumnOptions columns;
    columns.fields = std::move(fields);
    columns.append = append;
    return columns;
}

struct QuickRow {
    std::string name;
    std::string line;
    std::string converted;  // "" when the line is left to others
    std::vector<std::size_t> fields = {1};
    bool csv = false;
};
void PrintTo(const QuickRow& row, std::ostream* out) {
    *out << row.name;
}

class QuickLines : public testing::TestWithParam<QuickRow> {};

TEST_P(QuickLines, AreConvertedInPlaceOrLeft) {
    const QuickRow& row = GetParam();
    ColumnOptions columns = Field(row.fields);
    columns.csv = row.csv;
    const std::string first = "a\t2024-03-15\t2024-03-15\n";
    const std::string firstConverted = row.fields == std::vector<std::size_t>{1}
                                           ? "a\t2024-W11-5\t2024-03-15\n"
                                           : "a\t2024-W11-5\t2024-W11-5\n";
    const bool isConverted = !row.converted.empty();
    const Answered answered = Answer(columns, first + row.line + std::string(kRest));
    EXPECT_EQ(answered.output, firstConverted + row.converted);
    EXPECT_EQ(answered.lines, isConverted ? 2U : 1U);
    EXPECT_EQ(answered.size, first.size() + (isConverted ? row.line.size() : 0));
}

std::string Long(std::size_t length) {
    return std::string(length, 'x');
}

INSTANTIATE_TEST_SUITE_P(
    Rows, QuickLines,
    testing::Values(
        QuickRow{"LastColumn", "a\t2024-03-15\n", "a\t2024-W11-5\n"},
        QuickRow{"CrLf", "a\t2024-03-15\r\n", "a\t2024-W11-5\r\n"},
        QuickRow{"DelimiterBeforeTheEnd", "a\t2024-03-15\t\n", "a\t2024-W11-5\t\n"},
        QuickRow{"DelimiterBeforeCrLf", "a\t2024-03-15\t\r\n", "a\t2024-W11-5\t\r\n"},
        QuickRow{"MoreColumns", "a\t2024-03-15\tb\t\tc\n", "a\t2024-W11-5\tb\t\tc\n"},
        QuickRow{"EmptyColumnBefore", "\t2024-03-15\n", "\t2024-W11-5\n"},
        QuickRow{"EmptyLastColumn", "a\t\n", ""}, QuickRow{"EmptyLastColumnCrLf", "a\t\r\n", ""},
        QuickRow{"NothingAtAll", "\n", ""}, QuickRow{"MissingColumn", "a\n", ""},
        QuickRow{"MissingColumnWithADate", "2024-03-15\n", ""},
        QuickRow{"MissingColumnBeforeADate", "a\nb\t2024-03-15\n", ""},
        QuickRow{"MissingLongColumn", Long(40) + "\nb\t2024-03-15\n", ""},
        QuickRow{"MissingColumnOfSixteenBytes", Long(16) + "\nb\t2024-03-15\n", ""},
        QuickRow{"NoEndInTheBlock", "a\t2024-03-15\t", ""}, QuickRow{"CrAlone", "a\t2024-03-15\rb\n", ""},
        QuickRow{"CrTwice", "a\t2024-03-15\r\r\n", ""},
        QuickRow{"CrInside", "a\rb\t2024-03-15\n", "a\rb\t2024-W11-5\n"},
        QuickRow{"BehindTheDate", "a\t2024-03-15 \n", ""}, QuickRow{"BeforeTheDate", "a\t 2024-03-15\n", ""},
        QuickRow{"Refused", "a\t2023-02-29\n", ""}, QuickRow{"DigitMore", "a\t2024-03-155\n", ""},
        QuickRow{"NearlyTheDelimiter", "\x89\x08\x0B\x01\t2024-03-15\n", "\x89\x08\x0B\x01\t2024-W11-5\n"},
        QuickRow{"NearlyTheEnd", "\x8A\x0B\x0E\x1A\t2024-03-15\n", "\x8A\x0B\x0E\x1A\t2024-W11-5\n"},
        QuickRow{"SevenBytes", Long(7) + "\t2024-03-15\n", Long(7) + "\t2024-W11-5\n"},
        QuickRow{"EightBytes", Long(8) + "\t2024-03-15\n", Long(8) + "\t2024-W11-5\n"},
        QuickRow{"FifteenBytes", Long(15) + "\t2024-03-15\n", Long(15) + "\t2024-W11-5\n"},
        QuickRow{"SixteenBytes", Long(16) + "\t2024-03-15\n", Long(16) + "\t2024-W11-5\n"},
        QuickRow{"SeventeenBytes", Long(17) + "\t2024-03-15\n", Long(17) + "\t2024-W11-5\n"},
        QuickRow{"LongBefore", Long(500) + "\t2024-03-15\tb\n", Long(500) + "\t2024-W11-5\tb\n"},
        QuickRow{"LongBehind", "a\t2024-03-15\t" + Long(500) + "\n", "a\t2024-W11-5\t" + Long(500) + "\n"},
        QuickRow{"TwoFields", "a\t2024-03-15\t1999-12-31\n", "a\t2024-W11-5\t1999-W52-5\n", {1, 2}},
        QuickRow{"SecondOfTwoMissing", "a\t2024-03-15\n", "", {1, 2}},
        QuickRow{"SecondOfTwoEmpty", "a\t2024-03-15\t\n", "", {1, 2}},
        QuickRow{"SecondOfTwoRefused", "a\t2024-03-15\t2023-02-29\n", "", {1, 2}},
        QuickRow{"QuotesThatMeanNothing", "\"a\"\t2024-03-15\n", "\"a\"\t2024-W11-5\n"},
        QuickRow{"Quotes", "\"a\"\t2024-03-15\n", "", {1}, true},
        QuickRow{"QuotesBehind", "a\t2024-03-15\tb\"\n", "", {1}, true},
        QuickRow{"QuotesBehindLongColumns", Long(20) + "\t2024-03-15\t\"b\"\n", "", {1}, true},
        QuickRow{"NoQuotes", "a\t2024-03-15\r\n", "a\t2024-W11-5\r\n", {1}, true}),
    [](const auto& row) { return row.param.name; });

// What a table becomes, line by line and column by column.
std::string NaiveAnswer(const std::vector<std::string>& lines, const ColumnOptions& columns) {
    std::string output;
    for (const std::string& line : lines) {
        const std::size_t end = line.ends_with("\r\n") ? line.size() - 2 : line.size() - 1;
        std::size_t from = 0;
        std::string answers;
        for (std::size_t column = 0; from <= end; ++column) {
            const std::size_t to = std::min(line.find(columns.delimiter, from), end);
            const bool isAsked = std::count(columns.fields.begin(), columns.fields.end(), column) > 0;
            if (from > 0) output += columns.delimiter;
            output += isAsked && !columns.append ? std::string(kAnswer) : line.substr(from, to - from);
            if (isAsked && columns.append) answers.append(1, columns.delimiter).append(kAnswer);
            from = to + 1;
        }
        output += answers + line.substr(end);
    }
    return output;
}

// Lines with a date in the second column.
std::vector<std::string> RandomLines(std::mt19937& random, std::size_t count) {
    std::vector<std::string> lines;
    const auto column = [&random] { return Long(random() % (random() % 8 == 0 ? 60 : 12)); };
    for (std::size_t i = 0; i < count; ++i) {
        std::string line = column() + "\t" + std::string(kDate);
        for (std::size_t more = random() % 3; more > 0; --more) line += "\t" + column();
        lines.push_back(line + (random() % 8 == 0 ? "\r\n" : "\n"));
    }
    return lines;
}

class QuickTables : public testing::TestWithParam<bool> {};  // whether answers are appended

TEST_P(QuickTables, AreConvertedUpToTheLastWholeLineWhereverABlockEnds) {
    const ColumnOptions columns = Field({1}, GetParam());
    std::mt19937 random(5);
    for (int round = 0; round < 5; ++round) {
        const std::vector<std::string> lines = RandomLines(random, 12);
        std::string text;
        for (const std::string& line : lines) text += line;
        std::uint64_t leastLines = 0;
        for (std::size_t size = 0; size <= text.size(); ++size) {
            const Answered answered = Answer(columns, text.substr(0, size));
            const std::vector<std::string> whole(lines.begin(),
                                                 lines.begin() + static_cast<std::ptrdiff_t>(answered.lines));
            std::size_t wholeSize = 0;
            for (const std::string& line : whole) wholeSize += line.size();
            ASSERT_EQ(answered.size, wholeSize) << size;
            ASSERT_EQ(answered.output, NaiveAnswer(whole, columns)) << size;
            ASSERT_GE(answered.lines, leastLines) << size;
            leastLines = answered.lines;
        }
        // No more than what the last bytes of a block belong to is left.
        EXPECT_GE(leastLines, lines.size() - 3);
    }
}

TEST_P(QuickTables, FitWhatTheOutputHasLeft) {
    const ColumnOptions columns = Field({1}, GetParam());
    std::mt19937 random(6);
    const std::vector<std::string> lines = RandomLines(random, 20);
    std::string text;
    for (const std::string& line : lines) text += line;
    for (std::size_t left = 0; left < 1200; ++left) {
        const std::string before(OutputStream::kBlockSize - left, '.');
        const Answered answered = Answer(columns, text + std::string(kRest), before);
        const std::vector<std::string> whole(lines.begin(),
                                             lines.begin() + static_cast<std::ptrdiff_t>(answered.lines));
        ASSERT_TRUE(answered.output == before + NaiveAnswer(whole, columns)) << left;
        // An output that lacks the room for any line is handed on first.
        ASSERT_TRUE(answered.lines > 0 || left > 100) << left;
    }
    EXPECT_EQ(Answer(columns, text + std::string(kRest)).lines, lines.size());
}

INSTANTIATE_TEST_SUITE_P(Roads, QuickTables, testing::Bool(),
                         [](const auto& row) { return row.param ? "Appending" : "InPlace"; });

TEST(QuickColumns, LeaveALineThatIsLongerThanTheOutput) {
    const std::string line = "a\t2024-03-15\t" + Long(OutputStream::kBlockSize) + "\n";
    for (const bool append : {false, true}) {
        const Answered answered = Answer(Field({1}, append), line + std::string(kRest));
        EXPECT_EQ(answered.lines, 0U);
        EXPECT_EQ(answered.output, "");
    }
}

TEST(QuickColumns, AppendTheFieldsInTheOrderAsked) {
    const Answered answered =
        Answer(Field({2, 0}, true), "2024-03-15\ta\t1999-12-31\r\n" + std::string(kRest));
    EXPECT_EQ(answered.output, "2024-03-15\ta\t1999-12-31\t1999-W52-5\t2024-W11-5\r\n");
}

}  // namespace
}  // namespace calvoro
