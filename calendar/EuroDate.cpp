#include "calendar/EuroDate.h"

#include "calendar/AnnusNovus.h"
#include "calendar/CheckedInt.h"
#include "calendar/EuroFormula.h"

namespace calvoro {

namespace {

constexpr std::int32_t kCannotBeConverted = 1;
constexpr std::int32_t kOverflow = 2;

bool HasConversion(CalendarCode code) {
    switch (code) {
        case CalendarCode::A:
        case CalendarCode::V:
        case CalendarCode::I:
        case CalendarCode::R: return false;
        case CalendarCode::Unset:
        case CalendarCode::G:
        case CalendarCode::J: return true;
    }
    return true;  // a code without a letter of ours counts as Common Era
}

std::int64_t DayNumberOf(const DateRecord& record) {
    return record.calendar == CalendarCode::J ? JulianDayNumber(record.year, record.month, record.day)
                                              : CommonEraDayNumber(record.year, record.month, record.day);
}

}  // namespace

std::int32_t euro_date_to_jdn(DateRecord& record) {
    record.jdn = NarrowToInt32(DayNumberOf(record));
    return record.jdn;
}

void jdn_to_euro_date(DateRecord& record) {
    const YearMonthDay date =
        record.calendar == CalendarCode::J ? JulianDate(record.jdn) : CommonEraDate(record.jdn);
    record.year = date.year;
    record.month = date.month;
    record.day = date.day;
}

std::int32_t days_elapsed(const DateRecord& later, const DateRecord& earlier, std::int32_t& status) {
    if (!HasConversion(later.calendar) || !HasConversion(earlier.calendar)) {
        status = kCannotBeConverted;
        return 0;
    }
    try {
        const CheckedInt laterDay = NarrowToInt32(DayNumberOf(later));
        const CheckedInt earlierDay = NarrowToInt32(DayNumberOf(earlier));
        return (laterDay - earlierDay).Value();
    } catch (const ArithmeticOverflow&) {
        status = kOverflow;
        throw;
    }
}

void DayNumberToDate(DateRecord& record) {
    if (record.calendar == CalendarCode::A) {
        jdn_to_annus_novus_date(record);
    } else {
        jdn_to_euro_date(record);
    }
}

}  // namespace calvoro
