#include "tests/calendar/KnownDays.h"

#include <gtest/gtest.h>

#include "calendar/EuroDate.h"
#include "calendar/IsoWeekDate.h"
#include "calendar/LeapWeekDate.h"
#include "calendar/OrdinalDate.h"
#include "calendar/Weekday.h"
#include "tests/calendar/Records.h"

namespace calvoro::testing {

class KnownDayIn : public ::testing::TestWithParam<KnownDay> {};

TEST_P(KnownDayIn, CommonEra) {
    const KnownDay& known = GetParam();
    const DateRecord expected{.year = known.commonEra.year,
                              .month = known.commonEra.month,
                              .day = known.commonEra.day,
                              .calendar = CalendarCode::G,
                              .jdn = known.jdn};
    DateRecord record{.calendar = CalendarCode::G, .jdn = known.jdn};
    jdn_to_euro_date(record);
    EXPECT_EQ(record, expected);
    record.jdn = 77;
    EXPECT_EQ(euro_date_to_jdn(record), known.jdn);
    EXPECT_EQ(record, expected);
}

TEST_P(KnownDayIn, JulianCalendar) {
    const KnownDay& known = GetParam();
    const DateRecord expected{.year = known.julian.year,
                              .month = known.julian.month,
                              .day = known.julian.day,
                              .calendar = CalendarCode::J,
                              .jdn = known.jdn};
    DateRecord record{.calendar = CalendarCode::J, .jdn = known.jdn};
    jdn_to_euro_date(record);
    EXPECT_EQ(record, expected);
    record.jdn = 77;
    EXPECT_EQ(euro_date_to_jdn(record), known.jdn);
    EXPECT_EQ(record, expected);
}

TEST_P(KnownDayIn, IsoWeeks) {
    const KnownDay& known = GetParam();
    const IsoWeekDate expected{
        .year = known.iso.year, .week = known.iso.week, .day = known.iso.day, .jdn = known.jdn};
    IsoWeekDate date{.jdn = known.jdn};
    JdnToIsoWeekDate(date);
    EXPECT_EQ(date, expected);
    date.jdn = 77;
    IsoWeekDateToJdn(date);
    EXPECT_EQ(date, expected);
}

TEST_P(KnownDayIn, OrdinalDates) {
    const KnownDay& known = GetParam();
    std::int32_t year = 0;
    std::int16_t dayOfYear = 0;
    JdnToOrdinal(known.jdn, year, dayOfYear);
    EXPECT_EQ(year, known.ordinal.year);
    EXPECT_EQ(dayOfYear, known.ordinal.day);
    EXPECT_EQ(OrdinalToJdn(known.ordinal.year, known.ordinal.day), known.jdn);
}

TEST_P(KnownDayIn, LeapWeeks) {
    const KnownDay& known = GetParam();
    LeapWeekDate date{.jdn = known.jdn};
    JdnToWeekForm(date);
    EXPECT_EQ(date.year, known.leapWeek.year);
    EXPECT_EQ(date.week, known.leapWeek.week);
    EXPECT_EQ(date.weekday, known.leapWeek.day);
    date.jdn = 77;
    EXPECT_EQ(WeekFormToJdn(date), known.jdn);
    EXPECT_EQ(date.jdn, known.jdn);
}

TEST_P(KnownDayIn, Weekdays) {
    EXPECT_EQ(euro_day_of_week(GetParam().jdn), GetParam().weekday);
}

INSTANTIATE_TEST_SUITE_P(EveryCalendar, KnownDayIn, ::testing::ValuesIn(kKnownDays),
                         [](const auto& test) { return NameOfDay(test.param.jdn); });

}  // namespace calvoro::testing
