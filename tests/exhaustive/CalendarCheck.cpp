#include "tests/exhaustive/CalendarCheck.h"

#include <atomic>

#include "calendar/EuroDate.h"
#include "calendar/IsoWeekDate.h"
#include "calendar/LeapWeekDate.h"
#include "calendar/OrdinalDate.h"
#include "calendar/Weekday.h"
#include "tests/support/NextDay.h"

namespace calvoro::exhaustive {

namespace {

using testing::CivilStepper;
using testing::IsoStepper;
using testing::LeapRule;
using testing::LeapWeekStepper;
using testing::OrdinalStepper;

/// One day in every calendar, as the next-day rules have it.
struct Steppers {
    CivilStepper commonEra, julian;
    OrdinalStepper ordinal;
    IsoStepper iso;
    LeapWeekStepper leapWeek;
    std::int32_t weekday = 0;

    void Next() {
        commonEra.Next();
        julian.Next();
        ordinal.Next();
        iso.Next();
        leapWeek.Next();
        weekday = weekday == 6 ? 0 : weekday + 1;
    }
    friend bool operator==(const Steppers&, const Steppers&) = default;
};

/// Day 0, known from its definition.
constexpr Steppers kDayZero{
    .commonEra = {LeapRule::CommonEra, -4713, 11, 24},
    .julian = {LeapRule::Julian, -4712, 1, 1},
    .ordinal = {-4713, 328},
    .iso = {.year = -4713, .week = 48, .day = 1, .newYearsDay = 3},
    .leapWeek = {.year = -4713, .share = 380, .week = 49, .weekday = 1, .month = 12, .day = 1},
    .weekday = 1};

CivilStepper CivilStart(std::int32_t jdn, LeapRule rule) {
    DateRecord record{.calendar = rule == LeapRule::Julian ? CalendarCode::J : CalendarCode::G, .jdn = jdn};
    jdn_to_euro_date(record);
    return {rule, record.year, record.month, record.day};
}

IsoStepper IsoStart(std::int32_t jdn) {
    IsoWeekDate date{.jdn = jdn};
    JdnToIsoWeekDate(date);
    const std::int32_t newYearsDay = euro_day_of_week(OrdinalToJdn(date.year, 1));
    return {date.year, date.week, date.day, newYearsDay == 0 ? 7 : newYearsDay};
}

LeapWeekStepper LeapWeekStart(std::int32_t jdn) {
    LeapWeekDate date{.jdn = jdn};
    JdnToLpm(date);
    const std::int64_t share = (71 * std::int64_t{date.year} + 203) % 400;
    return {.year = date.year,
            .share = static_cast<std::int32_t>(share < 0 ? share + 400 : share),
            .week = date.week,
            .weekday = date.weekday,
            .month = date.month,
            .day = date.day};
}

/// A day as the library has it. Pieces are chained: the date that the steppers reach after a piece must be
/// the one that the library gives for the start of the next piece.
Steppers StartFromLibrary(std::int32_t jdn) {
    std::int32_t year = 0;
    std::int16_t dayOfYear = 0;
    JdnToOrdinal(jdn, year, dayOfYear);
    return {.commonEra = CivilStart(jdn, LeapRule::CommonEra),
            .julian = CivilStart(jdn, LeapRule::Julian),
            .ordinal = {year, dayOfYear},
            .iso = IsoStart(jdn),
            .leapWeek = LeapWeekStart(jdn),
            .weekday = euro_day_of_week(jdn)};
}

bool CivilIs(std::int32_t jdn, CalendarCode calendar, const CivilStepper& expected) {
    DateRecord record{.calendar = calendar, .jdn = jdn};
    jdn_to_euro_date(record);
    if (record.year != expected.year || record.month != expected.month || record.day != expected.day) {
        return false;
    }
    record.jdn = 0;
    return euro_date_to_jdn(record) == jdn && record.jdn == jdn;
}

bool OrdinalIs(std::int32_t jdn, const OrdinalStepper& expected) {
    std::int32_t year = 0;
    std::int16_t dayOfYear = 0;
    JdnToOrdinal(jdn, year, dayOfYear);
    return year == expected.year && dayOfYear == expected.day && OrdinalToJdn(year, dayOfYear) == jdn;
}

bool IsoIs(std::int32_t jdn, const IsoStepper& expected) {
    IsoWeekDate date{.jdn = jdn};
    JdnToIsoWeekDate(date);
    if (date.year != expected.year || date.week != expected.week || date.day != expected.day) return false;
    date.jdn = 0;
    IsoWeekDateToJdn(date);
    return date.jdn == jdn;
}

bool LeapWeekIs(std::int32_t jdn, const LeapWeekStepper& expected) {
    LeapWeekDate date{.jdn = jdn};
    JdnToLpm(date);
    if (date.year != expected.year || date.week != expected.week || date.weekday != expected.weekday ||
        date.month != expected.month || date.day != expected.day) {
        return false;
    }
    LeapWeekDate weekForm{.year = date.year, .week = date.week, .weekday = date.weekday};
    LeapWeekDate monthForm{.year = date.year, .month = date.month, .day = date.day};
    return WeekFormToJdn(weekForm) == jdn && LpmToJdn(monthForm) == jdn;
}

void CheckPiece(Days piece) {
    Steppers expected = StartFromLibrary(static_cast<std::int32_t>(piece.first));
    for (std::int64_t day = piece.first; day <= piece.last; ++day) {
        const auto jdn = static_cast<std::int32_t>(day);
        if (!CivilIs(jdn, CalendarCode::G, expected.commonEra)) ReportFault("CE", day);
        if (!CivilIs(jdn, CalendarCode::J, expected.julian)) ReportFault("JC", day);
        if (!OrdinalIs(jdn, expected.ordinal)) ReportFault("ORD", day);
        if (!IsoIs(jdn, expected.iso)) ReportFault("ISO", day);
        if (!LeapWeekIs(jdn, expected.leapWeek)) ReportFault("LPW or LPM", day);
        if (euro_day_of_week(jdn) != expected.weekday) ReportFault("weekday", day);
        expected.Next();
    }
    if (expected != StartFromLibrary(static_cast<std::int32_t>(piece.last + 1))) {
        ReportFault("the next piece begins with another date", piece.last + 1);
    }
}

}  // namespace

std::int64_t CheckCalendars(Days days) {
    if (StartFromLibrary(0) != kDayZero) ReportFault("not the date of its definition", 0);
    std::atomic<std::int64_t> checked{0};
    ShareOut(days, [&checked](Days piece) {
        CheckPiece(piece);
        checked += piece.Count();
    });
    return checked;
}

}  // namespace calvoro::exhaustive
