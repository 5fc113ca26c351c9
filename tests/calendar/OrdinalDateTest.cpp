#include "calendar/OrdinalDate.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "calendar/CheckedInt.h"
#include "tests/support/Limits32.h"
#include "tests/support/RowName.h"

namespace calvoro {

namespace {

struct OrdinalRow {
    const char* name;
    std::int32_t year, dayOfYear, jdn;
};

void PrintTo(const OrdinalRow& row, std::ostream* out) {
    *out << row.name;
}

constexpr OrdinalRow kOrdinals[] = {
    {"LastDayOfALeapYear", 2024, 366, 2460676},  {"NewYearsDay", 2023, 1, 2459946},
    {"LastDayOfAPlainYear", 2023, 365, 2460310}, {"CenturyWithoutLeapDay", 1900, 365, 2415385},
    {"CenturyWithLeapDay", 2000, 366, 2451910},  {"FirstFourDigitDay", 1, 1, 1721426},
    {"LastFourDigitDay", 9999, 365, 5373484},    {"YearZeroIsLeap", 0, 366, 1721425},
    {"YearBeforeZero", -1, 365, 1721059},        {"LeapYearBelowZero", -4, 366, 1719964},
};

}  // namespace

class OrdinalDate : public ::testing::TestWithParam<OrdinalRow> {};

TEST_P(OrdinalDate, HasItsDayNumber) {
    EXPECT_EQ(OrdinalToJdn(GetParam().year, GetParam().dayOfYear), GetParam().jdn);
}

TEST_P(OrdinalDate, IsFoundFromItsDayNumber) {
    std::int32_t year = 0;
    std::int16_t dayOfYear = 0;
    JdnToOrdinal(GetParam().jdn, year, dayOfYear);
    EXPECT_EQ(year, GetParam().year);
    EXPECT_EQ(dayOfYear, GetParam().dayOfYear);
}

INSTANTIATE_TEST_SUITE_P(Of, OrdinalDate, ::testing::ValuesIn(kOrdinals), RowName<OrdinalRow>);

TEST(OrdinalToJdn, DoesNotValidateTheDay) {
    EXPECT_EQ(OrdinalToJdn(2023, 0), 2459945);
    EXPECT_EQ(OrdinalToJdn(2023, 366), OrdinalToJdn(2024, 1));
    EXPECT_EQ(OrdinalToJdn(2023, -364), OrdinalToJdn(2022, 1));
    EXPECT_EQ(OrdinalToJdn(0, kLargest - 1721059), kLargest);
}

TEST(OrdinalToJdn, ReachesBothEndsAndRefusesTheDaysBeyond) {
    for (const std::int32_t jdn : {kLargest, kSmallest}) {
        std::int32_t year = 0;
        std::int16_t dayOfYear = 0;
        JdnToOrdinal(jdn, year, dayOfYear);
        EXPECT_EQ(OrdinalToJdn(year, dayOfYear), jdn);
        EXPECT_THROW(OrdinalToJdn(year, dayOfYear + (jdn > 0 ? 1 : -1)), ArithmeticOverflow);
    }
}

TEST(OrdinalToJdn, RefusesYearsWhoseDaysDoNotFit) {
    for (const std::int32_t year : {kLargest, kSmallest, 5'900'000, -5'900'000}) {
        EXPECT_THROW(OrdinalToJdn(year, 1), ArithmeticOverflow) << year;
    }
}

}  // namespace calvoro
