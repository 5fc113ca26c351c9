#include "mainwindow/CalendarChange.h"

#include "datetext/AnyNotation.h"
#include "datetext/Blanks.h"
#include "mainwindow/ControlTables.h"

namespace calvoro {
CalendarChange::CalendarChange(const MainControls& controls, const WindowOptions& options,
                               const MainState& state, const Platform& platform, InputBoxes& boxes,
                               TodayLine& todayLine)
    : controls_(controls),
      options_(options),
      state_(state),
      platform_(platform),
      boxes_(boxes),
      todayLine_(todayLine) {}

void CalendarChange::Remember(CalendarNumber first, CalendarNumber second) {
    first_.calendar = first;
    second_.calendar = second;
}

void CalendarChange::ChangeFirstDateCalendar(CalendarNumber newCalendar) {
    Change(first_, newCalendar);
}

void CalendarChange::ChangeSecondDateCalendar(CalendarNumber newCalendar) {
    Change(second_, newCalendar);
}

void CalendarChange::Change(Side& side, CalendarNumber newCalendar) {
    boxes_.SetText(side.box, TrimBlanks(boxes_.Text(side.box)));
    if (boxes_.Text(side.box).empty() || !state_.FormReady) {
        side.calendar = newCalendar;
        boxes_.SetTheFocus();
        return;
    }
    todayLine_.Refresh();
    const Outcome outcome = Convert(side, newCalendar);
    if (outcome == Outcome::Converted) {
        side.calendar = newCalendar;
        boxes_.Select(InputBox::Difference);
    } else {
        RestoreCalendar(side, outcome);
        boxes_.Select(side.box);
    }
}

CalendarChange::Outcome CalendarChange::Convert(const Side& side, CalendarNumber to) {
    const TextOptions textOptions = options_.ReadTextOptions();
    DateRecord record;
    if (ReadDate(side.calendar, boxes_.Text(side.box), textOptions, record) != ParseStatus::Valid) {
        return Outcome::NotRead;
    }
    // Deliberate: a day that the new calendar cannot write goes back without a word.
    if (!CanWriteDate(to, record.jdn)) return Outcome::Abandoned;
    boxes_.SetText(side.box, WriteDate(to, record.jdn, textOptions));
    return Outcome::Converted;
}

void CalendarChange::RestoreCalendar(const Side& side, Outcome outcome) {
    controls_.Calendars(side.box)->Choose(RowOf(kCalendarOptions, side.calendar));
    if (outcome == Outcome::Abandoned) return;
    platform_.boxes.Show(state_.texts.GetProgramText(side.message),
                         state_.texts.GetProgramText(kCannotConvertTitleText), MessageIcon::NoIcon);
}

}  // namespace calvoro
