#include "calendar/OrdinalDate.h"

#include "calendar/CheckedInt.h"
#include "calendar/EuroFormula.h"

namespace calvoro {

std::int32_t OrdinalToJdn(std::int32_t year, std::int32_t dayOfYear) {
    using namespace formula;
    const auto yearsBefore = static_cast<std::uint64_t>(year + kShiftYears - 1);
    return NarrowToInt32(DaysBeforeCommonEraYear(yearsBefore) + dayOfYear - 1 - kJanuaryShift);
}

void JdnToOrdinal(std::int32_t jdn, std::int32_t& year, std::int16_t& dayOfYear) {
    using namespace formula;
    const YearAndDay date = SplitCommonEra(static_cast<std::uint64_t>(jdn + kJanuaryShift));
    year = static_cast<std::int32_t>(static_cast<std::int64_t>(date.year) + 1 - kShiftYears);
    dayOfYear = static_cast<std::int16_t>(date.day + 1);
}

}  // namespace calvoro
