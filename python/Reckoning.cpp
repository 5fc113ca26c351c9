#include "python/Reckoning.h"

#include "calendar/EuroDate.h"
#include "calendar/LeapWeekDate.h"
#include "compute/CountDays.h"
#include "compute/FindDate.h"

namespace calvoro {
namespace {

/// A window that nobody sees: what the routines show is told by what they return.
class NoWindow final : public ComputeWindow {
public:
    std::string InputText(InputBox /*box*/) const override { return {}; }
    void SetInputText(InputBox /*box*/, std::string_view /*text*/) override {}
    ComputeOptions ReadComputeOptions() const override { return {}; }
    void AppendOutput(std::string_view /*piece*/) override {}
    void ScrollOutputToEnd() override {}
    void ShowMessage(std::string_view /*prompt*/, std::string_view /*title*/) override {}
    bool AskWhichBoxToClear() override { return false; }
    void FillWithToday() override {}
    void SwitchToDays() override {}
    void SetTheFocus() override {}
};

/// A record with the fields that months are added to.
DateRecord RecordOf(std::int32_t jdn, CalendarNumber notation) {
    DateRecord record{.jdn = jdn};
    if (notation == CalendarNumber::LPM) {
        LeapWeekDate date{.jdn = jdn};
        JdnToLpm(date);
        record.year = date.year;
        record.month = date.month;
        record.day = date.day;
    } else {
        record.calendar = CalendarCode::G;
        CalendarCodeOfTag(notation, record);
        jdn_to_euro_date(record);
    }
    return record;
}

}  // namespace

Reckoning::Reckoning(CalendarNumber notation, bool includeFirstDate, bool countWeekendDays) {
    state_.options.firstCalendar = notation;
    state_.options.secondCalendar = notation;
    state_.options.includeFirstDate = includeFirstDate;
    state_.options.countWeekendDays = countWeekendDays;
}

bool Reckoning::DaysBetween(std::int32_t first, std::int32_t second, std::int32_t& days) {
    NoWindow window;
    state_.FirstDateRecord.jdn = first;
    state_.SecondDateRecord.jdn = second;
    const bool counted = CountDaysBetween(window, state_);
    days = state_.DateDifference;
    return counted;
}

bool Reckoning::AddDays(std::int32_t date, std::int32_t days, std::int32_t& found) {
    NoWindow window;
    state_.FirstDateRecord.jdn = date;
    state_.DateDifference = days;
    const bool isFound = FindSecondDate(window, state_);
    found = state_.SecondDateRecord.jdn;
    return isFound;
}

bool Reckoning::AddMonthsTo(std::int32_t date, std::int32_t months, std::int32_t& found) {
    NoWindow window;
    state_.FirstDateRecord = RecordOf(date, state_.options.firstCalendar);
    state_.DateDifference = months;
    const bool isFound = FindSecondDateByMonths(window, state_);
    found = state_.SecondDateRecord.jdn;
    return isFound;
}

}  // namespace calvoro
