#pragma once

// The two labels that tell today's date and the date a week from today, each in a calendar that a press
// on it changes.

#include "mainwindow/MainControls.h"
#include "mainwindow/MainState.h"
#include "mainwindow/WindowOptions.h"
#include "platform/Clock.h"

namespace calvoro {

class TodayLine {
public:
    TodayLine(const MainControls& controls, const WindowOptions& options, MainState& state,
              const Clock& clock);

    /// Composes both labels. Nothing before the window is ready.
    void Refresh();

private:
    void Cycle(CalendarNumber& calendar, CalendarNumber (*step)(CalendarNumber));

    const MainControls& controls_;
    const WindowOptions& options_;
    MainState& state_;
    const Clock& clock_;
};

}  // namespace calvoro
