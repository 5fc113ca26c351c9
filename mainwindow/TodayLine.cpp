#include "mainwindow/TodayLine.h"

#include "calendar/Today.h"
#include "datetext/TodayText.h"
#include "text/DateNames.h"
#include "windows/QtText.h"

namespace calvoro {
namespace {

struct TodayRow {
    ClickableLabel* MainControls::*label;
    TextId phrase;
    std::int32_t daysFromToday;
};
constexpr std::array<TodayRow, 2> kRows = {{
    {&MainControls::lblTodaysDate, TextId::TodayIs, 0},
    {&MainControls::lblWeekFromToday, TextId::AWeekFromTodayIs, 7},
}};

}  // namespace

TodayLine::TodayLine(const MainControls& controls, const WindowOptions& options, const MainState& state,
                     const Clock& clock)
    : controls_(controls), options_(options), state_(state), clock_(clock) {
    static_assert(kRows.size() == std::tuple_size_v<decltype(calendars_)>);
    for (std::size_t i = 0; i < kRows.size(); ++i) {
        ClickableLabel* label = controls_.*kRows[i].label;
        CalendarNumber& calendar = calendars_[i];
        QObject::connect(label, &ClickableLabel::Pressed, label,
                         [this, &calendar] { Cycle(calendar, NextTodayCalendar); });
        QObject::connect(label, &ClickableLabel::PressedBackward, label,
                         [this, &calendar] { Cycle(calendar, PreviousTodayCalendar); });
    }
}

void TodayLine::Refresh() {
    if (!state_.FormReady) return;
    const std::int32_t today = TodayJdn(clock_.Today());
    const LanguageNumber language = state_.texts.InterfaceLanguage;
    for (std::size_t i = 0; i < kRows.size(); ++i) {
        const LabelWords words = {.phrase = state_.texts.Shown(kRows[i].phrase),
                                  .weekdays = ShownWeekdayNames(language),
                                  .german = language == LanguageGerman};
        (controls_.*kRows[i].label)
            ->setText(ToQt(TodayLabel(today + kRows[i].daysFromToday, calendars_[i],
                                      options_.ReadTextOptions(), words)));
    }
}

void TodayLine::Cycle(CalendarNumber& calendar, CalendarNumber (*step)(CalendarNumber)) {
    calendar = step(calendar);
    Refresh();
}

}  // namespace calvoro
