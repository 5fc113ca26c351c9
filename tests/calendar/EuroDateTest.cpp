#include "calendar/EuroDate.h"

#include <gtest/gtest.h>

#include <array>
#include <ostream>
#include <string>

#include "tests/calendar/Records.h"
#include "tests/support/Limits32.h"
#include "tests/support/NextDay.h"
#include "tests/support/RowName.h"

namespace calvoro::testing {

namespace {

struct DateRow {
    const char* name;
    CalendarCode calendar;
    std::int32_t year, month, day, jdn;
};

void PrintTo(const DateRow& row, std::ostream* out) {
    *out << row.name;
}

constexpr DateRow kDates[] = {
    {"DayZeroIsJulianNewYear", CalendarCode::J, -4712, 1, 1, 0},
    {"DayBeforeDayZero", CalendarCode::J, -4713, 12, 31, -1},
    {"FirstFourDigitDay", CalendarCode::G, 1, 1, 1, 1721426},
    {"LastDayOfYearZero", CalendarCode::G, 0, 12, 31, 1721425},
    {"LeapDayOfYearZero", CalendarCode::G, 0, 2, 29, 1721119},
    {"JulianLeapDayOfYearZero", CalendarCode::J, 0, 2, 29, 1721117},
    {"LastFourDigitDay", CalendarCode::G, 9999, 12, 31, 5373484},
    {"UnsetCodeIsCommonEra", CalendarCode::Unset, 2024, 2, 29, 2460370},
    {"JulianCalendarEndsInRome", CalendarCode::J, 1582, 10, 4, 2299160},
    {"CommonEraBeginsInRome", CalendarCode::G, 1582, 10, 15, 2299161},
    {"JulianLeapDayOf1900", CalendarCode::J, 1900, 2, 29, 2415092},
    {"CommonEraDayAfterFebruary1900", CalendarCode::G, 1900, 3, 1, 2415080},
    {"LeapDayOf2000", CalendarCode::G, 2000, 2, 29, 2451604},
    {"NegativeCenturyWithoutLeapDay", CalendarCode::G, -100, 3, 1, 1684595},
    {"NegativeCenturyLastOfFebruary", CalendarCode::G, -100, 2, 28, 1684594},
    {"NegativeCenturyWithLeapDay", CalendarCode::G, -400, 2, 29, 1575022},
    {"JulianNegativeCentury", CalendarCode::J, -100, 2, 29, 1684592},
    {"IdesOfMarch", CalendarCode::J, -43, 3, 15, 1705426},
};

/// The next day, or the one before, in fields that may be no date.
DateRecord Beyond(std::int32_t jdn, CalendarCode calendar, std::int32_t days) {
    DateRecord record{.calendar = calendar, .jdn = jdn};
    jdn_to_euro_date(record);
    record.day += days;
    return record;
}

}  // namespace

class EuroDate : public ::testing::TestWithParam<DateRow> {};

TEST_P(EuroDate, HasItsDayNumberReturnedAndStored) {
    const DateRow& row = GetParam();
    DateRecord record{
        .year = row.year, .month = row.month, .day = row.day, .calendar = row.calendar, .jdn = 5};
    const DateRecord expected{
        .year = row.year, .month = row.month, .day = row.day, .calendar = row.calendar, .jdn = row.jdn};
    EXPECT_EQ(euro_date_to_jdn(record), row.jdn);
    EXPECT_EQ(record, expected);
}

TEST_P(EuroDate, IsFilledFromItsDayNumber) {
    const DateRow& row = GetParam();
    DateRecord record{.year = 8, .month = 8, .day = 8, .calendar = row.calendar, .jdn = row.jdn};
    jdn_to_euro_date(record);
    EXPECT_EQ(record.year, row.year);
    EXPECT_EQ(record.month, row.month);
    EXPECT_EQ(record.day, row.day);
    EXPECT_EQ(record.calendar, row.calendar);
    EXPECT_EQ(record.jdn, row.jdn);
    EXPECT_EQ(record.reserved, 0);
}

TEST_P(EuroDate, IsFilledTheSameWayByDayNumberToDate) {
    DateRecord record{.calendar = GetParam().calendar, .jdn = GetParam().jdn};
    DateRecord expected = record;
    DayNumberToDate(record);
    jdn_to_euro_date(expected);
    EXPECT_EQ(record, expected);
}

INSTANTIATE_TEST_SUITE_P(Of, EuroDate, ::testing::ValuesIn(kDates), RowName<DateRow>);

TEST(DayNumberToDate, LeavesAnAnnusNovusRecordAlone) {
    const DateRecord before{.year = 3, .month = 2, .day = 1, .calendar = CalendarCode::A, .jdn = 2460370};
    DateRecord record = before;
    DayNumberToDate(record);
    EXPECT_EQ(record, before);
}

TEST(EuroDateDeliberate, CodeZeroIsCommonEra) {
    DateRecord unset{.year = 1900, .month = 3, .day = 1};
    DateRecord commonEra{.year = 1900, .month = 3, .day = 1, .calendar = CalendarCode::G};
    DateRecord julian{.year = 1900, .month = 3, .day = 1, .calendar = CalendarCode::J};
    EXPECT_EQ(euro_date_to_jdn(unset), euro_date_to_jdn(commonEra));
    EXPECT_EQ(euro_date_to_jdn(julian), unset.jdn + 13);
    EXPECT_EQ(unset.calendar, CalendarCode::Unset);
}

// The last days of the range repeat those of an earlier cycle, which the walks know.
TEST(EuroDateAtTheEndsOf32Bits, RepeatsTheCycleOf400Years) {
    struct Cycle {
        CalendarCode calendar;
        std::int32_t days;
    };
    for (const auto& [calendar, daysInCycle] :
         {Cycle{CalendarCode::G, 146'097}, Cycle{CalendarCode::J, 146'100}}) {
        for (const std::int32_t sign : {1, -1}) {
            const std::int32_t cycles = sign * 14'000;
            for (std::int32_t steps = 0; steps < 800; ++steps) {
                const std::int32_t jdn = (sign > 0 ? kLargest : kSmallest) - sign * steps;
                DateRecord record{.calendar = calendar, .jdn = jdn};
                DateRecord earlier{.calendar = calendar, .jdn = jdn - cycles * daysInCycle};
                jdn_to_euro_date(record);
                jdn_to_euro_date(earlier);
                ASSERT_EQ(record.year, earlier.year + 400 * cycles) << "day " << jdn;
                ASSERT_EQ(record.month, earlier.month) << "day " << jdn;
                ASSERT_EQ(record.day, earlier.day) << "day " << jdn;
                record.jdn = 0;
                ASSERT_EQ(euro_date_to_jdn(record), jdn);
            }
        }
    }
}

TEST(EuroDateAtTheEndsOf32Bits, RefusesTheDayBeyond) {
    for (const CalendarCode calendar : {CalendarCode::G, CalendarCode::J, CalendarCode::Unset}) {
        DateRecord after = Beyond(kLargest, calendar, 1);
        EXPECT_THROW(euro_date_to_jdn(after), ArithmeticOverflow);
        DateRecord before = Beyond(kSmallest, calendar, -1);
        EXPECT_THROW(euro_date_to_jdn(before), ArithmeticOverflow);
    }
}

TEST(EuroDateAtTheEndsOf32Bits, KeepsTheDayNumberWhenItRefuses) {
    DateRecord record{.year = 6'000'000, .month = 1, .day = 1, .jdn = 42};
    EXPECT_THROW(euro_date_to_jdn(record), ArithmeticOverflow);
    EXPECT_EQ(record.jdn, 42);
}

TEST(EuroDateAtTheEndsOf32Bits, TakesYearsToTheLargestThatIsRead) {
    for (const CalendarCode calendar : {CalendarCode::G, CalendarCode::J}) {
        for (const std::int32_t year : {5'800'000, -5'800'000, 5'799'999, -5'799'999}) {
            DateRecord record{.year = year, .month = 12, .day = 31, .calendar = calendar};
            const std::int32_t jdn = euro_date_to_jdn(record);
            DateRecord back{.calendar = calendar, .jdn = jdn};
            jdn_to_euro_date(back);
            EXPECT_EQ(back, record);
        }
    }
}

TEST(EuroDate, SurvivesAnyFields) {
    constexpr std::array<std::int32_t, 11> kFields{kSmallest, kSmallest + 1, -1000,        -1,      0, 1, 12,
                                                   13,        1000,          kLargest - 1, kLargest};
    int refused = 0;
    int converted = 0;
    for (const std::int32_t year : kFields) {
        for (const std::int32_t month : kFields) {
            for (const std::int32_t day : kFields) {
                for (const CalendarCode calendar : {CalendarCode::G, CalendarCode::J}) {
                    DateRecord record{.year = year, .month = month, .day = day, .calendar = calendar};
                    try {
                        EXPECT_EQ(euro_date_to_jdn(record), record.jdn);
                        ++converted;
                    } catch (const ArithmeticOverflow&) {
                        ++refused;
                    }
                }
            }
        }
    }
    EXPECT_EQ(refused + converted, 2 * 11 * 11 * 11);
    EXPECT_GT(refused, 0);
    EXPECT_GT(converted, 0);
}

TEST(EuroDate, CountsDaysBeyondTheMonthOn) {
    DateRecord record{.year = 2024, .month = 2, .day = 30, .calendar = CalendarCode::G};
    EXPECT_EQ(euro_date_to_jdn(record), 2460371);  // 1 March
    record.day = 0;
    EXPECT_EQ(euro_date_to_jdn(record), 2460341);  // 31 January
    record.day = kLargest - 2460341;
    EXPECT_EQ(euro_date_to_jdn(record), kLargest);
    record.year = -5'884'000;
    record.day = 2'000'000'000;
    EXPECT_EQ(euro_date_to_jdn(record), -147'365'780);
}

TEST(DaysElapsed, CountsFromTheEarlierToTheLater) {
    const DateRecord earlier{.year = 2021, .month = 3, .day = 4, .calendar = CalendarCode::G};
    const DateRecord later{.year = 2021, .month = 3, .day = 14, .calendar = CalendarCode::G};
    std::int32_t status = 0;
    EXPECT_EQ(days_elapsed(later, earlier, status), 10);
    EXPECT_EQ(days_elapsed(earlier, later, status), -10);
    EXPECT_EQ(days_elapsed(later, later, status), 0);
    EXPECT_EQ(status, 0);
}

TEST(DaysElapsed, TakesEachDateInItsOwnCalendarAndIgnoresItsDayNumber) {
    const DateRecord julian{.year = 1582, .month = 10, .day = 4, .calendar = CalendarCode::J, .jdn = 7};
    const DateRecord commonEra{.year = 1582, .month = 10, .day = 15, .calendar = CalendarCode::G, .jdn = -7};
    const DateRecord unset{.year = 1582, .month = 10, .day = 15};
    std::int32_t status = 0;
    EXPECT_EQ(days_elapsed(commonEra, julian, status), 1);
    EXPECT_EQ(days_elapsed(unset, julian, status), 1);
    EXPECT_EQ(status, 0);
}

TEST(DaysElapsed, LeavesTheStatusOfItsCallerAloneWhenAllIsWell) {
    const DateRecord date{.year = 2021, .month = 3, .day = 4};
    std::int32_t status = 17;
    EXPECT_EQ(days_elapsed(date, date, status), 0);
    EXPECT_EQ(status, 17);
}

TEST(DaysElapsed, ConvertsWhateverHasADayNumber) {
    const DateRecord early{.year = 1900, .month = 2, .day = 28, .calendar = CalendarCode::G};
    for (const CalendarCode code : {CalendarCode::Unset, CalendarCode::G, CalendarCode::J, CalendarCode::V,
                                    CalendarCode::I, CalendarCode::R}) {
        DateRecord late{.year = 1900, .month = 3, .day = 1, .calendar = code};
        std::int32_t status = 0;
        const std::int32_t days = days_elapsed(late, early, status);
        EXPECT_EQ(status, 0);
        EXPECT_EQ(days, euro_date_to_jdn(late) - 2415079);
        EXPECT_EQ(days, code == CalendarCode::J ? 14 : 1);
    }
}

TEST(DaysElapsed, ReportsRecordsThatCannotBeConverted) {
    const DateRecord good{.year = 2021, .month = 3, .day = 4, .calendar = CalendarCode::G};
    DateRecord bad{.year = 2021, .month = 3, .day = 9, .calendar = CalendarCode::A};
    std::int32_t status = 0;
    EXPECT_EQ(days_elapsed(bad, good, status), 0);
    EXPECT_EQ(status, 1);
    status = 0;
    EXPECT_EQ(days_elapsed(good, bad, status), 0);
    EXPECT_EQ(status, 1);
}

TEST(EuroDateToJdn, LeavesARecordOfTheAnnusNovusCalendarAsItIs) {
    const DateRecord before{.year = 2021, .month = 3, .day = 9, .calendar = CalendarCode::A, .jdn = 17};
    DateRecord record = before;
    EXPECT_EQ(euro_date_to_jdn(record), 17);
    EXPECT_EQ(record, before);
}

TEST(DaysElapsed, ReportsOverflowAndRaisesIt) {
    const DateRecord early{.year = -5'800'000, .month = 1, .day = 1};
    const DateRecord late{.year = 5'800'000, .month = 1, .day = 1};
    const DateRecord never{.year = 5'900'000, .month = 1, .day = 1};
    std::int32_t status = 0;
    EXPECT_THROW(days_elapsed(late, early, status), ArithmeticOverflow);  // both fit, their distance does not
    EXPECT_EQ(status, 2);
    status = 0;
    EXPECT_THROW(days_elapsed(never, late, status), ArithmeticOverflow);
    EXPECT_EQ(status, 2);
    status = 0;
    EXPECT_THROW(days_elapsed(late, never, status), ArithmeticOverflow);
    EXPECT_EQ(status, 2);
}

}  // namespace calvoro::testing
