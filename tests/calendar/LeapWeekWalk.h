#pragma once

// The leap-week calendar as it is defined: year by year from the epoch, after whole cycles have been set
// aside one by one. Slow, and without a line in common with the closed form, which it proves.

#include <cstdint>

namespace calvoro::testing {

inline std::int32_t DaysInLeapWeekYear(std::int32_t year) {
    std::int32_t remainder = (71 * year + 203) % 400;
    if (remainder < 0) remainder += 400;
    return remainder < 71 ? 371 : 364;
}

struct WalkedWeekForm {
    std::int32_t year, week, weekday;
};

inline WalkedWeekForm WalkToWeekForm(std::int32_t jdn) {
    std::int32_t cycles = 0;
    while (jdn < 1'721'419) {
        jdn += 146'097;
        --cycles;
    }
    while (jdn > 1'867'515) {
        jdn -= 146'097;
        ++cycles;
    }
    std::int32_t offset = jdn - 1'721'419;
    std::int32_t year = 1;
    while (offset >= DaysInLeapWeekYear(year)) {
        offset -= DaysInLeapWeekYear(year);
        ++year;
    }
    return {year + 400 * cycles, offset / 7 + 1, offset % 7 + 1};
}

inline std::int32_t WalkToDayNumber(const WalkedWeekForm& date) {
    std::int32_t year = date.year;
    std::int32_t cycles = 0;
    while (year < 1) {
        year += 400;
        --cycles;
    }
    while (year > 400) {
        year -= 400;
        ++cycles;
    }
    std::int32_t days = 0;
    for (std::int32_t before = 1; before < year; ++before) days += DaysInLeapWeekYear(before);
    return 1'721'419 + days + (date.week - 1) * 7 + (date.weekday - 1) + cycles * 146'097;
}

}  // namespace calvoro::testing
