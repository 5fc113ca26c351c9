#include "mainwindow/DateSpinners.h"

#include <QScopedValueRollback>

#include "compute/DateStep.h"

namespace calvoro {

DateSpinners::DateSpinners(const MainControls& controls, InputBoxes& boxes, MainComputeWindow& window)
    : controls_(controls), boxes_(boxes), window_(window) {}

void DateSpinners::VScroll(InputBox box, int value) {
    // An arrow that is held down goes on repeating behind the message of its first step.
    if (stepping_) return;
    const QScopedValueRollback<bool> step(stepping_, true);

    const std::string text = boxes_.Text(box);
    if (text.empty()) {
        boxes_.SetTheFocus();
        return;
    }
    if (value == 0) return;
    const ComputeOptions options = window_.ReadComputeOptions();
    const CalendarNumber calendar =
        box == InputBox::FirstDate ? options.firstCalendar : options.secondCalendar;
    const std::string stepped = DateStep(box, text, calendar, value, options, window_);
    if (stepped.empty()) {
        controls_.Spinner(box)->Release();
    } else {
        boxes_.SetText(box, stepped);
    }
    // Deliberate: a difference belongs to the date before the step, also where the step was refused.
    controls_.txbDateDiff->clear();
    SelectDateBox(box);
}

void DateSpinners::SelectDateBox(InputBox box) {
    boxes_.Select(box);
}

}  // namespace calvoro
