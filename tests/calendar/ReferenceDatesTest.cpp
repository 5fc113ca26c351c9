#include "tests/support/ReferenceDates.h"

#include <gtest/gtest.h>

#include "calendar/EuroDate.h"
#include "calendar/IsoWeekDate.h"
#include "calendar/OrdinalDate.h"
#include "calendar/YearsAndMonths.h"
#include "tests/calendar/Records.h"

namespace calvoro::testing {

namespace {

/// Whether a published date lies so far off that its day number does not fit 32 bits.
bool IsOutOfRange(const ReferenceDate& row) {
    return row.commonEra && (row.commonEra->year > 6'000'000 || row.commonEra->year < -6'000'000);
}

/// A date out of range is refused in both calendars, in which it is the same day all the same.
void ExpectRefusal(const ReferenceDate::YearAndTwo& commonEra, const ReferenceDate::YearAndTwo& julian) {
    for (const CalendarCode calendar : {CalendarCode::G, CalendarCode::J}) {
        const auto& date = calendar == CalendarCode::J ? julian : commonEra;
        DateRecord record{.year = date.year, .month = date.second, .day = date.third, .calendar = calendar};
        EXPECT_THROW(euro_date_to_jdn(record), ArithmeticOverflow);
    }
    EXPECT_EQ(formula::CommonEraDayNumber(commonEra.year, commonEra.second, commonEra.third),
              formula::JulianDayNumber(julian.year, julian.second, julian.third));
}

/// The day number of a row: the published one, or the one of its first date.
std::int32_t DayOf(const ReferenceDate& row) {
    if (row.jdn) return *row.jdn;
    if (row.ordinal) return OrdinalToJdn(row.ordinal->year, row.ordinal->day);
    DateRecord record{.year = row.commonEra.value().year,
                      .month = row.commonEra.value().second,
                      .day = row.commonEra.value().third};
    return euro_date_to_jdn(record);
}

void ExpectDate(CalendarCode calendar, const ReferenceDate::YearAndTwo& date, std::int32_t jdn) {
    DateRecord record{.calendar = calendar, .jdn = jdn};
    jdn_to_euro_date(record);
    EXPECT_EQ(record.year, date.year);
    EXPECT_EQ(record.month, date.second);
    EXPECT_EQ(record.day, date.third);
    EXPECT_EQ(euro_date_to_jdn(record), jdn);
}

void ExpectIsoWeek(const ReferenceDate::YearAndTwo& week, std::int32_t jdn) {
    IsoWeekDate date{.jdn = jdn};
    JdnToIsoWeekDate(date);
    EXPECT_EQ(date.year, week.year);
    EXPECT_EQ(date.week, week.second);
    EXPECT_EQ(date.day, week.third);
    IsoWeekDateToJdn(date);
    EXPECT_EQ(date.jdn, jdn);
}

void ExpectOrdinal(const ReferenceDate::YearAndDay& ordinal, std::int32_t jdn) {
    std::int32_t year = 0;
    std::int16_t day = 0;
    JdnToOrdinal(jdn, year, day);
    EXPECT_EQ(year, ordinal.year);
    EXPECT_EQ(day, ordinal.day);
    EXPECT_EQ(OrdinalToJdn(ordinal.year, ordinal.day), jdn);
    DateRecord record{.calendar = CalendarCode::G, .jdn = jdn};
    jdn_to_euro_date(record);
    EXPECT_EQ(DayOfYear(record), ordinal.day);
}

}  // namespace

TEST(ReferenceDates, AreWhatTheCalendarsGive) {
    const auto rows = ReadReferenceDates(CALVORO_SOURCE_DIR "/tests/calendar/reference_dates.csv");
    EXPECT_EQ(rows.size(), 215U);
    int compared = 0;
    int refused = 0;
    for (const ReferenceDate& row : rows) {
        SCOPED_TRACE(row.source);
        if (IsOutOfRange(row)) {
            ExpectRefusal(row.commonEra.value(), row.julian.value());
            ++refused;
            continue;
        }
        const std::int32_t jdn = DayOf(row);
        const int dates =
            (row.commonEra ? 1 : 0) + (row.julian ? 1 : 0) + (row.iso ? 1 : 0) + (row.ordinal ? 1 : 0);
        EXPECT_GE(dates + (row.jdn ? 1 : 0), 2) << "a row of one date alone compares nothing";
        if (row.commonEra) ExpectDate(CalendarCode::G, *row.commonEra, jdn);
        if (row.julian) ExpectDate(CalendarCode::J, *row.julian, jdn);
        if (row.iso) ExpectIsoWeek(*row.iso, jdn);
        if (row.ordinal) ExpectOrdinal(*row.ordinal, jdn);
        compared += dates;
    }
    EXPECT_EQ(compared, 383);
    EXPECT_EQ(refused, 2);
}

}  // namespace calvoro::testing
