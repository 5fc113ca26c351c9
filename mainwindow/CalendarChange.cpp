#include "mainwindow/CalendarChange.h"

#include "datetext/Blanks.h"
#include "mainwindow/BoxDate.h"
#include "mainwindow/ControlTables.h"

namespace calvoro {
namespace {

constexpr std::int16_t kCannotConvertTitle = 150;

}  // namespace

CalendarChange::CalendarChange(const MainControls& controls, const WindowOptions& options, MainState& state,
                               const Platform& platform, InputBoxes& boxes, TodayLine& todayLine)
    : controls_(controls),
      options_(options),
      state_(state),
      platform_(platform),
      boxes_(boxes),
      todayLine_(todayLine) {}

void CalendarChange::ChangeFirstDateCalendar(CalendarNumber newCalendar) {
    Change(kFirst, newCalendar);
}

void CalendarChange::ChangeSecondDateCalendar(CalendarNumber newCalendar) {
    Change(kSecond, newCalendar);
}

void CalendarChange::Change(const Side& side, CalendarNumber newCalendar) {
    boxes_.SetText(side.box, TrimBlanks(boxes_.Text(side.box)));
    if (boxes_.Text(side.box).empty() || !state_.FormReady) {
        state_.*side.boxCalendar = newCalendar;
        boxes_.SetTheFocus();
        return;
    }
    todayLine_.Refresh();
    const Outcome outcome = Convert(side, newCalendar);
    if (outcome == Outcome::Converted) {
        state_.*side.boxCalendar = newCalendar;
        boxes_.Select(InputBox::Difference);
    } else {
        RestoreCalendar(side, outcome);
        boxes_.Select(side.box);
    }
}

CalendarChange::Outcome CalendarChange::Convert(const Side& side, CalendarNumber to) {
    const TextOptions textOptions = options_.ReadTextOptions();
    const auto [status, record] = ReadBoxDate(state_.*side.boxCalendar, boxes_.Text(side.box), textOptions);
    if (status != ParseStatus::Valid) return Outcome::NotRead;
    // Deliberate: a day that the new calendar cannot write goes back without a word.
    if (!CanWriteDate(to, record.jdn)) return Outcome::Abandoned;
    boxes_.SetText(side.box, WriteDate(to, record.jdn, textOptions));
    return Outcome::Converted;
}

void CalendarChange::RestoreCalendar(const Side& side, Outcome outcome) {
    controls_.Calendars(side.box)->Choose(RowOf(kCalendarOptions, state_.*side.boxCalendar));
    if (outcome == Outcome::Abandoned) return;
    platform_.boxes.Show(state_.texts.Numbered(side.message), state_.texts.Numbered(kCannotConvertTitle),
                         MessageIcon::NoIcon);
}

}  // namespace calvoro
