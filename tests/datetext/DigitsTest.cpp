#include "datetext/Digits.h"

#include "datetext/Blanks.h"
#include "tests/datetext/TextRows.h"

namespace calvoro {
namespace {

TEST(ReadDigits, StopsBehindTheDigits) {
    std::size_t at = 1;
    EXPECT_EQ(ReadDigits("-0123-4", at), 123);
    EXPECT_EQ(at, 5U);
    at = 0;
    EXPECT_EQ(ReadDigits("x", at), 0);
    EXPECT_EQ(at, 0U);
    EXPECT_EQ(ReadDigits("", at), 0);
}

TEST(ReadDigits, SaturatesInsteadOfWrapping) {
    for (const std::string& text :
         {std::string("2147483647"), std::string("2147483648"), std::string("4294967296"),
          std::string("18446744073709551616"), std::string(1'000'000, '9')}) {
        std::size_t at = 0;
        EXPECT_EQ(ReadDigits(text, at), kDigitsSaturated) << text.substr(0, 30);
        EXPECT_EQ(at, text.size());
    }
    std::size_t at = 0;
    EXPECT_EQ(ReadDigits("2147483646", at), kDigitsSaturated - 1);
}

TEST(AllDigits, NeedsAtLeastOne) {
    EXPECT_TRUE(AllDigits("0"));
    EXPECT_TRUE(AllDigits("0123456789"));
    EXPECT_FALSE(AllDigits(""));
    EXPECT_FALSE(AllDigits("12 "));
    EXPECT_FALSE(AllDigits("-1"));
    for (const std::string& text : HostileTexts()) EXPECT_FALSE(AllDigits(text));
}

TEST(AppendNumber, PadsTheDigitsBehindTheSign) {
    const auto written = [](std::int32_t number, std::size_t width) {
        std::string text = ">";
        AppendNumber(text, number, width);
        return text;
    };
    EXPECT_EQ(written(0, 1), ">0");
    EXPECT_EQ(written(5, 2), ">05");
    EXPECT_EQ(written(-5, 2), ">-05");
    EXPECT_EQ(written(123, 2), ">123");
    EXPECT_EQ(written(-2147483647 - 1, 1), ">-2147483648");
    EXPECT_EQ(written(2147483647, 12), ">002147483647");
}

TEST(TrimBlanks, TakesBlanksFromBothEndsOnly) {
    EXPECT_EQ(TrimBlanks("  a b  "), "a b");
    EXPECT_EQ(TrimBlanks("a"), "a");
    EXPECT_EQ(TrimBlanks(""), "");
    EXPECT_EQ(TrimBlanks("   "), "");
    EXPECT_EQ(TrimBlanks("\t a \n"), "\t a \n") << "other white space stays";
}

TEST(WithoutBlanks, TakesEveryBlank) {
    EXPECT_EQ(WithoutBlanks(" a  b\tc "), "ab\tc");
    EXPECT_EQ(WithoutBlanks(""), "");
    EXPECT_EQ(WithoutBlanks(std::string(1'000'000, ' ')), "");
}

}  // namespace
}  // namespace calvoro
