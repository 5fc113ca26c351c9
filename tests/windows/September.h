#pragma once

#include "tests/windows/MonthWindow.h"

namespace calvoro {

// clang-format off
inline const std::string kSeptember2024 = Lines({
    " Mon  Tue  Wed  Thu  Fri  Sat  Sun ",
    "  26   27   28   29   30   31    1  ",
    "   2    3    4    5    6    7    8  ",
    "   9   10   11   12   13   14   15  ",
    "  16   17   18   19   20   21   22  ",
    "  23   24   25   26   27   28   29  ",
    "  30    1    2    3    4    5    6  "});
// clang-format on

/// September 2024, Monday first.
struct September : MonthWindow {
    September() {
        window.SetWeekStart(WeekStart::Monday);
        ShowMonth("2024", 9);
    }

    void ShowIso() { ClickOn(Button("cmdShowHideISO")); }
};

}  // namespace calvoro
