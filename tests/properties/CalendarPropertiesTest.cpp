// What holds for every day number, tried on random ones of the whole 32-bit range.

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <limits>
#include <tuple>

#include "calendar/CheckedInt.h"
#include "calendar/EuroDate.h"
#include "calendar/IsoWeekDate.h"
#include "calendar/LeapWeekDate.h"
#include "calendar/MonthArithmetic.h"
#include "calendar/OrdinalDate.h"
#include "calendar/Weekday.h"
#include "calendar/YearsAndMonths.h"

namespace calvoro {

namespace {

constexpr std::int64_t kLargest = std::numeric_limits<std::int32_t>::max();
constexpr std::int64_t kSmallest = std::numeric_limits<std::int32_t>::min();

/// Any 32-bit number, large ones as often as small ones.
rc::Gen<std::int32_t> AnyDay() {
    return rc::gen::map(rc::gen::inRange<std::int64_t>(kSmallest, kLargest + 1),
                        [](std::int64_t day) { return static_cast<std::int32_t>(day); });
}

rc::Gen<CalendarCode> AnyCalendar() {
    return rc::gen::element(CalendarCode::G, CalendarCode::J, CalendarCode::Unset);
}

/// The dates of a day in every calendar, so that two days can be compared.
auto DatesOf(std::int32_t jdn) {
    DateRecord commonEra{.calendar = CalendarCode::G, .jdn = jdn};
    DateRecord julian{.calendar = CalendarCode::J, .jdn = jdn};
    IsoWeekDate iso{.jdn = jdn};
    LeapWeekDate leapWeek{.jdn = jdn};
    std::int32_t year = 0;
    std::int16_t dayOfYear = 0;
    jdn_to_euro_date(commonEra);
    jdn_to_euro_date(julian);
    JdnToIsoWeekDate(iso);
    JdnToLpm(leapWeek);
    JdnToOrdinal(jdn, year, dayOfYear);
    return std::tuple(std::tuple(commonEra.year, commonEra.month, commonEra.day),
                      std::tuple(julian.year, julian.month, julian.day),
                      std::tuple(iso.year, iso.week, iso.day), std::tuple(year, dayOfYear),
                      std::tuple(leapWeek.year, leapWeek.week, leapWeek.weekday),
                      std::tuple(leapWeek.year, leapWeek.month, leapWeek.day));
}

}  // namespace

RC_GTEST_PROP(CalendarProperties, DatesComeBackAsTheirDayNumber, ()) {
    const std::int32_t jdn = *AnyDay();
    DateRecord date{.calendar = *AnyCalendar(), .jdn = jdn};
    jdn_to_euro_date(date);
    date.jdn = 0;
    RC_ASSERT(euro_date_to_jdn(date) == jdn);
    RC_ASSERT(date.jdn == jdn);
}

RC_GTEST_PROP(CalendarProperties, WeekDatesComeBackAsTheirDayNumber, ()) {
    const std::int32_t jdn = *AnyDay();
    IsoWeekDate date{.jdn = jdn};
    JdnToIsoWeekDate(date);
    date.jdn = 0;
    IsoWeekDateToJdn(date);
    RC_ASSERT(date.jdn == jdn);
    RC_ASSERT(date.week >= 1);
    RC_ASSERT(date.week <= 53);
}

RC_GTEST_PROP(CalendarProperties, OrdinalDatesComeBackAsTheirDayNumber, ()) {
    const std::int32_t jdn = *AnyDay();
    std::int32_t year = 0;
    std::int16_t dayOfYear = 0;
    JdnToOrdinal(jdn, year, dayOfYear);
    RC_ASSERT(OrdinalToJdn(year, dayOfYear) == jdn);
    DateRecord date{.calendar = CalendarCode::G, .jdn = jdn};
    jdn_to_euro_date(date);
    RC_ASSERT(date.year == year);
    // The first day of the first year of all lies outside the range.
    if (jdn - kSmallest > 366) RC_ASSERT(DayOfYear(date) == dayOfYear);
}

RC_GTEST_PROP(CalendarProperties, LeapWeekDatesComeBackAsTheirDayNumberInBothForms, ()) {
    const std::int32_t jdn = *AnyDay();
    LeapWeekDate date{.jdn = jdn};
    JdnToLpm(date);
    LeapWeekDate weekForm{.year = date.year, .week = date.week, .weekday = date.weekday};
    LeapWeekDate monthForm{.year = date.year, .month = date.month, .day = date.day};
    RC_ASSERT(WeekFormToJdn(weekForm) == jdn);
    RC_ASSERT(LpmToJdn(monthForm) == jdn);
    RC_ASSERT(date.week <= (IsLeapWeekYear(date.year) ? 53 : 52));
}

RC_GTEST_PROP(CalendarProperties, ALaterDayIsALaterDateInEveryCalendar, ()) {
    const std::int32_t day = *AnyDay();
    const std::int64_t distance =
        *rc::gen::oneOf(rc::gen::inRange<std::int64_t>(1, 800), rc::gen::inRange<std::int64_t>(1, kLargest));
    RC_PRE(day + distance <= kLargest);
    const auto earlier = DatesOf(day);
    const auto later = DatesOf(static_cast<std::int32_t>(day + distance));
    RC_ASSERT(std::get<0>(earlier) < std::get<0>(later));
    RC_ASSERT(std::get<1>(earlier) < std::get<1>(later));
    RC_ASSERT(std::get<2>(earlier) < std::get<2>(later));
    RC_ASSERT(std::get<3>(earlier) < std::get<3>(later));
    RC_ASSERT(std::get<4>(earlier) < std::get<4>(later));
    RC_ASSERT(std::get<5>(earlier) < std::get<5>(later));
}

RC_GTEST_PROP(CalendarProperties, WeekdaysOfAllWeekCalendarsAgree, ()) {
    const std::int32_t jdn = *AnyDay();
    IsoWeekDate iso{.jdn = jdn};
    LeapWeekDate leapWeek{.jdn = jdn};
    JdnToIsoWeekDate(iso);
    JdnToWeekForm(leapWeek);
    RC_ASSERT(iso.day % 7 == euro_day_of_week(jdn));
    RC_ASSERT(leapWeek.weekday == iso.day);
    RC_ASSERT(IsWeekday(jdn) == (iso.day <= 5));
}

RC_GTEST_PROP(CalendarProperties, DaysElapsedIsTheDifferenceOfDayNumbersOrOverflow, ()) {
    DateRecord first{.calendar = *AnyCalendar(), .jdn = *AnyDay()};
    DateRecord second{.calendar = *AnyCalendar(), .jdn = *AnyDay()};
    jdn_to_euro_date(first);
    jdn_to_euro_date(second);
    const std::int64_t difference = std::int64_t{second.jdn} - first.jdn;
    std::int32_t status = 0;
    if (difference < kSmallest || difference > kLargest) {
        RC_ASSERT_THROWS_AS(days_elapsed(second, first, status), ArithmeticOverflow);
        RC_ASSERT(status == 2);
    } else {
        RC_ASSERT(days_elapsed(second, first, status) == difference);
        RC_ASSERT(status == 0);
    }
}

RC_GTEST_PROP(CalendarProperties, MonthsTakenAwayUndoMonthsAdded, ()) {
    const bool leapWeekForm = *rc::gen::arbitrary<bool>();
    const DateRecord source{.year = *rc::gen::inRange(-2'000'000, 2'000'000),
                            .month = *rc::gen::inRange(1, 13),
                            .day = *rc::gen::inRange(1, 29),  // in every month
                            .calendar = *AnyCalendar()};
    const std::int32_t months = *rc::gen::inRange(-40'000'000, 40'000'000);
    DateRecord there;
    DateRecord back;
    AddMonths(source, months, there, leapWeekForm);
    AddMonths(there, -months, back, leapWeekForm);
    RC_ASSERT(back.year == source.year);
    RC_ASSERT(back.month == source.month);
    RC_ASSERT(back.day == source.day);
    RC_ASSERT((there.year - source.year) * 12 + there.month - source.month == months);
}

RC_GTEST_PROP(CalendarProperties, AnyFieldsGiveADayNumberOrOverflow, ()) {
    const auto anyField = rc::gen::oneOf(rc::gen::arbitrary<std::int32_t>(), AnyDay());
    DateRecord record{
        .year = *anyField, .month = *anyField, .day = *anyField, .calendar = *AnyCalendar(), .jdn = 42};
    const DateRecord before = record;
    try {
        const std::int32_t jdn = euro_date_to_jdn(record);
        RC_ASSERT(record.jdn == jdn);
    } catch (const ArithmeticOverflow&) {
        RC_ASSERT(record == before);
    }
}

}  // namespace calvoro
