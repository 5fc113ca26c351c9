#pragma once

// The main window as the computation sees it.

#include <functional>

#include "compute/ComputeWindow.h"
#include "mainwindow/InputBoxes.h"
#include "mainwindow/OutputBox.h"

namespace calvoro {

class MainComputeWindow : public ComputeWindow {
public:
    /// askWhichBoxToClear  empties the box that the user gives up; false when it is none
    /// switchToDays        what a click on the days option does, and choosing it
    MainComputeWindow(InputBoxes& boxes, const WindowOptions& options, const MainState& state,
                      OutputBox& output, const Platform& platform, std::function<bool()> askWhichBoxToClear,
                      std::function<void()> switchToDays);

    std::string InputText(InputBox box) const override;
    void SetInputText(InputBox box, std::string_view text) override;
    ComputeOptions ReadComputeOptions() const override;
    void AppendOutput(std::string_view piece) override;
    void ScrollOutputToEnd() override;
    void ShowMessage(std::string_view prompt, std::string_view title) override;
    bool AskWhichBoxToClear() override;
    void FillWithToday() override;
    void SwitchToDays() override;
    void SetTheFocus() override;

    /// What was appended to the output since this was last asked.
    std::string TakeAppended();

private:
    InputBoxes& boxes_;
    const WindowOptions& options_;
    const MainState& state_;
    OutputBox& output_;
    const Platform& platform_;
    std::function<bool()> askWhichBoxToClear_;
    std::function<void()> switchToDays_;
    std::string appended_;
};

}  // namespace calvoro
