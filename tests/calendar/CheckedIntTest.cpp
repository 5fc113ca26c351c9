#include "calendar/CheckedInt.h"
#include "tests/support/Limits32.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace calvoro {

namespace {}  // namespace

TEST(CheckedInt, ComputesLikeAPlainNumberInsideTheRange) {
    EXPECT_EQ((CheckedInt(kLargest) + 0).Value(), kLargest);
    EXPECT_EQ((CheckedInt(kLargest - 1) + 1).Value(), kLargest);
    EXPECT_EQ((CheckedInt(kSmallest + 1) - 1).Value(), kSmallest);
    EXPECT_EQ((CheckedInt(kLargest) + kSmallest).Value(), -1);
    EXPECT_EQ((CheckedInt(46'340) * 46'340).Value(), 2'147'395'600);
    EXPECT_EQ((CheckedInt(65'536) * -32'768).Value(), kSmallest);
    EXPECT_EQ((-CheckedInt(kLargest)).Value(), -kLargest);
}

TEST(CheckedInt, AssignsWhatItComputes) {
    CheckedInt number = 5;
    number += 7;
    EXPECT_EQ(number.Value(), 12);
    number -= 20;
    EXPECT_EQ(number.Value(), -8);
}

TEST(CheckedInt, RefusesToWrap) {
    EXPECT_THROW(CheckedInt(kLargest) + 1, ArithmeticOverflow);
    EXPECT_THROW(CheckedInt(kSmallest) - 1, ArithmeticOverflow);
    EXPECT_THROW(CheckedInt(kSmallest) + kSmallest, ArithmeticOverflow);
    EXPECT_THROW(CheckedInt(kSmallest) - kLargest, ArithmeticOverflow);
    EXPECT_THROW(CheckedInt(46'341) * 46'341, ArithmeticOverflow);
    EXPECT_THROW(CheckedInt(kSmallest) * -1, ArithmeticOverflow);
    EXPECT_THROW(CheckedInt(kSmallest) * kSmallest, ArithmeticOverflow);
    EXPECT_THROW(-CheckedInt(kSmallest), ArithmeticOverflow);
}

TEST(CheckedInt, KeepsItsValueWhenAnAssignmentIsRefused) {
    CheckedInt number = kLargest;
    EXPECT_THROW(number += 1, ArithmeticOverflow);
    EXPECT_EQ(number.Value(), kLargest);
}

TEST(CheckedInt, IsOrderedAsItsValue) {
    EXPECT_LT(CheckedInt(kSmallest), CheckedInt(0));
    EXPECT_GE(CheckedInt(3), CheckedInt(3));
    EXPECT_EQ(CheckedInt(), CheckedInt(0));
}

TEST(NarrowToInt32, TakesExactlyTheRange) {
    EXPECT_EQ(NarrowToInt32(kLargest), kLargest);
    EXPECT_EQ(NarrowToInt32(kSmallest), kSmallest);
    EXPECT_THROW(NarrowToInt32(std::int64_t{kLargest} + 1), ArithmeticOverflow);
    EXPECT_THROW(NarrowToInt32(std::int64_t{kSmallest} - 1), ArithmeticOverflow);
    EXPECT_THROW(NarrowToInt32(std::numeric_limits<std::int64_t>::max()), ArithmeticOverflow);
}

TEST(NarrowToInt16, TakesExactlyTheRange) {
    EXPECT_EQ(NarrowToInt16(32'767), 32'767);
    EXPECT_EQ(NarrowToInt16(-32'768), -32'768);
    EXPECT_THROW(NarrowToInt16(32'768), ArithmeticOverflow);
    EXPECT_THROW(NarrowToInt16(-32'769), ArithmeticOverflow);
    EXPECT_THROW(NarrowToInt16(65'536), ArithmeticOverflow);
}

TEST(ArithmeticOverflow, SaysWhatHappened) {
    EXPECT_EQ(std::string(ArithmeticOverflow().what()), "a result leaves the range of 32-bit numbers");
}

}  // namespace calvoro
