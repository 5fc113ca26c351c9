#pragma once

// What holds after every event, whatever the user has done. Each routine looks at one thing and says what is
// wrong with it; an empty text is good news.

#include <QPointer>
#include <array>
#include <string>
#include <string_view>

#include "tests/monkey/Seen.h"

namespace calvoro::monkey {

/// What was seen before the event.
struct Before {
    std::array<std::string, 3> boxes;  // by InputBox
    ComputeOptions options;
    std::string output;
    std::string enlarged;  // empty while the window is closed
    QPointer<QWidget> focus;

    explicit Before(const World& world);
};

/// What an invariant remembers from one event to the next.
struct Memory {
    bool monthMayBeOld = false;  // a year that is none keeps the month before
};

std::string Told(const World& world);                                // Messages.cpp
std::string Choices(const World& world);                             // MainInvariants.cpp
std::string Captions(const World& world);                            //
std::string TodayLines(const World& world);                          //
std::string Readings(const World& world);                            //
std::string SettingsInMemory(const World& world);                    //
std::string WrittenTexts(const World& world, const Before& before);  // WrittenTexts.cpp
std::string Focus(const World& world, const Before& before);         // FocusInvariant.cpp
std::string Month(const World& world, Memory& memory);               // MonthInvariant.cpp
std::string OtherWindows(const World& world, const Before& before);  // OtherWindows.cpp
std::string ListRowsShown(const World& world, Dice& dice);           // ListInvariant.cpp

/// Looks at all of them.
/// returns  empty, or the name of the invariant, ": " and what is wrong
std::string Broken(const World& world, const Before& before, Memory& memory, Dice& dice);

/// Falsifies what one invariant looks at, so that it must be found.
/// returns  false when there is none of this name
bool Sabotage(World& world, std::string_view invariant);  // Sabotage.cpp

}  // namespace calvoro::monkey
