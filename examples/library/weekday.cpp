// The weekday of a day number, with nothing but the calendars.

#include <calvoro/calendar/Weekday.h>

#include <cstdlib>
#include <iostream>

int main(int count, char** words) {
    const std::int32_t day = count > 1 ? static_cast<std::int32_t>(std::atol(words[1])) : 0;
    std::cout << calvoro::euro_day_of_week(day) << '\n';  // 0 is Sunday
}
