#pragma once

// The three input boxes: their texts, where the focus goes, and the small commands that empty, fill, move
// and rewrite them.

#include <QScopedValueRollback>
#include <string>
#include <string_view>

#include "compute/ComputeWindow.h"
#include "mainwindow/MainControls.h"
#include "mainwindow/MainState.h"
#include "mainwindow/WindowOptions.h"
#include "platform/Platform.h"

namespace calvoro {

class InputBoxes {
public:
    InputBoxes(const MainControls& controls, const WindowOptions& options, const MainState& state,
               const Platform& platform);

    std::string Text(InputBox box) const;
    void SetText(InputBox box, std::string_view text);

    /// Leaves the focus where it is, as long as the result lives: none of the steps below moves it.
    [[nodiscard]] QScopedValueRollback<bool> HoldFocus(bool hold) {
        return QScopedValueRollback<bool>(focusHeld_, focusHeld_ || hold);
    }

    /// Where the next step is: cmdCompute when two boxes are filled, else the first empty box. Nothing
    /// before the window is ready.
    void SetTheFocus();

    /// Focuses a box and selects its whole text.
    void Select(InputBox box);

    /// Empties all three boxes, because their texts would not read any more.
    void ClearInputBoxes();

    /// Empties one box.
    void Clear(InputBox box);

    /// Writes today into a date box, in the box's calendar.
    void FillWithToday(InputBox box);

    /// Writes the second date into the first box, in that box's calendar, so that the next computation
    /// starts from it.
    void MoveSecondDateToFirst();

    /// Rewrites ISO week dates and ordinal dates that stand in the date boxes into the form that chkHyphen
    /// names.
    void RewriteHyphens();

private:
    void Focus(QWidget& control);

    const MainControls& controls_;
    const WindowOptions& options_;
    const MainState& state_;
    const Platform& platform_;
    bool focusHeld_ = false;
};

}  // namespace calvoro
