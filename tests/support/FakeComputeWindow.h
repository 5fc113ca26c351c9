#pragma once

// A main window for tests of the computation: three texts and a set of options, without a screen. It records
// every effect in the order in which it arrives.

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "compute/ComputeWindow.h"
#include "datetext/TodayText.h"

namespace calvoro {

class FakeComputeWindow final : public ComputeWindow {
public:
    struct Message {
        std::string prompt;
        std::string title;

        friend bool operator==(const Message&, const Message&) = default;
    };

    // What the user has set up.
    ComputeOptions options;
    std::optional<InputBox> boxToClear;  // the answer to the question which box to empty; none cancels
    std::int32_t todayJdn = 2459278;     // 2021-03-04 CE

    // What the click did.
    std::string output;
    std::vector<Message> messages;
    std::vector<std::string> log;  // one entry an effect; appended pieces that follow each other are one
    std::size_t caret = 0;
    mutable int optionSnapshots = 0;

    FakeComputeWindow() = default;
    FakeComputeWindow(std::string_view first, std::string_view difference, std::string_view second)
        : boxes_{std::string(first), std::string(difference), std::string(second)} {}

    const std::string& Box(InputBox box) const { return boxes_[static_cast<std::size_t>(box)]; }
    const std::string& First() const { return Box(InputBox::FirstDate); }
    const std::string& Difference() const { return Box(InputBox::Difference); }
    const std::string& Second() const { return Box(InputBox::SecondDate); }

    /// Types a text into a box, without an entry in the log.
    void Type(InputBox box, std::string_view text) { boxes_[static_cast<std::size_t>(box)] = text; }

    std::string InputText(InputBox box) const override { return Box(box); }

    void SetInputText(InputBox box, std::string_view text) override {
        Type(box, text);
        log.push_back(std::string(BoxName(box)).append(" := ").append(text));
    }

    ComputeOptions ReadComputeOptions() const override {
        ++optionSnapshots;
        return options;
    }

    void AppendOutput(std::string_view piece) override {
        output += piece;
        if (log.empty() || !log.back().starts_with(kOutput)) log.emplace_back(kOutput);
        log.back() += piece;
    }

    void ScrollOutputToEnd() override {
        if (!output.empty()) caret = output.size() - 1;
        log.emplace_back("scroll");
    }

    void ShowMessage(std::string_view prompt, std::string_view title) override {
        messages.push_back({std::string(prompt), std::string(title)});
        log.push_back(std::string(title).append(": ").append(prompt));
    }

    bool AskWhichBoxToClear() override {
        log.emplace_back("ask");
        if (boxToClear) Type(*boxToClear, "");
        return boxToClear.has_value();
    }

    void FillWithToday() override {
        log.emplace_back("today");
        Type(InputBox::FirstDate, TodayBoxText(todayJdn, options.firstCalendar, options.text));
    }

    void SwitchToDays() override {
        log.emplace_back("days");
        options.unit = DifferenceUnit::Days;
    }

    void SetTheFocus() override {
        if (log.empty() || log.back() != "focus") log.emplace_back("focus");
    }

private:
    static constexpr std::string_view kOutput = "output: ";

    static std::string_view BoxName(InputBox box) {
        constexpr std::array<std::string_view, 3> kNames = {"first", "difference", "second"};
        return kNames[static_cast<std::size_t>(box)];
    }

    std::array<std::string, 3> boxes_;
};

}  // namespace calvoro
