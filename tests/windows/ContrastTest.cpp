#include "windows/Contrast.h"

#include <gtest/gtest.h>

#include <ostream>

namespace calvoro {
namespace {

struct ContrastRow {
    const char* one;
    const char* other;
    double ratio;
};

void PrintTo(const ContrastRow& row, std::ostream* out) {
    *out << row.one << " on " << row.other;
}

class ContrastOf : public testing::TestWithParam<ContrastRow> {};

TEST_P(ContrastOf, TwoColoursIsTheSameBothWays) {
    const ContrastRow& row = GetParam();
    const QColor one(QLatin1String(row.one));
    const QColor other(QLatin1String(row.other));
    EXPECT_NEAR(Contrast(one, other), row.ratio, 0.01);
    EXPECT_DOUBLE_EQ(Contrast(one, other), Contrast(other, one));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ContrastOf,
    testing::Values(ContrastRow{"#000000", "#ffffff", 21}, ContrastRow{"#777777", "#777777", 1},
                    // The two greys on either side of the least contrast on white.
                    ContrastRow{"#767676", "#ffffff", 4.54}, ContrastRow{"#777777", "#ffffff", 4.48},
                    ContrastRow{"#0000ff", "#ffffff", 8.59}, ContrastRow{"#0000ff", "#000000", 2.44}));

}  // namespace
}  // namespace calvoro
