#include "text/ProgramTextFile.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <ostream>
#include <string>
#include <utility>

#include "tests/text/TemporaryFolder.h"

namespace calvoro {
namespace {

// What lt has loaded, as gt gives it.
std::string Fetch(std::int32_t number, std::int32_t language) {
    std::array<char, 1024> buffer;
    buffer.fill('?');
    const std::int32_t length = gt(number, language, buffer.data(), 1024, 1);
    EXPECT_GE(length, 0);
    EXPECT_EQ(buffer[static_cast<std::size_t>(length)], '\0');
    return std::string(buffer.data(), static_cast<std::size_t>(length));
}

std::string Lines(int count, std::string_view line) {
    std::string text;
    for (int i = 0; i < count; ++i) text.append(line).append("\n");
    return text;
}

std::string NumberedLines(int count) {
    std::string text;
    for (int i = 1; i <= count; ++i) text.append(std::to_string(i)).append("\ttext\n");
    return text;
}

const std::string k1023Bytes(1023, 'x');
const std::string k1024Bytes(1024, 'x');

struct FileCase {
    std::string name;
    std::string bytes;
    std::int32_t result;
};

void PrintTo(const FileCase& row, std::ostream* out) {
    *out << row.name;
}

class ProgramTextFileTest : public testing::TestWithParam<FileCase> {};

TEST_P(ProgramTextFileTest, ReportsWhatTheFileHolds) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("texts.dat", GetParam().bytes);
    EXPECT_EQ(lt(path.c_str(), 0), GetParam().result);
    const ProgramTextReading read = ReadProgramTexts(GetParam().bytes);
    EXPECT_EQ(read.result, GetParam().result);
    EXPECT_EQ(read.texts.has_value(), GetParam().result > 0);
}

TEST(ProgramTextFile, IsFoundByANameOutsideAscii) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("M\xC3\xA4rz \xE6\x97\xA5.dat", "1\tone\n");
    EXPECT_EQ(lt(path.c_str(), 0), 1);
}

TEST(ProgramTextFile, IsNotFoundByANameThatIsNoText) {
    EXPECT_EQ(lt("\xFF\xC3", 0), -1);
}

INSTANTIATE_TEST_SUITE_P(
    Files, ProgramTextFileTest,
    testing::Values(
        FileCase{"OneText", "1\tone\teins\tuno\n", 1}, FileCase{"NoLineEndAtTheEnd", "1\tone\teins", 1},
        FileCase{"WindowsLineEnds", "1\tone\teins\r\n2\ttwo\tzwei\r\n", 2},
        FileCase{"ByteOrderMark",
                 "\xEF\xBB\xBF"
                 "1\tone\teins\n",
                 1},
        FileCase{"CommentsBetween", "# first\n1\tone\teins\n#\n2\ttwo\tzwei\n# last", 2},
        FileCase{"EnglishOnly", "1\tone\n2\ttwo\t\t\n", 2},
        FileCase{"ColumnsBeyondTheThirdLanguage", "1\tone\teins\tuno\tum\t" + k1024Bytes + "\n", 1},
        FileCase{"NumberZero", "0\tzero\n", 1}, FileCase{"LargestNumber", "2147483647\tlarge\n", 1},
        FileCase{"FiveHundredTexts", NumberedLines(500), 500},
        FileCase{"LongestTexts", "1\t" + k1023Bytes + "\t" + k1023Bytes + "\t" + k1023Bytes + "\n", 1},
        FileCase{"LongestTextWithWindowsLineEnd", "1\t" + k1023Bytes + "\r\n", 1},
        FileCase{"LongComment", "#" + std::string(100'000, 'c') + "\n1\tone\n", 1},

        FileCase{"Empty", "", -6}, FileCase{"OnlyComments", "# nothing\n# here\n", 0},
        FileCase{"OnlyAByteOrderMark", "\xEF\xBB\xBF", 0},
        FileCase{"FiveHundredOneLines", NumberedLines(501), -3},
        FileCase{"FiveHundredOneLinesWithComments", Lines(500, "#") + "1\tone\n", -3},
        FileCase{"FiveHundredComments", Lines(500, "#"), 0},
        FileCase{"BeyondFourMebibytes", "#" + std::string(4 << 20, 'c'), -3},

        FileCase{"NoNumber", "one\teins\n", -4}, FileCase{"EmptyNumber", "\tone\teins\n", -4},
        FileCase{"EmptyLine", "1\tone\n\n2\ttwo\n", -4}, FileCase{"OnlyAnEmptyLine", "\n", -4},
        FileCase{"SignedNumber", "+1\tone\n", -4}, FileCase{"NegativeNumber", "-1\tone\n", -4},
        FileCase{"BlankBeforeNumber", " 1\tone\n", -4}, FileCase{"BlankAfterNumber", "1 \tone\n", -4},
        FileCase{"NumberBeyond32Bits", "2147483648\tlarge\n", -4},
        FileCase{"EndlessNumber", std::string(10'000, '9') + "\tlarge\n", -4},

        FileCase{"MissingTextInLine1", "1\n", -501},
        FileCase{"MissingEnglishInLine3", "1\tone\n# comment\n2\t\tzwei\n", -503},
        FileCase{"MissingTextInLine500", NumberedLines(499) + "500\t\n", -1000},
        FileCase{"TooLongInLine1", "1\t" + k1024Bytes + "\n", -1001},
        FileCase{"TooLongGermanInLine2", "1\tone\n2\ttwo\t" + k1024Bytes + "\n", -1002},
        FileCase{"TooLongSpanishInLine2", "1\tone\n2\ttwo\tzwei\t" + k1024Bytes + "\n", -1002},
        FileCase{"TooLongInLine500", NumberedLines(499) + "500\t" + k1024Bytes + "\n", -1500},
        FileCase{"DuplicateInLine2", "1\tone\n1\tone again\n", -1502},
        FileCase{"DuplicateWithLeadingZero", "1\tone\n01\tone again\n", -1502},
        FileCase{"DuplicateInLine12", NumberedLines(11) + "4\tfour again\n", -1512},
        FileCase{"DuplicateInLine500", NumberedLines(499) + "1\tone again\n", -2000},

        FileCase{"FirstFaultOfSeveral", "1\tone\n2\n1\tone again\n", -502},
        FileCase{"DuplicateBeforeMissingInOneLine", "1\tone\n1\n", -1502},
        FileCase{"MissingBeforeTooLongInOneLine", "1\t\t" + k1024Bytes + "\n", -501},
        FileCase{"FaultBeforeTooManyLines", "x\n" + NumberedLines(501), -4}),
    [](const auto& row) { return row.param.name; });

TEST(ProgramTexts, AreFoundInEveryLanguageByNumber) {
    const ProgramTextReading read =
        ReadProgramTexts("# texts\n7\tseven\tsieben\tsiete\r\n32767\tlast\tletzter\n");
    ASSERT_TRUE(read.texts);
    EXPECT_EQ(read.texts->Find(7, 0), "seven");
    EXPECT_EQ(read.texts->Find(7, 1), "sieben");
    EXPECT_EQ(read.texts->Find(7, 2), "siete");
    EXPECT_EQ(read.texts->Find(32767, 1), "letzter");
    EXPECT_EQ(read.texts->Find(32767, 2), "");
}

TEST(ProgramTexts, HaveNothingForOtherNumbersAndLanguages) {
    const ProgramTextReading read = ReadProgramTexts("7\tseven\tsieben\tsiete\tsete\n");
    ASSERT_TRUE(read.texts);
    EXPECT_EQ(read.texts->Find(8, 0), "");
    EXPECT_EQ(read.texts->Find(-7, 0), "");
    EXPECT_EQ(read.texts->Find(7, -1), "");
    EXPECT_EQ(read.texts->Find(7, 3), "");
    EXPECT_EQ(read.texts->Find(7, 2'147'483'647), "");
}

TEST(ProgramTexts, StayWhateverIsReadLater) {
    std::optional<ProgramTexts> kept = ReadProgramTexts("1\tone\n").texts;
    ASSERT_TRUE(kept);
    const ProgramTexts moved = std::move(*kept);
    ASSERT_TRUE(ReadProgramTexts("1\tuno\n").texts);
    EXPECT_EQ(moved.Find(1, 0), "one");
    EXPECT_EQ(kept->Find(1, 0), "one") << "moving leaves no object without texts";
}

TEST(ProgramTexts, KeepBytesAsTheyAre) {
    const ProgramTextReading read = ReadProgramTexts("1\tM\xC3\xA4rz \"x\" \\ #\t \n");
    ASSERT_TRUE(read.texts);
    EXPECT_EQ(read.texts->Find(1, 0), "M\xC3\xA4rz \"x\" \\ #");
    EXPECT_EQ(read.texts->Find(1, 1), " ");
}

TEST(FetchedTexts, AreEmptyWhereNothingHasThem) {
    const TemporaryFolder folder;
    EXPECT_EQ(Fetch(2'000'000'000, 0), "");
    ASSERT_EQ(lt(folder.Write("texts.dat", "7\tseven\tsieben\tsiete\n").c_str(), 0), 1);
    EXPECT_EQ(Fetch(7, 0), "seven");
    EXPECT_EQ(Fetch(7, 1), "sieben");
    EXPECT_EQ(Fetch(7, 2), "siete");
    EXPECT_EQ(Fetch(8, 0), "");
    EXPECT_EQ(Fetch(7, -1), "");
    EXPECT_EQ(Fetch(7, 3), "");
}

TEST(FetchedTexts, ReplaceWhatWasLoadedOnlyOnSuccess) {
    const TemporaryFolder folder;
    ASSERT_EQ(lt(folder.Write("good.dat", "1\tone\n2\ttwo\n").c_str(), 0), 2);
    EXPECT_EQ(lt(folder.Write("bad.dat", "1\tuno\n1\tuno\n").c_str(), 0), -1502);
    EXPECT_EQ(lt(folder.Write("empty.dat", "").c_str(), 0), -6);
    EXPECT_EQ(lt((folder.Path() + "/missing.dat").c_str(), 0), -1);
    EXPECT_EQ(Fetch(1, 0), "one");
    EXPECT_EQ(Fetch(2, 0), "two");
    ASSERT_EQ(lt(folder.Write("new.dat", "1\tuno\n").c_str(), 0), 1);
    EXPECT_EQ(Fetch(1, 0), "uno");
    EXPECT_EQ(Fetch(2, 0), "");
}

TEST(ProgramTextFile, TellsAMissingFileFromOneThatCannotBeRead) {
    const TemporaryFolder folder;
    EXPECT_EQ(lt((folder.Path() + "/missing.dat").c_str(), 0), -1);
    EXPECT_EQ(lt(folder.Path().c_str(), 0), -7) << "a folder opens, but cannot be read";
}

struct CapacityCase {
    std::string name;
    std::int32_t capacity;
    std::string expected;
};

void PrintTo(const CapacityCase& row, std::ostream* out) {
    *out << row.name;
}

class CopyTextTest : public testing::TestWithParam<CapacityCase> {};

TEST_P(CopyTextTest, CutsAtTheEndOfACharacter) {
    std::array<char, 16> buffer;
    buffer.fill('?');
    const CapacityCase& row = GetParam();
    // a, a character of two bytes, one of three, one of four
    const std::int32_t length =
        CopyText("a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80", buffer.data(), row.capacity);
    ASSERT_EQ(length, static_cast<std::int32_t>(row.expected.size()));
    EXPECT_EQ(std::string(buffer.data(), row.expected.size()), row.expected);
    EXPECT_EQ(buffer[row.expected.size()], '\0');
    for (std::size_t i = row.expected.size() + 1; i < buffer.size(); ++i) EXPECT_EQ(buffer[i], '?') << i;
}

INSTANTIATE_TEST_SUITE_P(
    Capacities, CopyTextTest,
    testing::Values(CapacityCase{"Whole", 16, "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80"},
                    CapacityCase{"JustEnough", 11, "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80"},
                    CapacityCase{"WithoutTheLast", 10, "a\xC3\xA4\xE2\x82\xAC"},
                    CapacityCase{"ThreeBytesFit", 7, "a\xC3\xA4\xE2\x82\xAC"},
                    CapacityCase{"ThreeBytesDoNotFit", 6, "a\xC3\xA4"},
                    CapacityCase{"TwoBytesFit", 4, "a\xC3\xA4"}, CapacityCase{"TwoBytesDoNotFit", 3, "a"},
                    CapacityCase{"RoomForTheNulAlone", 1, ""}),
    [](const auto& row) { return row.param.name; });

TEST(CopyText, WritesNothingIntoABufferWithoutRoom) {
    char buffer[1] = {'?'};
    EXPECT_EQ(CopyText("one", buffer, 0), 0);
    EXPECT_EQ(CopyText("one", buffer, -1), 0);
    EXPECT_EQ(gt(1, 0, buffer, 0, 1), 0);
    EXPECT_EQ(buffer[0], '?');
}

}  // namespace
}  // namespace calvoro
