#pragma once

// A click on a calendar option of a date box: the text that stands in the box is rewritten in the new
// calendar, or the old calendar is chosen again.

#include <cstdint>

#include "mainwindow/InputBoxes.h"
#include "mainwindow/TodayLine.h"

namespace calvoro {

class CalendarChange {
public:
    CalendarChange(const MainControls& controls, const WindowOptions& options, MainState& state,
                   const Platform& platform, InputBoxes& boxes, TodayLine& todayLine);

    void ChangeFirstDateCalendar(CalendarNumber newCalendar);
    void ChangeSecondDateCalendar(CalendarNumber newCalendar);

private:
    // What differs between the two date boxes.
    struct Side {
        InputBox box;
        CalendarNumber MainState::*boxCalendar;
        std::int16_t message;  // number of the text for a date that does not read
    };
    static constexpr Side kFirst = {InputBox::FirstDate, &MainState::firstBoxCalendar, 156};
    static constexpr Side kSecond = {InputBox::SecondDate, &MainState::secondBoxCalendar, 157};

    enum class Outcome { Converted, NotRead, Abandoned };

    void Change(const Side& side, CalendarNumber newCalendar);
    Outcome Convert(const Side& side, CalendarNumber to);
    void RestoreCalendar(const Side& side, Outcome outcome);

    const MainControls& controls_;
    const WindowOptions& options_;
    MainState& state_;
    const Platform& platform_;
    InputBoxes& boxes_;
    TodayLine& todayLine_;
};

}  // namespace calvoro
