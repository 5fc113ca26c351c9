#include "calendar/Today.h"
#include "tests/support/RowName.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace calvoro {

namespace {

struct MonthRow {
    const char* name;
    LocalDate today;
    std::int32_t jdn, firstDay, lastDay;
};

void PrintTo(const MonthRow& row, std::ostream* out) {
    *out << row.name;
}

constexpr MonthRow kMonths[] = {
    {"LeapFebruary", {2024, 2, 29}, 2460370, 2460342, 2460370},
    {"PlainFebruary", {2023, 2, 1}, 2459977, 2459977, 2460004},
    {"DecemberEndsOnThe31st", {2024, 12, 31}, 2460676, 2460646, 2460676},
    {"DecemberBegins", {2024, 12, 1}, 2460646, 2460646, 2460676},
    {"January", {2024, 1, 15}, 2460325, 2460311, 2460341},
    {"November", {2026, 11, 20}, 2461365, 2461346, 2461375},
    {"FirstDayOfClocks", {1970, 1, 1}, 2440588, 2440588, 2440618},
};

}  // namespace

class Today : public ::testing::TestWithParam<MonthRow> {};

TEST_P(Today, IsACommonEraDay) {
    EXPECT_EQ(TodayJdn(GetParam().today), GetParam().jdn);
}

TEST_P(Today, LiesInAMonthWithBounds) {
    std::int32_t firstDay = 0;
    std::int32_t lastDay = 0;
    EXPECT_EQ(CurrentMonthBounds(GetParam().today, firstDay, lastDay), GetParam().today.month);
    EXPECT_EQ(firstDay, GetParam().firstDay);
    EXPECT_EQ(lastDay, GetParam().lastDay);
}

INSTANTIATE_TEST_SUITE_P(In, Today, ::testing::ValuesIn(kMonths), RowName<MonthRow>);

}  // namespace calvoro
