#pragma once

// A click on a calendar option of a date box: the text that stands in the box is rewritten in the new
// calendar, or the old calendar is chosen again.

#include <cstdint>

#include "mainwindow/InputBoxes.h"
#include "mainwindow/TodayLine.h"
#include "text/NumberedTexts.h"

namespace calvoro {

class CalendarChange {
public:
    CalendarChange(const MainControls& controls, const WindowOptions& options, const MainState& state,
                   const Platform& platform, InputBoxes& boxes, TodayLine& todayLine);

    /// The calendars in which the texts of the two boxes stand from now on.
    void Remember(CalendarNumber first, CalendarNumber second);

    void ChangeFirstDateCalendar(CalendarNumber newCalendar);
    void ChangeSecondDateCalendar(CalendarNumber newCalendar);

private:
    // What differs between the two date boxes.
    struct Side {
        InputBox box{};
        NumberedText message{};                        // the text for a date that does not read
        CalendarNumber calendar = CalendarNumber::CE;  // in which the box's text stands
    };

    enum class Outcome { Converted, NotRead, Abandoned };

    void Change(Side& side, CalendarNumber newCalendar);
    Outcome Convert(const Side& side, CalendarNumber to);
    void RestoreCalendar(const Side& side, Outcome outcome);

    const MainControls& controls_;
    const WindowOptions& options_;
    const MainState& state_;
    const Platform& platform_;
    InputBoxes& boxes_;
    TodayLine& todayLine_;
    Side first_ = {InputBox::FirstDate, kFirstDateNotValidText};
    Side second_ = {InputBox::SecondDate, kSecondDateNotValidText};
};

}  // namespace calvoro
