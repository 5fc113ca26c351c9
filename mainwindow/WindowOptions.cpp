#include "mainwindow/WindowOptions.h"

#include <QSignalBlocker>
#include <utility>

#include "mainwindow/ControlTables.h"

namespace calvoro {
namespace {

// Without running the box's handler.
void Check(QCheckBox& box, bool checked) {
    const QSignalBlocker blocker(box);
    box.setChecked(checked);
}

}  // namespace

WindowOptions::WindowOptions(const MainControls& controls, std::string digitGrouping)
    : controls_(controls), digitGrouping_(std::move(digitGrouping)) {}

DateFormat WindowOptions::UsersDateFormat() const {
    return ValueAt(kDateFormatOptions, controls_.dateFormats->Chosen());
}

CalendarNumber WindowOptions::GetCal(InputBox box) const {
    return ValueAt(kCalendarOptions, controls_.Calendars(box)->Chosen());
}

TextOptions WindowOptions::ReadTextOptions() const {
    return {.dateFormat = UsersDateFormat(),
            .dateSeparator = ValueAt(kDateSeparatorOptions, controls_.dateSeparators->Chosen()),
            .thousandsSeparator = ValueAt(kThousandsOptions, controls_.thousandsSeparators->Chosen()),
            .hyphen = controls_.chkHyphen->isChecked(),
            .digitGrouping = digitGrouping_};
}

ComputeOptions WindowOptions::ReadComputeOptions(const Texts& texts) const {
    return {.text = ReadTextOptions(),
            .firstCalendar = GetCal(InputBox::FirstDate),
            .secondCalendar = GetCal(InputBox::SecondDate),
            .includeFirstDate = controls_.chkIncludeFirstDate->isChecked(),
            .countWeekendDays = controls_.chkIncludeWeekends->isChecked(),
            .verbose = controls_.chkVerbose->isChecked(),
            .unit = ValueAt(kUnitOptions, controls_.units->Chosen()),
            .texts = texts};
}

void WindowOptions::Apply(const Settings& settings) {
    controls_.languages->Choose(RowOf(kLanguageOptions, settings.interfaceLanguage, kNoOption));
    controls_.dateFormats->Choose(RowOf(kDateFormatOptions, settings.dateFormat));
    controls_.dateSeparators->Choose(RowOf(kDateSeparatorOptions, settings.dateSeparator));
    controls_.thousandsSeparators->Choose(RowOf(kThousandsOptions, settings.thousandsSeparator));
    controls_.firstCalendars->Choose(RowOf(kCalendarOptions, settings.firstCalendar));
    controls_.secondCalendars->Choose(RowOf(kCalendarOptions, settings.secondCalendar));
    controls_.units->Choose(RowOf(kUnitOptions, settings.differenceUnit));
    Check(*controls_.chkIncludeFirstDate, settings.includeFirstDate);
    Check(*controls_.chkIncludeWeekends, settings.includeWeekends);
    Check(*controls_.chkVerbose, settings.verbose);
    Check(*controls_.chkHyphen, settings.hyphen);
    Check(*controls_.chkSaveOutput, settings.saveOutput);
    FollowUnit();
}

void WindowOptions::FollowUnit() {
    const bool days = ValueAt(kUnitOptions, controls_.units->Chosen()) == DifferenceUnit::Days;
    controls_.chkIncludeFirstDate->setEnabled(days);
    controls_.chkIncludeWeekends->setEnabled(days);
}

void WindowOptions::Collect(Settings& settings) const {
    const TextOptions text = ReadTextOptions();
    settings.dateFormat = text.dateFormat;
    settings.dateSeparator = text.dateSeparator;
    settings.thousandsSeparator = text.thousandsSeparator;
    settings.firstCalendar = GetCal(InputBox::FirstDate);
    settings.secondCalendar = GetCal(InputBox::SecondDate);
    settings.includeFirstDate = controls_.chkIncludeFirstDate->isChecked();
    settings.includeWeekends = controls_.chkIncludeWeekends->isChecked();
    settings.verbose = controls_.chkVerbose->isChecked();
    settings.hyphen = controls_.chkHyphen->isChecked();
    settings.saveOutput = controls_.chkSaveOutput->isChecked();
    settings.differenceUnit = ValueAt(kUnitOptions, controls_.units->Chosen());
}

}  // namespace calvoro
