#include "calendar/EuroDate.h"

#include "calendar/AnnusNovus.h"

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

}  // namespace

std::int32_t days_elapsed(const DateRecord& later, const DateRecord& earlier, std::int32_t& status) {
    if (!HasConversion(later.calendar) || !HasConversion(earlier.calendar)) {
        status = kCannotBeConverted;
        return 0;
    }
    try {
        DateRecord last = later;
        DateRecord first = earlier;
        return (CheckedInt(euro_date_to_jdn(last)) - euro_date_to_jdn(first)).Value();
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
