#include "mainwindow/ListRows.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "calendar/Weekday.h"
#include "compute/ComputeClick.h"
#include "compute/DateBox.h"
#include "datetext/AnyNotation.h"
#include "datetext/Blanks.h"
#include "datetext/Thousands.h"
#include "mainwindow/ControlTables.h"
#include "text/DateNames.h"
#include "text/NumberedTexts.h"

namespace calvoro {
namespace {

/// The main window as the click sees it for one line: three texts, and the first message that is shown. It
/// answers no question: none comes up with at most two boxes filled and one of them with the line.
class LineWindow final : public ComputeWindow {
public:
    explicit LineWindow(ComputeOptions options) : options_(std::move(options)) {}

    std::array<std::string, 3> texts;  // by InputBox
    std::string message;

    std::string InputText(InputBox box) const override { return texts[static_cast<std::size_t>(box)]; }
    void SetInputText(InputBox box, std::string_view text) override {
        texts[static_cast<std::size_t>(box)] = text;
        accepted_ = isReading_ ? accepted_ | Bit(box) : 0;
    }
    ComputeOptions ReadComputeOptions() const override {
        isReading_ = true;
        return options_;
    }
    void AppendOutput(std::string_view /*piece*/) override {}
    void ScrollOutputToEnd() override {}
    void ShowMessage(std::string_view prompt, std::string_view /*title*/) override {
        if (message.empty()) message = prompt;
    }
    bool AskWhichBoxToClear() override { return false; }
    void FillWithToday() override {}
    // The second half of the message says that the unit was switched; here it is not.
    void SwitchToDays() override { message = options_.texts.GetProgramText(kNoMonthsBetweenDatesText); }
    void SetTheFocus() override {}

    const ComputeOptions& Options() const { return options_; }

    /// Before each click.
    void Begin() {
        isReading_ = false;
        message.clear();
    }

    /// Whether the text of a box was read as what belongs there, and rewritten.
    bool IsAccepted(InputBox box) const { return (accepted_ & Bit(box)) != 0; }

private:
    static unsigned Bit(InputBox box) { return 1U << static_cast<unsigned>(box); }

    ComputeOptions options_;
    mutable bool isReading_ = false;  // the boxes are trimmed, the options taken
    unsigned accepted_ = 0;
};

void AppendOnOneLine(std::string_view message, std::string& line) {
    for (const char character : message) {
        if (character == '\r') continue;
        line += character == '\n' ? ' ' : character;
    }
}

class LineComputation final : public ListRowMaker {
public:
    /// options     of the click
    /// hasWeekdays whether a computed date gets its weekday
    LineComputation(ComputeOptions options, bool hasWeekdays, ListSide side, std::string difference,
                    std::string other)
        : window_(std::move(options)),
          hasWeekdays_(hasWeekdays),
          line_(side == ListSide::FirstDates ? kFirstDateBox : kSecondDateBox),
          computed_(side == ListSide::FirstDates ? kSecondDateBox : kFirstDateBox),
          difference_(std::move(difference)),
          other_(std::move(other)) {}

    void Make(std::string_view date, ListRow& row) override {
        row.reading.clear();
        row.result.clear();
        row.weekday.clear();
        row.reason.clear();
        row.day.reset();
        if (TrimBlanks(date).empty()) return;

        Text(line_.box) = date;
        Text(InputBox::Difference) = difference_;
        Text(computed_.box) = other_;
        window_.Begin();
        const ClickOutcome outcome = cmdCompute_Click(window_, state_);
        if (window_.IsAccepted(line_.box)) {
            row.reading = Text(line_.box);
            row.day = (state_.*line_.record).jdn;
        }
        // An ordinal date beyond its limits is a result with a message.
        if (outcome == ClickOutcome::Result && window_.message.empty()) {
            SetResult(row);
        } else {
            AppendOnOneLine(window_.message, row.reason);
        }
    }

    bool HasWeekdays() const override { return hasWeekdays_; }

    std::string ResultCaption() const override {
        const ComputeOptions& options = window_.Options();
        if (!other_.empty()) return std::string(options.texts.Shown(TextId::Days));
        const auto* const row = std::find_if(
            kCalendarOptions.begin(), kCalendarOptions.end(),
            [&](const CalendarOption& option) { return option.value == options.*computed_.calendar; });
        return std::string(options.texts.Shown(row->caption));
    }

private:
    std::string& Text(InputBox box) { return window_.texts[static_cast<std::size_t>(box)]; }

    void SetResult(ListRow& row) {
        const ComputeOptions& options = window_.Options();
        if (!other_.empty()) {
            row.result = ThousandsText(state_.DateDifference, options.text.thousandsSeparator);
            return;
        }
        const std::int32_t jdn = (state_.*computed_.record).jdn;
        row.result = WriteDate(options.*computed_.calendar, jdn, options.text);
        if (!hasWeekdays_) return;
        const auto names = ShownWeekdayNames(options.texts.InterfaceLanguage);
        row.weekday = names[static_cast<std::size_t>(euro_day_of_week(jdn))];
    }

    LineWindow window_;
    bool hasWeekdays_;
    DateBox line_;
    DateBox computed_;
    std::string difference_;
    std::string other_;  // the text of the other date box, when it counts
    ComputeState state_;
};

}  // namespace

ListRows::ListRows(const InputBoxes& boxes, const WindowOptions& options, const MainState& state)
    : boxes_(boxes), options_(options), state_(state) {}

std::shared_ptr<ListRowMaker> ListRows::Snapshot(ListSide side) const {
    ComputeOptions options = options_.ReadComputeOptions(state_.texts);
    const bool hasWeekdays = options.verbose;
    options.verbose = false;  // of what it adds to the output nothing but the weekday has its place in a row
    const std::string difference = boxes_.Text(InputBox::Difference);
    std::string other;
    if (TrimBlanks(difference).empty()) {
        other = boxes_.Text(side == ListSide::FirstDates ? InputBox::SecondDate : InputBox::FirstDate);
        if (TrimBlanks(other).empty()) other.clear();
    }
    return std::make_shared<LineComputation>(std::move(options), hasWeekdays, side, difference,
                                             std::move(other));
}

}  // namespace calvoro
