#pragma once

#include "mainwindow/settings/Settings.h"

namespace calvoro {

/// Settings of which only chkSaveOutput is as it is at first.
inline Settings AllButFactory() {
    Settings settings;
    settings.interfaceLanguage = LanguageGerman;
    settings.dateFormat = DateFormat::DMY;
    settings.dateSeparator = '.';
    settings.thousandsSeparator = kNoSeparator;
    settings.todayCalendar = CalendarNumber::LPM;
    settings.firstCalendar = CalendarNumber::ORD;
    settings.secondCalendar = CalendarNumber::ISO;
    settings.includeFirstDate = true;
    settings.includeWeekends = false;
    settings.verbose = false;
    settings.hyphen = false;
    settings.monthWeekStart = WeekStart::Monday;
    settings.monthCalendar = CalendarNumber::JC;
    settings.firstDate = "2024075";
    settings.dateDiff = "1234";
    settings.secondDate = "2024W125";
    settings.output = "one \"quoted\" line\r\n, another\r\n\r\n";
    settings.differenceUnit = DifferenceUnit::Months;
    return settings;
}

}  // namespace calvoro
