#pragma once

// The main window as the computation sees it. The window's bridge, the command line and the tests' fake
// implement it.

#include <string>
#include <string_view>

#include "compute/ComputeOptions.h"

namespace calvoro {

/// The three boxes, from top to bottom.
enum class InputBox { FirstDate, Difference, SecondDate };

/// What a computation asks of the window, and does to it.
class ComputeWindow {
public:
    virtual ~ComputeWindow() = default;

    /// The text of a box as it stands, blanks included.
    virtual std::string InputText(InputBox box) const = 0;

    /// Replaces the text of a box, without what typing in it would do.
    virtual void SetInputText(InputBox box, std::string_view text) = 0;

    /// Every option as it stands now; asked once a click.
    virtual ComputeOptions ReadComputeOptions() const = 0;

    /// Adds a piece to the end of the output, CR LF where a line ends.
    virtual void AppendOutput(std::string_view piece) = 0;

    /// Puts the caret of the output box one character before its end, unless it is empty.
    virtual void ScrollOutputToEnd() = 0;

    /// A modal message box with an OK button and no icon.
    virtual void ShowMessage(std::string_view prompt, std::string_view title) = 0;

    /// Asks which of the three filled boxes to empty, and empties it.
    /// returns  false when the user chose none
    virtual bool AskWhichBoxToClear() = 0;

    /// Fills the first date box with today, as its Today button does.
    virtual void FillWithToday() = 0;

    /// Chooses days as the unit of the difference, with all that a click on that option does.
    virtual void SwitchToDays() = 0;

    /// Puts the cursor where the user goes on; the last step of a click, and of each routine that computes.
    virtual void SetTheFocus() = 0;

protected:
    ComputeWindow() = default;
    ComputeWindow(const ComputeWindow&) = default;
    ComputeWindow& operator=(const ComputeWindow&) = default;
};

}  // namespace calvoro
