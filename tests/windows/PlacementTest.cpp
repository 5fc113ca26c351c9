#include "windows/Placement.h"

#include <gtest/gtest.h>

#include <ostream>

#include "windows/frmPopUp.h"

namespace calvoro {
namespace {

struct PlaceRow {
    const char* name;
    QPoint wanted;
    QSize size;
    QPoint place;
};
void PrintTo(const PlaceRow& row, std::ostream* out) {
    *out << row.wanted.x() << ", " << row.wanted.y();
}

class KeptOnScreenFor : public testing::TestWithParam<PlaceRow> {};

TEST_P(KeptOnScreenFor, IsTheNearestPlaceOnTheScreen) {
    EXPECT_EQ(KeptOnScreen(GetParam().wanted, GetParam().size, QRect(100, 50, 800, 600)), GetParam().place);
}

INSTANTIATE_TEST_SUITE_P(Rows, KeptOnScreenFor,
                         testing::Values(PlaceRow{"Inside", {200, 200}, {300, 200}, {200, 200}},
                                         PlaceRow{"TopLeftCorner", {100, 50}, {300, 200}, {100, 50}},
                                         PlaceRow{"BottomRightCorner", {600, 450}, {300, 200}, {600, 450}},
                                         PlaceRow{"TooFarRight", {601, 200}, {300, 200}, {600, 200}},
                                         PlaceRow{"TooFarDown", {200, 451}, {300, 200}, {200, 450}},
                                         PlaceRow{"TooFarLeft", {99, 200}, {300, 200}, {100, 200}},
                                         PlaceRow{"TooFarUp", {200, -40}, {300, 200}, {200, 50}},
                                         PlaceRow{"LargerThanTheScreen", {500, 500}, {900, 700}, {100, 50}}),
                         [](const testing::TestParamInfo<PlaceRow>& row) {
                             return std::string(row.param.name);
                         });

TEST(HalfToEven, RoundsAHalfToTheEvenNeighbour) {
    EXPECT_EQ(HalfToEven(0), 0);
    EXPECT_EQ(HalfToEven(1), 0);
    EXPECT_EQ(HalfToEven(2), 1);
    EXPECT_EQ(HalfToEven(3), 2);
    EXPECT_EQ(HalfToEven(5), 2);
    EXPECT_EQ(HalfToEven(7), 4);
    EXPECT_EQ(HalfToEven(-1), 0);
    EXPECT_EQ(HalfToEven(-3), -2);
    EXPECT_EQ(HalfToEven(-5), -2);
    EXPECT_EQ(HalfToEven(28801), 14400);
}

}  // namespace
}  // namespace calvoro
