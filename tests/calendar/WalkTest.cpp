// Every day of long spans, compared with calendars that only know which date comes next, and with the
// standard library's.

#include <gtest/gtest.h>

#include <chrono>

#include "calendar/EuroDate.h"
#include "calendar/IsoWeekDate.h"
#include "calendar/LeapWeekDate.h"
#include "calendar/OrdinalDate.h"
#include "calendar/Weekday.h"
#include "calendar/YearsAndMonths.h"
#include "tests/support/NextDay.h"
#include "tests/support/RowName.h"

namespace calvoro::testing {

namespace {

/// Where a walk begins, in every calendar.
struct Start {
    const char* name;
    std::int32_t jdn;
    std::int32_t days;
    CivilStepper commonEra, julian;
    OrdinalStepper ordinal;
    IsoStepper iso;
    LeapWeekStepper leapWeek;
};

void PrintTo(const Start& start, std::ostream* out) {
    *out << start.name;
}

// Day 0 to the year 6238, and 2190 years from the first day that is accepted.
const std::array kStarts{
    Start{"DayZero",
          0,
          4'000'000,
          {LeapRule::CommonEra, -4713, 11, 24},
          {LeapRule::Julian, -4712, 1, 1},
          {-4713, 328},
          {.year = -4713, .week = 48, .day = 1, .newYearsDay = 3},
          {.year = -4713, .share = 380, .week = 49, .weekday = 1, .month = 12, .day = 1}},
    Start{"FirstDay",
          -2'100'000'000,
          800'000,
          {LeapRule::CommonEra, -5754317, 3, 8},
          {LeapRule::Julian, -5754199, 5, 7},
          {-5754317, 67},
          {.year = -5754317, .week = 10, .day = 1, .newYearsDay = 5},
          {.year = -5754317, .share = 96, .week = 11, .weekday = 1, .month = 3, .day = 8}},
};

}  // namespace

class Walk : public ::testing::TestWithParam<Start> {
protected:
    /// Compares every day of the walk; `compare` returns whether the day is as the stepper says.
    template <typename Stepper, typename Compare>
    static void Go(Stepper stepper, Compare compare) {
        std::int32_t steps = 0;
        for (std::int32_t jdn = GetParam().jdn; jdn < GetParam().jdn + GetParam().days; ++jdn) {
            ASSERT_TRUE(compare(jdn, stepper)) << "day " << jdn;
            stepper.Next();
            ++steps;
        }
        EXPECT_EQ(steps, GetParam().days);
    }

    static void GoThrough(CalendarCode calendar, const CivilStepper& start) {
        Go(start, [calendar](std::int32_t jdn, const CivilStepper& expected) {
            DateRecord record{.calendar = calendar, .jdn = jdn};
            jdn_to_euro_date(record);
            const bool forth = record.year == expected.year && record.month == expected.month &&
                               record.day == expected.day && record.jdn == jdn;
            record.jdn = 0;
            return forth && euro_date_to_jdn(record) == jdn && record.jdn == jdn;
        });
    }
};

TEST_P(Walk, CommonEraDatesFollowEachOther) {
    GoThrough(CalendarCode::G, GetParam().commonEra);
}

TEST_P(Walk, JulianDatesFollowEachOther) {
    GoThrough(CalendarCode::J, GetParam().julian);
}

TEST_P(Walk, OrdinalDatesFollowEachOther) {
    Go(GetParam().ordinal, [](std::int32_t jdn, const OrdinalStepper& expected) {
        std::int32_t year = 0;
        std::int16_t day = 0;
        JdnToOrdinal(jdn, year, day);
        return year == expected.year && day == expected.day && OrdinalToJdn(year, day) == jdn;
    });
}

TEST_P(Walk, IsoWeekDatesFollowEachOther) {
    Go(GetParam().iso, [](std::int32_t jdn, const IsoStepper& expected) {
        IsoWeekDate date{.jdn = jdn};
        JdnToIsoWeekDate(date);
        const bool forth =
            date.year == expected.year && date.week == expected.week && date.day == expected.day;
        date.jdn = 0;
        IsoWeekDateToJdn(date);
        return forth && date.jdn == jdn &&
               IsoWeekOneStart(date.year) == jdn - 7 * (expected.week - 1) - (expected.day - 1);
    });
}

TEST_P(Walk, LongIsoYearsAreThoseWith53Thursdays) {
    Go(GetParam().iso, [](std::int32_t, const IsoStepper& expected) {
        return HasWeek53(expected.year) == (expected.year >= 1 && expected.IsLong());
    });
}

TEST_P(Walk, LeapWeekDatesFollowEachOtherInBothForms) {
    Go(GetParam().leapWeek, [](std::int32_t jdn, const LeapWeekStepper& expected) {
        LeapWeekDate date{.jdn = jdn};
        JdnToLpm(date);
        const bool forth = date.year == expected.year && date.week == expected.week &&
                           date.weekday == expected.weekday && date.month == expected.month &&
                           date.day == expected.day && date.status == kLeapWeekOk;
        LeapWeekDate weekForm{.year = date.year, .week = date.week, .weekday = date.weekday};
        LeapWeekDate monthForm{.year = date.year, .month = date.month, .day = date.day};
        return forth && WeekFormToJdn(weekForm) == jdn && weekForm.jdn == jdn && LpmToJdn(monthForm) == jdn &&
               monthForm.jdn == jdn && IsLeapWeekYear(date.year) == expected.IsLeap();
    });
}

TEST_P(Walk, WeekdaysFollowEachOther) {
    std::int32_t weekday = 1;  // both walks begin on a Monday
    Go(GetParam().ordinal, [&weekday](std::int32_t jdn, const OrdinalStepper&) {
        const bool same = euro_day_of_week(jdn) == weekday && IsWeekday(jdn) == (weekday % 6 != 0);
        weekday = weekday == 6 ? 0 : weekday + 1;
        return same;
    });
}

TEST_P(Walk, LengthsOfMonthsAndDaysOfTheYearAreThoseCounted) {
    for (const CalendarCode calendar : {CalendarCode::G, CalendarCode::J}) {
        std::int32_t dayOfYear = 0;  // counted from the first new year's day on
        const bool julian = calendar == CalendarCode::J;
        Go(julian ? GetParam().julian : GetParam().commonEra,
           [&](std::int32_t jdn, const CivilStepper& expected) {
               if (expected.month == 1 && expected.day == 1) dayOfYear = 0;
               ++dayOfYear;
               DateRecord record{.year = expected.year,
                                 .month = expected.month,
                                 .day = expected.day,
                                 .calendar = calendar,
                                 .jdn = 0};
               if (jdn - GetParam().jdn > 366 && DayOfYear(record) != dayOfYear) return false;
               if (expected.day != 1) return true;
               std::int32_t status = 0;
               return DaysInMonth(record, status) == expected.MonthLength() && status == 0 &&
                      IsLeapYear(expected.year, julian ? "JC" : "CE") ==
                          IsLeapByRule(expected.year, expected.rule);
           });
    }
}

INSTANTIATE_TEST_SUITE_P(From, Walk, ::testing::ValuesIn(kStarts), RowName<Start>);

TEST(ChronoWalk, CommonEraDatesAndWeekdaysAreThoseOfTheStandardLibrary) {
    using namespace std::chrono;
    constexpr std::int32_t kUnixDayZero = 2'440'588;
    const sys_days first = year(-10000) / January / 1;
    const sys_days last = year(9999) / December / 31;
    std::int32_t steps = 0;
    for (sys_days day = first; day <= last; day += days(1)) {
        const year_month_day expected(day);
        const auto jdn = static_cast<std::int32_t>(day.time_since_epoch().count()) + kUnixDayZero;
        DateRecord record{.calendar = CalendarCode::G, .jdn = jdn};
        jdn_to_euro_date(record);
        ASSERT_EQ(record.year, int{expected.year()}) << "day " << jdn;
        ASSERT_EQ(record.month, static_cast<std::int32_t>(unsigned{expected.month()})) << "day " << jdn;
        ASSERT_EQ(record.day, static_cast<std::int32_t>(unsigned{expected.day()})) << "day " << jdn;
        ASSERT_EQ(euro_date_to_jdn(record), jdn);
        ASSERT_EQ(euro_day_of_week(jdn), static_cast<std::int32_t>(weekday(day).c_encoding()));
        ++steps;
    }
    EXPECT_EQ(steps, 50 * 146'097);
}

TEST(ChronoWalk, IsoWeeksAreThoseOfTheStandardLibrarysThursdays) {
    using namespace std::chrono;
    constexpr std::int32_t kUnixDayZero = 2'440'588;
    const sys_days first = year(-1200) / January / 1;
    const sys_days last = year(2799) / December / 31;
    std::int32_t steps = 0;
    for (sys_days day = first; day <= last; day += days(1)) {
        const sys_days thursday = day - (weekday(day) - Monday) + days(3);
        const year isoYear = year_month_day(thursday).year();
        const auto week = (thursday - sys_days(isoYear / January / Thursday[1])).count() / 7 + 1;
        const auto jdn = static_cast<std::int32_t>(day.time_since_epoch().count()) + kUnixDayZero;
        IsoWeekDate date{.jdn = jdn};
        JdnToIsoWeekDate(date);
        ASSERT_EQ(date.year, int{isoYear}) << "day " << jdn;
        ASSERT_EQ(date.week, week) << "day " << jdn;
        ASSERT_EQ(date.day, static_cast<std::int32_t>(weekday(day).iso_encoding())) << "day " << jdn;
        ++steps;
    }
    EXPECT_EQ(steps, 10 * 146'097);
}

}  // namespace calvoro::testing
