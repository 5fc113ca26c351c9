#pragma once

// A month drawn without day numbers: the weekday of its first day is counted from 1 January 2000 year by
// year and month by month, and the number of week lines follows from the days alone. Shares no code with
// the program.

#include <array>
#include <string>

namespace calvoro::naive {

struct Month {
    int year;
    int month;
    bool julian;
    bool mondayFirst;
};

inline int LengthOf(int year, int month, bool julian) {
    constexpr std::array<int, 12> kLengths{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = year % 4 == 0 && (julian || year % 100 != 0 || year % 400 == 0);
    return kLengths[static_cast<std::size_t>(month - 1)] + (month == 2 && leap ? 1 : 0);
}

/// 0 Sunday to 6 Saturday.
inline int WeekdayOfFirst(int year, int month, bool julian) {
    int weekday =
        julian ? 5 : 6;  // 1 January 2000: a Saturday in the Common Era, a Friday in the Julian Calendar
    const auto yearLength = [julian](int ofYear) { return LengthOf(ofYear, 2, julian) == 29 ? 366 : 365; };
    for (int passed = 2000; passed < year; ++passed) weekday = (weekday + yearLength(passed)) % 7;
    for (int undone = 1999; undone >= year; --undone) weekday = (weekday + 371 - yearLength(undone)) % 7;
    for (int passed = 1; passed < month; ++passed) weekday = (weekday + LengthOf(year, passed, julian)) % 7;
    return weekday;
}

inline int DaysBeforeFirst(const Month& month) {
    return (WeekdayOfFirst(month.year, month.month, month.julian) + (month.mondayFirst ? 6 : 7)) % 7;
}

/// Week lines that the month's days touch, and one more when the month ends with a line before day 31.
inline int WeekRows(const Month& month) {
    const int cells = DaysBeforeFirst(month) + LengthOf(month.year, month.month, month.julian);
    const bool oneMore = cells % 7 == 0 && LengthOf(month.year, month.month, month.julian) < 31;
    return (cells + 6) / 7 + (oneMore ? 1 : 0);
}

inline std::string Draw(const Month& month) {
    const int before = DaysBeforeFirst(month);
    const int previousLength = LengthOf(month.month == 1 ? month.year - 1 : month.year,
                                        month.month == 1 ? 12 : month.month - 1, month.julian);
    const int length = LengthOf(month.year, month.month, month.julian);

    std::string text =
        month.mondayFirst ? " Mon  Tue  Wed  Thu  Fri  Sat  Sun " : " Sun  Mon  Tue  Wed  Thu  Fri  Sat ";
    for (int cell = 0; cell < 7 * WeekRows(month); ++cell) {
        if (cell % 7 == 0) text += "\r\n ";
        int day = cell - before + 1;
        if (day < 1) {
            day += previousLength;
        } else if (day > length) {
            day -= length;
        }
        const std::string number = std::to_string(day);
        text += std::string(3 - number.size(), ' ') + number + "  ";
    }
    return text;
}

}  // namespace calvoro::naive
