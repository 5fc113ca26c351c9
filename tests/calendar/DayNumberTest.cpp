#include "calendar/DayNumber.h"

#include <gtest/gtest.h>

#include "calendar/EuroDate.h"

namespace calvoro {

TEST(DayNumber, FourDigitYearsEndWhereTheirConstantsSay) {
    DateRecord first{.year = 1, .month = 1, .day = 1, .calendar = CalendarCode::G};
    DateRecord last{.year = 9999, .month = 12, .day = 31, .calendar = CalendarCode::G};
    EXPECT_EQ(euro_date_to_jdn(first), kFirstFourDigitDay);
    EXPECT_EQ(euro_date_to_jdn(last), kLastFourDigitDay);
}

TEST(DayNumber, OrdinalLimitsIncludeBothEnds) {
    EXPECT_TRUE(IsWithinOrdinalLimits(1721426));
    EXPECT_FALSE(IsWithinOrdinalLimits(1721425));
    EXPECT_TRUE(IsWithinOrdinalLimits(5373484));
    EXPECT_FALSE(IsWithinOrdinalLimits(5373485));
}

TEST(DayNumber, DayLimitsIncludeBothEnds) {
    EXPECT_TRUE(IsWithinDayLimits(2'100'000'000));
    EXPECT_FALSE(IsWithinDayLimits(2'100'000'001));
    EXPECT_TRUE(IsWithinDayLimits(-2'100'000'000));
    EXPECT_FALSE(IsWithinDayLimits(-2'100'000'001));
}

}  // namespace calvoro
