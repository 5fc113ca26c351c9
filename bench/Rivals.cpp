#include "bench/Rivals.h"

namespace calvoro::bench {

void WalkToWeekForm(LeapWeekDate& date) {
    constexpr std::int32_t kEpoch = 1'721'419;
    constexpr std::int32_t kDaysInCycle = 146'097;
    const std::int64_t sinceEpoch = std::int64_t{date.jdn} - kEpoch;
    std::int64_t cycles = sinceEpoch / kDaysInCycle;
    if (sinceEpoch % kDaysInCycle < 0) cycles -= 1;
    auto dayOfYear = static_cast<std::int32_t>(sinceEpoch - cycles * kDaysInCycle);

    std::int32_t year = 1;
    for (;;) {
        const std::int32_t length = IsLeapWeekYear(year) ? 371 : 364;
        if (dayOfYear < length) break;
        dayOfYear -= length;
        ++year;
    }
    date.year = year + 400 * static_cast<std::int32_t>(cycles);
    date.week = static_cast<std::int16_t>(dayOfYear / 7 + 1);
    date.weekday = static_cast<std::int16_t>(dayOfYear % 7 + 1);
}

}  // namespace calvoro::bench
