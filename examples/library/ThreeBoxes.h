#pragma once

#include <string>

#include "compute/ComputeWindow.h"

/// What a Compute click needs of a window: three boxes, the options, and a place for the answer.
class ThreeBoxes final : public calvoro::ComputeWindow {
public:
    ThreeBoxes(std::string first, std::string difference, std::string second,
               calvoro::ComputeOptions options);

    /// The result line, or what was wrong.
    const std::string& Answer() const { return answer_; }

    std::string InputText(calvoro::InputBox box) const override;
    void SetInputText(calvoro::InputBox box, std::string_view text) override;
    calvoro::ComputeOptions ReadComputeOptions() const override { return options_; }
    void AppendOutput(std::string_view piece) override { answer_ += piece; }
    void ScrollOutputToEnd() override {}
    void ShowMessage(std::string_view prompt, std::string_view title) override;
    bool AskWhichBoxToClear() override { return false; }
    void FillWithToday() override {}
    void SwitchToDays() override {}
    void SetTheFocus() override {}

private:
    std::string boxes_[3];
    calvoro::ComputeOptions options_;
    std::string answer_;
};
