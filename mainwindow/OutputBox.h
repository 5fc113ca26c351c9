#pragma once

// The output box and its three buttons. Nothing that changes the output touches the buttons: the Clock
// looks at its length once a second.

#include <string>
#include <string_view>

#include "mainwindow/InputBoxes.h"
#include "mainwindow/SecondaryWindows.h"

namespace calvoro {

class OutputBox {
public:
    OutputBox(const MainControls& controls, const MainState& state, const Platform& platform,
              InputBoxes& boxes, SecondaryWindows& windows);

    /// The output with CR LF line ends.
    std::string Text() const;
    void SetText(std::string_view text);

    /// Adds a piece at the end; costs the piece, not the output.
    void Append(std::string_view piece);

    /// Puts the caret before the last character, so that the end can be seen.
    void ScrollToEnd();

    /// Switches the buttons off, as nothing is there to act on.
    void DisableButtons();

    /// One tick of the Clock: every button is enabled from its own length of output on.
    void FollowLength();

    void Clear();

    /// Copies the selected part, or everything, and says so.
    void CopyToClipboard();

    /// Shows the output in the enlarged window.
    void Enlarge();

private:
    const MainControls& controls_;
    const MainState& state_;
    const Platform& platform_;
    InputBoxes& boxes_;
    SecondaryWindows& windows_;
};

}  // namespace calvoro
