#include "calendar/EuroDate.h"

#include "calendar/AnnusNovus.h"

namespace calvoro {

std::int32_t days_elapsed(const DateRecord& later, const DateRecord& earlier, std::int32_t& status) {
    if (!HasDayNumbers(later.calendar) || !HasDayNumbers(earlier.calendar)) {
        status = kCannotBeConverted;
        return 0;
    }
    try {
        DateRecord last = later;
        DateRecord first = earlier;
        return (CheckedInt(euro_date_to_jdn(last)) - euro_date_to_jdn(first)).Value();
    } catch (const ArithmeticOverflow&) {
        status = kElapsedOverflow;
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
