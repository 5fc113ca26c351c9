#pragma once

// The main window without a screen: its boxes and options as plain members, for the command line.

#include <string>
#include <string_view>
#include <vector>

#include "cli/ComputeRequest.h"
#include "compute/ComputeWindow.h"
#include "platform/Clock.h"

namespace calvoro {

struct ShownMessage {
    std::string title;
    std::string text;
};

/// Whether an output ends with a result line that lacks its result: an ordinal date out of range leaves its
/// " = " standing.
bool LacksItsResult(std::string_view output);

class HeadlessWindow final : public ComputeWindow {
public:
    /// clock  asked only when today is needed and the request does not tell it
    HeadlessWindow(ComputeRequest request, const Clock& clock);

    std::string InputText(InputBox box) const override;
    void SetInputText(InputBox box, std::string_view text) override;
    ComputeOptions ReadComputeOptions() const override { return request_.options; }
    void AppendOutput(std::string_view piece) override { output_ += piece; }
    void ScrollOutputToEnd() override {}
    void ShowMessage(std::string_view prompt, std::string_view title) override;
    bool AskWhichBoxToClear() override;
    void FillWithToday() override;
    void SwitchToDays() override { request_.options.unit = DifferenceUnit::Days; }
    void SetTheFocus() override {}

    /// Everything that was appended, with CR LF line ends.
    const std::string& Output() const { return output_; }

    /// The messages shown, in order.
    const std::vector<ShownMessage>& Messages() const { return messages_; }

    /// The unit of the difference as it stands now.
    DifferenceUnit Unit() const { return request_.options.unit; }

private:
    ComputeRequest request_;
    const Clock& clock_;
    std::string output_;
    std::vector<ShownMessage> messages_;
};

}  // namespace calvoro
