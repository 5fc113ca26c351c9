#pragma once

// The kinds of events, one file each. Every routine does one event in the active window, chosen by the dice;
// what it cannot do there it leaves out, as a user would.

#include <array>
#include <string_view>

#include "tests/monkey/World.h"

namespace calvoro::monkey {

void PressKey(World& world, Dice& dice);               // Keys.cpp
void PressAccessKey(World& world, Dice& dice);         //
void TypeText(World& world, Dice& dice);               //
void ClickSomewhere(World& world, Dice& dice);         // Clicks.cpp
void TurnWheel(World& world, Dice& dice);              //
void PasteText(World& world, Dice& dice);              // Pastes.cpp
void DropSomething(World& world, Dice& dice);          // Drops.cpp
void OpenWindow(World& world, Dice& dice);             // Openings.cpp
void CloseWindow(World& world, Dice& dice);            //
void GoToWindow(World& world, Dice& dice);             //
void ChooseByMouse(World& world, Dice& dice);          // Options.cpp
void ChooseByKey(World& world, Dice& dice);            //
void ChooseByAssistiveTool(World& world, Dice& dice);  //
void SwitchLanguage(World& world, Dice& dice);         //
void ActAsAssistiveTool(World& world, Dice& dice);     // AssistiveActions.cpp
void ResizeWindow(World& world, Dice& dice);           // Appearance.cpp
void ChangeTheme(World& world, Dice& dice);            //
void LetTimePass(World& world, Dice& dice);            // Time.cpp
void EndAndStart(World& world, Dice& dice);            // Restarts.cpp

struct Kind {
    std::string_view name;
    int share;  // of all events, in thousandths
    void (*act)(World& world, Dice& dice);
};
inline constexpr std::array<Kind, 19> kKinds = {{
    {"key", 220, &PressKey},
    {"access key", 10, &PressAccessKey},
    {"typed text", 110, &TypeText},
    {"click", 200, &ClickSomewhere},
    {"wheel", 10, &TurnWheel},
    {"paste", 60, &PasteText},
    {"drop", 40, &DropSomething},
    {"window opened", 45, &OpenWindow},
    {"window closed", 35, &CloseWindow},
    {"window activated", 25, &GoToWindow},
    {"option by mouse", 55, &ChooseByMouse},
    {"option by key", 45, &ChooseByKey},
    {"option by assistive action", 50, &ChooseByAssistiveTool},
    {"language", 15, &SwitchLanguage},
    {"assistive action", 40, &ActAsAssistiveTool},
    {"resize", 20, &ResizeWindow},
    {"theme", 4, &ChangeTheme},
    {"clock", 13, &LetTimePass},
    {"end and start", 3, &EndAndStart},
}};

/// The names of the windows' events with a question: what the user does in a window that the program waits
/// for. Does one event in it, and closes it when it has been open for long.
void ActInQuestion(World& world, Dice& dice, QWidget& question, int eventsSoFar);  // Questions.cpp

// ---- what the kinds share

/// Clicks in a window where a control is seen. Nothing of it may be in sight: then no click comes.
/// atMark  on the left part, where options and check boxes listen
/// returns whether there was a click
bool ClickOnControl(QWidget& control, Dice& dice, Qt::MouseButton button = Qt::LeftButton,
                    bool atMark = false, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// A key for whatever has the focus in the active window.
void Key(World& world, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// A date, number or nonsense as a user may type or paste it.
QString OddText(const World& world, Dice& dice);

/// A date or number that can be read in the box with the focus; of a year otherwise.
QString ReadableText(const World& world, Dice& dice);

}  // namespace calvoro::monkey
