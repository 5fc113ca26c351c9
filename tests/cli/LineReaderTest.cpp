#include "cli/LineReader.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>

#include <cerrno>
#include <cstdlib>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

#include "tests/cli/Interruptions.h"
#include "tests/cli/TemporaryFiles.h"

namespace calvoro {
namespace {

constexpr std::size_t kMax = LineReader::kMaxLineLength;

std::vector<std::string> LinesOf(int descriptor) {
    const TemporaryFile answers;
    OutputStream output(answers.Number());
    LineReader reader(descriptor, output);
    std::vector<std::string> lines;
    std::string_view line;
    while (reader.Next(line)) {
        lines.emplace_back(line);
        if (reader.IsCut()) lines.back().append("(cut)");
    }
    EXPECT_EQ(reader.Error(), 0);
    EXPECT_FALSE(reader.Next(line));
    return lines;
}

std::vector<std::string> LinesOfText(const std::string& text) {
    return LinesOf(TemporaryFile(text).Number());
}

using Lines = std::vector<std::string>;

struct LineRow {
    std::string name;
    std::string text;
    Lines lines;
};
void PrintTo(const LineRow& row, std::ostream* out) {
    *out << row.name;
}

class LineReaderLines : public testing::TestWithParam<LineRow> {};

TEST_P(LineReaderLines, AreSplitWithoutTheirEnds) {
    EXPECT_EQ(LinesOfText(GetParam().text), GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LineReaderLines,
    testing::Values(LineRow{"Nothing", "", {}}, LineRow{"OneEmptyLine", "\n", {""}},
                    LineRow{"EmptyLines", "\n\n\r\n", {"", "", ""}}, LineRow{"OneLine", "a\n", {"a"}},
                    LineRow{"NoLineEnd", "a\nb", {"a", "b"}}, LineRow{"CrLf", "a\r\nb\r\n", {"a", "b"}},
                    LineRow{"CrAtTheEnd", "a\nb\r", {"a", "b"}}, LineRow{"CrInside", "a\rb\n", {"a\rb"}},
                    LineRow{"TwoCr", "a\r\r\n", {"a\r"}},
                    LineRow{"Nul", std::string("a\0b\nc", 5), {std::string("a\0b", 3), "c"}}),
    [](const auto& row) { return row.param.name; });

// Every length around the block's, so that an end falls on each place of a block's edge.
TEST(LineReader, KeepsLinesWholeAcrossBlocks) {
    const std::size_t block = std::size_t{128} * 1024;
    for (const std::string end : {"\n", "\r\n"}) {
        for (std::size_t length = block - 4; length <= block + 4; ++length) {
            const std::string first(length, 'a');
            const std::string second(2 * block - 7, 'b');
            const Lines lines = LinesOfText(first + end + second + end + "c" + end);
            EXPECT_EQ(lines, (Lines{first, second, "c"})) << length;
        }
    }
}

TEST(LineReader, CutsLinesBeyondTheLimitWhereverTheyStand) {
    for (const std::string end : {"\n", "\r\n", ""}) {
        for (const std::size_t before : {std::size_t{0}, std::size_t{5}, kMax}) {
            for (std::size_t length = kMax - 2; length <= kMax + 3; ++length) {
                std::string text = before == 0 ? "" : std::string(before, 'x') + "\n";
                text += std::string(length, 'a') + end;
                Lines expected = before == 0 ? Lines{} : Lines{std::string(before, 'x')};
                expected.push_back(length <= kMax ? std::string(length, 'a')
                                                  : std::string(kMax, 'a') + "(cut)");
                if (!end.empty()) {
                    text += "b\n";
                    expected.emplace_back("b");
                }
                EXPECT_TRUE(LinesOfText(text) == expected) << length << " after " << before;
            }
        }
    }
}

TEST(LineReader, SkipsTheRestOfAVeryLongLine) {
    const std::string text = std::string(5 * kMax + 123, 'a') + "\nb\n" + std::string(3 * kMax, 'c');
    const Lines expected = {std::string(kMax, 'a') + "(cut)", "b", std::string(kMax, 'c') + "(cut)"};
    EXPECT_TRUE(LinesOfText(text) == expected);
}

TEST(LineReader, ReadsPiecesAsTheyArriveThroughAPipe) {
    Pipe pipe;
    std::thread writer([&pipe] {
        for (const std::string_view piece : {"20", "24-01", "-01\r", "\n\n2024", "-01-02\nlast"}) {
            pipe.Write(piece);
            std::this_thread::yield();
        }
        pipe.writing.Close();
    });
    EXPECT_EQ(LinesOf(pipe.reading.Number()), (Lines{"2024-01-01", "", "2024-01-02", "last"}));
    writer.join();
}

int UnreadBytes(int descriptor) {
    int bytes = -1;
    EXPECT_EQ(ioctl(descriptor, FIONREAD, &bytes), 0);
    return bytes;
}

TEST(LineReader, TakesACrAtTheLimitForPartOfALineEndStillToCome) {
    Pipe pipe;
    std::thread writer([&pipe] {
        pipe.Write(std::string(kMax, 'a') + "\r");
        while (UnreadBytes(pipe.reading.Number()) > 0) std::this_thread::yield();
        pipe.Write("\nb\n");
        pipe.writing.Close();
    });
    EXPECT_TRUE(LinesOf(pipe.reading.Number()) == (Lines{std::string(kMax, 'a'), "b"}));
    writer.join();
}

TEST(LineReader, ReadsOnWhenASignalInterruptsIt) {
    Pipe pipe;
    const Interruptions interruptions;
    std::thread writer([&pipe] {
        Interruptions::Await(20);
        pipe.Write("a\nb\n");
        pipe.writing.Close();
    });
    EXPECT_EQ(LinesOf(pipe.reading.Number()), (Lines{"a", "b"}));
    writer.join();
}

bool HasInput(int descriptor, int milliseconds) {
    pollfd question{descriptor, POLLIN, 0};
    return poll(&question, 1, milliseconds) == 1;
}

TEST(LineReader, FlushesTheAnswersBeforeItWaitsAndNotBefore) {
    Pipe input;
    Pipe answers;
    OutputStream output(answers.writing.Number());
    LineReader reader(input.reading.Number(), output);
    input.Write("a\nb\n");

    std::string_view line;
    ASSERT_TRUE(reader.Next(line));
    output.Append("first\n");
    ASSERT_TRUE(reader.Next(line));
    output.Append("second\n");
    EXPECT_FALSE(HasInput(answers.reading.Number(), 0));

    std::thread waiting([&reader] {
        std::string_view third;
        EXPECT_TRUE(reader.Next(third));
        EXPECT_EQ(third, "c");
    });
    EXPECT_TRUE(HasInput(answers.reading.Number(), 10000));
    input.Write("c\n");
    waiting.join();

    char seen[64] = {};
    EXPECT_EQ(read(answers.reading.Number(), seen, sizeof seen), 13);
    EXPECT_STREQ(seen, "first\nsecond\n");
}

TEST(LineReader, ShowsWhatIsAheadAndPassesOverIt) {
    const TemporaryFile file("one\ntwo\nthree\nfour");
    const TemporaryFile answers;
    OutputStream output(answers.Number());
    LineReader reader(file.Number(), output);
    EXPECT_EQ(reader.Ahead(), "");
    std::string_view line;
    ASSERT_TRUE(reader.Next(line));
    EXPECT_EQ(reader.Ahead(), "two\nthree\nfour");
    reader.Skip(4);
    EXPECT_EQ(reader.Ahead(), "three\nfour");
    ASSERT_TRUE(reader.Next(line));
    EXPECT_EQ(line, "three");
    reader.Skip(0);
    ASSERT_TRUE(reader.Next(line));
    EXPECT_EQ(line, "four");
    EXPECT_EQ(reader.Ahead(), "");
    EXPECT_FALSE(reader.Next(line));
}
/// What a program wrote on a terminal before it went away: after it, reading the terminal's other end fails.
class Terminal {
public:
    void Write(std::string_view text) {
        const Descriptor program(OpenProgramsEnd());
        termios modes{};
        tcgetattr(program.Number(), &modes);
        cfmakeraw(&modes);
        tcsetattr(program.Number(), TCSANOW, &modes);
        if (write(program.Number(), text.data(), text.size()) != std::ssize(text)) std::abort();
    }
    int Reading() const { return end_.Number(); }

private:
    int OpenProgramsEnd() const {
        if (grantpt(Reading()) != 0 || unlockpt(Reading()) != 0) std::abort();
        return open(ptsname(Reading()), O_RDWR | O_NOCTTY);
    }

    Descriptor end_{posix_openpt(O_RDWR | O_NOCTTY)};
};

TEST(LineReader, TellsTheBytesItHasRead) {
    const TemporaryFile file("a\nbc\n");
    const TemporaryFile answers;
    OutputStream output(answers.Number());
    LineReader reader(file.Number(), output);
    EXPECT_EQ(reader.BytesRead(), 0u);
    std::string_view line;
    ASSERT_TRUE(reader.Next(line));
    EXPECT_EQ(reader.BytesRead(), 5u);
}

struct MarkRow {
    std::string name;
    std::string text;
    Lines lines;
};
void PrintTo(const MarkRow& row, std::ostream* out) {
    *out << row.name;
}

class ByteOrderMark : public testing::TestWithParam<MarkRow> {};

TEST_P(ByteOrderMark, IsSkippedOnceAtTheStart) {
    EXPECT_EQ(LinesOfText(GetParam().text), GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(Rows, ByteOrderMark,
                         testing::Values(MarkRow{"Alone", "\xEF\xBB\xBF", {}},
                                         MarkRow{"BeforeALineEnd", "\xEF\xBB\xBF\nb\n", {"", "b"}},
                                         MarkRow{"BeforeALine",
                                                 "\xEF\xBB\xBF"
                                                 "a\nb",
                                                 {"a", "b"}},
                                         MarkRow{"Twice",
                                                 "\xEF\xBB\xBF\xEF\xBB\xBF"
                                                 "a\n",
                                                 {"\xEF\xBB\xBF"
                                                  "a"}},
                                         MarkRow{"BeforeALaterLine",
                                                 "a\n\xEF\xBB\xBF"
                                                 "b\n",
                                                 {"a",
                                                  "\xEF\xBB\xBF"
                                                  "b"}},
                                         MarkRow{"CutShort", "\xEF\xBB", {"\xEF\xBB"}},
                                         MarkRow{"AnotherCharacter", "\xEF\xBB\xBE\n", {"\xEF\xBB\xBE"}}),
                         [](const auto& row) { return row.param.name; });

TEST(LineReader, WaitsForTheRestOfAByteOrderMarkButForNothingElse) {
    Pipe pipe;
    const TemporaryFile answers;
    OutputStream output(answers.Number());
    LineReader reader(pipe.reading.Number(), output);
    std::string_view line;
    pipe.Write("\xEF\xBB");
    std::thread writer([&pipe] {
        while (UnreadBytes(pipe.reading.Number()) > 0) std::this_thread::yield();
        pipe.Write("\xBF\n");
    });
    ASSERT_TRUE(reader.Next(line));
    EXPECT_EQ(line, "");
    writer.join();

    Pipe other;
    LineReader otherReader(other.reading.Number(), output);
    other.Write("\n");
    ASSERT_TRUE(otherReader.Next(line));
    EXPECT_EQ(line, "");
}

TEST(LineReader, TellsAnErrorAfterAPartialLineAndDoesNotGiveTheLine) {
    Terminal terminal;
    terminal.Write("whole\npartial");
    const TemporaryFile answers;
    OutputStream output(answers.Number());
    LineReader reader(terminal.Reading(), output);
    std::string_view line;
    ASSERT_TRUE(reader.Next(line));
    EXPECT_EQ(line, "whole");
    EXPECT_FALSE(reader.Next(line));
    EXPECT_EQ(reader.Error(), EIO);
}

TEST(LineReader, TellsTheSystemsError) {
    const Descriptor folder(open("/", O_RDONLY | O_CLOEXEC));
    const TemporaryFile answers;
    OutputStream output(answers.Number());
    LineReader reader(folder.Number(), output);
    std::string_view line;
    EXPECT_FALSE(reader.Next(line));
    EXPECT_EQ(reader.Error(), EISDIR);
}

}  // namespace
}  // namespace calvoro
