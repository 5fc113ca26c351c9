#pragma once

// The two labels that tell today's date and the date a week from today, each in a calendar that a press
// on it changes.

#include <array>

#include "mainwindow/MainControls.h"
#include "mainwindow/MainState.h"
#include "mainwindow/WindowOptions.h"
#include "platform/Clock.h"

namespace calvoro {

class TodayLine {
public:
    TodayLine(const MainControls& controls, const WindowOptions& options, const MainState& state,
              const Clock& clock);

    /// The calendar that is carried to the next run, which is that of today's label.
    CalendarNumber TodayCalendar() const { return calendars_[0]; }

    /// Shows both labels in a calendar from the next refresh on.
    void SetTodayCalendar(CalendarNumber calendar) { calendars_.fill(calendar); }

    /// Composes both labels. Nothing before the window is ready.
    void Refresh();

private:
    void Cycle(CalendarNumber& calendar, CalendarNumber (*step)(CalendarNumber));

    const MainControls& controls_;
    const WindowOptions& options_;
    const MainState& state_;
    const Clock& clock_;
    std::array<CalendarNumber, 2> calendars_ = {CalendarNumber::CE, CalendarNumber::CE};  // of each label
};

}  // namespace calvoro
