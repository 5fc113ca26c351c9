#pragma once

// What the windows show to be chosen, taken from their controls.

#include "compute/ComputeOptions.h"
#include "mainwindow/settings/Settings.h"
#include "tests/monkey/World.h"

namespace calvoro::monkey {

/// English or German as it is chosen; the language of the settings file while neither is.
LanguageNumber LanguageSeen(const World& world);

/// Index of the one option of a table that is checked in the main window.
/// returns  -1 when there is none, -2 when there are several
template <typename Table, typename Name>
int OptionSeen(const World& world, const Table& table, Name name) {
    int seen = -1;
    for (int i = 0; const auto& row : table) {
        if (world.main.Button(QString::fromLatin1((row.*name).data())).isChecked())
            seen = seen == -1 ? i : -2;
        ++i;
    }
    return seen;
}

TextOptions TextOptionsSeen(const World& world);
ComputeOptions ComputeOptionsSeen(const World& world);

/// What a today label says in a calendar, today or a week later.
QString TodayLine(const World& world, bool aWeekLater, CalendarNumber calendar);

/// The calendar in which the first today label tells today.
CalendarNumber TodayCalendarSeen(const World& world);

/// Everything that would be saved now.
Settings SettingsSeen(const World& world);

/// The same without what the file cannot hold: a line end of the file inside a box.
Settings WithLinesOfTheFile(Settings settings);

}  // namespace calvoro::monkey
