#include "quicktext/DateFields.h"

#include "calendar/DayNumber.h"
#include "calendar/EuroFormula.h"
#include "calendar/IsoWeekDate.h"
#include "calendar/LeapWeekDate.h"
#include "calendar/OrdinalDate.h"
#include "calendar/YearsAndMonths.h"

namespace calvoro {
namespace {

constexpr bool IsReadYear(std::int32_t year) {
    return year >= -kMaxYearMagnitude && year <= kMaxYearMagnitude;
}

std::int32_t MonthLength(std::int32_t year, std::int32_t month, bool julian) {
    if (month == 2) return IsLeapYear(year, julian ? "J" : "G") ? 29 : 28;
    return 30 + ((month + (month >> 3)) & 1);
}

StrictResult DayOfEuroDate(const DateFields& fields, bool julian) {
    if (fields.second < 1 || fields.second > 12) return Refused(ReadFault::NoSuchMonth, fields.secondPlace);
    if (fields.third < 1 || fields.third > 31) return Refused(ReadFault::NoSuchDay, fields.thirdPlace);
    if (!IsReadYear(fields.year)) return Refused(ReadFault::TooLarge, fields.yearPlace);
    if (fields.third > MonthLength(fields.year, fields.second, julian)) {
        return Refused(ReadFault::NoSuchDay, fields.thirdPlace);
    }
    return ValidDay(julian ? formula::JulianDayNumber(fields.year, fields.second, fields.third)
                           : formula::CommonEraDayNumber(fields.year, fields.second, fields.third));
}

StrictResult DayOfIsoDate(const DateFields& fields) {
    if (fields.second < 1 || fields.second > 53) return Refused(ReadFault::NoSuchWeek, fields.secondPlace);
    if (fields.third < 1 || fields.third > 7) return Refused(ReadFault::NoSuchWeekday, fields.thirdPlace);
    if (fields.year >= kMaxYearMagnitude || fields.year <= -kMaxYearMagnitude) {
        return Refused(ReadFault::TooLarge, fields.yearPlace);
    }
    if (fields.second == 53 && !HasWeek53(fields.year)) {
        return Refused(ReadFault::NoSuchWeek, fields.secondPlace);
    }
    IsoWeekDate date{.year = fields.year, .week = fields.second, .day = fields.third};
    IsoWeekDateToJdn(date);
    return ValidDay(date.jdn);
}

StrictResult DayOfOrdinalDate(const DateFields& fields) {
    if (fields.third < 1 || fields.third > 366) return Refused(ReadFault::NoSuchDay, fields.thirdPlace);
    if (fields.year < 1) return Refused(ReadFault::TooLarge, fields.yearPlace);
    if (fields.third == 366 && !IsLeapYear(fields.year, "G")) {
        return Refused(ReadFault::NoSuchDay, fields.thirdPlace);
    }
    return ValidDay(OrdinalToJdn(fields.year, fields.third));
}

// Deliberate: day number 0 cannot be told from a failure where leap-week dates are read.
StrictResult DayOfLeapWeekDate(const LeapWeekDate& date, std::size_t place) {
    return date.jdn == 0 ? Refused(ReadFault::DayZero, place) : ValidDay(date.jdn);
}

StrictResult DayOfLpw(const DateFields& fields) {
    if (!IsReadYear(fields.year)) return Refused(ReadFault::TooLarge, fields.yearPlace);
    // Deliberate: the number of the week is not checked, and weekday 0 passes.
    LeapWeekDate date{.year = fields.year,
                      .week = static_cast<std::int16_t>(fields.second),
                      .weekday = static_cast<std::int16_t>(fields.third)};
    WeekFormToJdn(date);
    if (date.status != kLeapWeekOk) return Refused(ReadFault::NoSuchWeekday, fields.thirdPlace);
    return DayOfLeapWeekDate(date, fields.yearPlace);
}

StrictResult DayOfLpm(const DateFields& fields) {
    if (!IsReadYear(fields.year)) return Refused(ReadFault::TooLarge, fields.yearPlace);
    LeapWeekDate date{.year = fields.year,
                      .month = static_cast<std::int16_t>(fields.second),
                      .day = static_cast<std::int16_t>(fields.third)};
    LpmToJdn(date);
    if (date.status == kLeapWeekBadMonth) return Refused(ReadFault::NoSuchMonth, fields.secondPlace);
    if (date.status != kLeapWeekOk) return Refused(ReadFault::NoSuchDay, fields.thirdPlace);
    return DayOfLeapWeekDate(date, fields.yearPlace);
}

StrictResult DayOfNumber(const DateFields& fields) {
    if (!IsWithinDayLimits(fields.third)) return Refused(ReadFault::TooLarge, fields.thirdPlace);
    return ValidDay(fields.third);
}

}  // namespace

StrictResult DayOfFields(CalendarNumber notation, const DateFields& fields) {
    switch (notation) {
        case CalendarNumber::JC: return DayOfEuroDate(fields, true);
        case CalendarNumber::ISO: return DayOfIsoDate(fields);
        case CalendarNumber::ORD: return DayOfOrdinalDate(fields);
        case CalendarNumber::LPM: return DayOfLpm(fields);
        case CalendarNumber::LPW: return DayOfLpw(fields);
        case CalendarNumber::JDN: return DayOfNumber(fields);
        case CalendarNumber::CE:
        case CalendarNumber::AN:
        case CalendarNumber::VLW:
        case CalendarNumber::ARC: return DayOfEuroDate(fields, false);
    }
    return DayOfEuroDate(fields, false);
}

}  // namespace calvoro
