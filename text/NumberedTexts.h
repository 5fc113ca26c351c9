#pragma once

// The numbers of the program texts in calvoro.dat, for Texts::GetProgramText.

#include <cstdint>

namespace calvoro {

enum NumberedText : std::int16_t {
    kProgramNameText = 1,
    kMakerNameText = 2,
    // The month window.
    kIsoHeadingText = 13,
    kDisplayIsoText = 14,
    kHideIsoText = 15,
    // The question that Reset asks, a line each.
    kResetDeletesText = 18,
    kResetRestoresText = 19,
    kResetQuestionText = 20,
    // Counting in months: the lines of three messages.
    kNoMonthsBetweenDatesText = 21,
    kCountedInDaysNowText = 22,
    kToAddMonthsText = 23,
    kCalendarsMustBeEqualText = 24,
    kMonthsOnlyWithText = 25,
    kMonthCalendarsText = 26,
    kMoreMonthCalendarsText = 27,
    // A date that cannot be converted into the calendar that was clicked.
    kCannotConvertTitleText = 150,
    kFirstDateNotValidText = 156,
    kSecondDateNotValidText = 157,
    // The settings folder, and its maker.
    kSettingsFolderText = 310,
    kSettingsMakerText = 311,
};

}  // namespace calvoro
