#include "datetext/Blanks.h"

#include <gtest/gtest.h>

namespace calvoro {
namespace {

TEST(TrimBlanks, TakesBlanksAtBothEndsOnly) {
    EXPECT_EQ(TrimBlanks("  a b  "), "a b");
    EXPECT_EQ(TrimBlanks("   "), "");
    EXPECT_EQ(TrimBlanks(""), "");
    EXPECT_EQ(TrimBlanks("\ta "), "\ta");
}

TEST(WithoutBlanks, TakesEveryBlankAndNothingElse) {
    EXPECT_EQ(WithoutBlanks(" a  b\t "), "ab\t");
    EXPECT_EQ(WithoutBlanks(""), "");
}

}  // namespace
}  // namespace calvoro
