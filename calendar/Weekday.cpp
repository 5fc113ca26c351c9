#include "calendar/Weekday.h"

namespace calvoro {

std::int32_t euro_day_of_week(std::int32_t jdn) {
    // The least multiple of 7 that keeps every 32-bit day number, plus 1, from being negative.
    constexpr std::int64_t kWholeWeeks = 2'147'483'653;
    static_assert(kWholeWeeks % 7 == 0);
    return static_cast<std::int32_t>(static_cast<std::uint64_t>(jdn + kWholeWeeks + 1) % 7);
}

bool IsWeekday(std::int32_t jdn) {
    const std::int32_t weekday = euro_day_of_week(jdn);
    return weekday >= 1 && weekday <= 5;
}

}  // namespace calvoro
