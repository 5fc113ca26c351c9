#include "windows/OutputBuffer.h"

#include <gtest/gtest.h>

#include <string>

namespace calvoro {
namespace {

using Kind = OutputStep::Kind;

constexpr std::string_view kNotice = " ...\r\n\r\nBUFFER FULL  \r\n";

TEST(OutputBuffer, AppendsTextAndLineBreaks) {
    OutputBuffer buffer;
    const OutputStep step = buffer.Output(10, "abc", 2);
    EXPECT_EQ(step.kind, Kind::Append);
    EXPECT_EQ(step.text, "abc\r\n\r\n");
}

TEST(OutputBuffer, AppendsNoLineBreakForNoneOrANegativeCount) {
    OutputBuffer buffer;
    EXPECT_EQ(buffer.Output(10, "abc", 0).text, "abc");
    EXPECT_EQ(buffer.Output(10, "abc", -3).text, "abc");
}

TEST(OutputBuffer, DeliberatelyTestsTheLengthBeforeAppending) {
    OutputBuffer buffer;
    const std::string large(100000, 'x');
    EXPECT_EQ(buffer.Output(61439, large, 0).kind, Kind::Append);
    EXPECT_EQ(buffer.Output(61440, large, 0).kind, Kind::Append);
    EXPECT_FALSE(buffer.Overflowed());
}

TEST(OutputBuffer, WritesTheNoticeOnceTheTextHasPassedTheLimit) {
    OutputBuffer buffer;
    EXPECT_EQ(buffer.Output(61440, "x", 0).kind, Kind::Append);
    const OutputStep step = buffer.Output(61441, "lost", 1);
    EXPECT_EQ(step.kind, Kind::Replace);
    EXPECT_EQ(step.text, kNotice);
    EXPECT_EQ(step.keep, 61441 - 512);
    EXPECT_EQ(step.caret, 61441);
    EXPECT_TRUE(buffer.Overflowed());
}

TEST(OutputBuffer, DropsEverythingAfterTheNotice) {
    OutputBuffer buffer;
    buffer.Output(70000, "lost", 0);
    EXPECT_EQ(buffer.Output(69511, "lost", 0).kind, Kind::Drop);
    // The notice has made the text shorter than the limit; it stays full.
    EXPECT_EQ(buffer.Output(60952, "lost", 0).kind, Kind::Drop);
}

TEST(OutputBuffer, BeginsAfreshWithAnEmptyText) {
    OutputBuffer buffer;
    buffer.Output(70000, "lost", 0);
    EXPECT_EQ(buffer.Output(0, "", 0).kind, Kind::Append);
    EXPECT_FALSE(buffer.Overflowed());
    EXPECT_EQ(buffer.Output(70000, "lost", 0).kind, Kind::Replace);
}

TEST(OutputBuffer, AcceptsAnyLengthIntoAnEmptyText) {
    OutputBuffer buffer;
    EXPECT_EQ(buffer.Output(0, std::string(100000, 'x'), 0).kind, Kind::Append);
}

TEST(OutputBuffer, PutsTheNoteBehindTheNotice) {
    OutputBuffer buffer;
    buffer.BufferFullNote = "See the file.";
    EXPECT_EQ(buffer.Output(61441, "", 0).text, " ...\r\n\r\nBUFFER FULL  See the file.\r\n");
}

TEST(OutputBuffer, CutsNoMoreThanThereIs) {
    OutputBuffer buffer;
    buffer.BufferLimit = 100;
    const OutputStep step = buffer.Output(101, "", 0);
    EXPECT_EQ(step.keep, 0);
    EXPECT_EQ(step.caret, 101);
}

TEST(ArrayText, JoinsTheRangeAsLines) {
    const std::vector<std::string> texts = {"zero", "one", "two", "three"};
    EXPECT_EQ(ArrayText(OutputBuffer(), texts, 1, 2, false), "one\r\ntwo");
    EXPECT_EQ(ArrayText(OutputBuffer(), texts, 0, 3, false), "zero\r\none\r\ntwo\r\nthree");
    EXPECT_EQ(ArrayText(OutputBuffer(), texts, 3, 3, false), "three");
    EXPECT_EQ(ArrayText(OutputBuffer(), texts, 3, 2, false), "");
    EXPECT_EQ(ArrayText(OutputBuffer(), {}, 1, 0, false), "");
}

TEST(ArrayText, PutsAnEmptyLineBetweenFolders) {
    const std::vector<std::string> texts = {"a\\b\\1", "a\\b\\2", "a\\3", "4", "5"};
    EXPECT_EQ(ArrayText(OutputBuffer(), texts, 0, 4, true), "a\\b\\1\r\na\\b\\2\r\n\r\na\\3\r\n\r\n4\r\n5");
    EXPECT_EQ(ArrayText(OutputBuffer(), texts, 0, 4, false), "a\\b\\1\r\na\\b\\2\r\na\\3\r\n4\r\n5");
    EXPECT_EQ(ArrayText(OutputBuffer(), texts, 2, 3, true), "a\\3\r\n\r\n4");
}

TEST(ArrayText, StopsBeforeTheLineThatWouldPassTheLimit) {
    OutputBuffer buffer;
    buffer.BufferLimit = 12;
    // 5 characters, a line break and 5 characters are 12.
    EXPECT_EQ(ArrayText(buffer, {"12345", "12345"}, 0, 1, false), "12345\r\n12345");
    EXPECT_EQ(ArrayText(buffer, {"12345", "123456", "1"}, 0, 2, false), "12345\r\nBUFFER FULL");
    // The first line is reckoned with a line break too.
    EXPECT_EQ(ArrayText(buffer, {"1234567890"}, 0, 0, false), "1234567890");
    EXPECT_EQ(ArrayText(buffer, {"12345678901"}, 0, 0, false), "\r\nBUFFER FULL");
}

TEST(ArrayText, CountsCharactersNotBytes) {
    OutputBuffer buffer;
    buffer.BufferLimit = 7;
    EXPECT_EQ(ArrayText(buffer, {"äöüäö"}, 0, 0, false), "äöüäö");
    // A character beyond the first 65536 counts two, as in the text box.
    EXPECT_EQ(ArrayText(buffer,
                        {"\xF0\x9F\x98\x80"
                         "äöü"},
                        0, 0, false),
              "\xF0\x9F\x98\x80"
              "äöü");
    EXPECT_EQ(ArrayText(buffer,
                        {"\xF0\x9F\x98\x80"
                         "äöüä"},
                        0, 0, false),
              "\r\nBUFFER FULL");
}

}  // namespace
}  // namespace calvoro
