#include "calendar/Weekday.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>
#include <string>

#include "tests/calendar/KnownDays.h"

namespace calvoro::testing {

namespace {

struct WeekdayRow {
    std::int32_t jdn;
    std::int32_t weekday;
    bool isWeekday;
};

void PrintTo(const WeekdayRow& row, std::ostream* out) {
    *out << "day " << row.jdn;
}

constexpr WeekdayRow kWeekdays[] = {
    {0, 1, true},  // day 0 is a Monday
    {-1, 0, false},
    {-2, 6, false},
    {-3, 5, true},
    {-7, 1, true},
    {-8, 0, false},
    {1, 2, true},
    {4, 5, true},
    {5, 6, false},
    {6, 0, false},
    {7, 1, true},
    {2460370, 4, true},
    // 2^31 leaves 2 when divided by 7: day 2147483648 would be a Wednesday, day -2147483648 is a Saturday.
    {std::numeric_limits<std::int32_t>::max(), 2, true},
    {std::numeric_limits<std::int32_t>::min(), 6, false},
};

}  // namespace

class WeekdayOf : public ::testing::TestWithParam<WeekdayRow> {};

TEST_P(WeekdayOf, IsCountedFromSunday) {
    EXPECT_EQ(euro_day_of_week(GetParam().jdn), GetParam().weekday);
}

TEST_P(WeekdayOf, IsAWeekdayFromMondayToFriday) {
    EXPECT_EQ(IsWeekday(GetParam().jdn), GetParam().isWeekday);
}

INSTANTIATE_TEST_SUITE_P(Days, WeekdayOf, ::testing::ValuesIn(kWeekdays),
                         [](const auto& test) { return NameOfDay(test.param.jdn); });

}  // namespace calvoro::testing
