#include "mainwindow/InputBoxes.h"

#include <algorithm>
#include <array>

#include "calendar/Today.h"
#include "compute/ComputeMessages.h"
#include "datetext/AnyNotation.h"
#include "datetext/TodayText.h"
#include "mainwindow/Hyphens.h"
#include "windows/QtText.h"

namespace calvoro {
namespace {

// In the order in which SetTheFocus looks for an empty one.
constexpr std::array<InputBox, 3> kBoxes = {InputBox::FirstDate, InputBox::Difference, InputBox::SecondDate};

}  // namespace

InputBoxes::InputBoxes(const MainControls& controls, const WindowOptions& options, const MainState& state,
                       const Platform& platform)
    : controls_(controls), options_(options), state_(state), platform_(platform) {}

std::string InputBoxes::Text(InputBox box) const {
    return FromQt(controls_.Box(box)->text());
}

void InputBoxes::SetText(InputBox box, std::string_view text) {
    const QString newText = ToQt(text);
    QLineEdit& edit = *controls_.Box(box);
    // A text that stays keeps its caret and what can be undone.
    if (edit.text() != newText) edit.setText(newText);
}

void InputBoxes::SetTheFocus() {
    if (!state_.FormReady) return;
    const auto isEmpty = [this](InputBox box) { return controls_.Box(box)->text().isEmpty(); };
    const auto firstEmpty = std::find_if(kBoxes.begin(), kBoxes.end(), isEmpty);
    const auto filled = std::count_if(kBoxes.begin(), kBoxes.end(), std::not_fn(isEmpty));
    if (filled >= 2 || firstEmpty == kBoxes.end()) {
        Focus(*controls_.cmdCompute);
    } else {
        Focus(*controls_.Box(*firstEmpty));
    }
}

void InputBoxes::Focus(QWidget& control) {
    if (!focusHeld_) control.setFocus();
}

void InputBoxes::Select(InputBox box) {
    Focus(*controls_.Box(box));
    controls_.Box(box)->selectAll();
}

void InputBoxes::ClearInputBoxes() {
    for (const InputBox box : kBoxes) controls_.Box(box)->clear();
    if (state_.FormReady) Focus(*controls_.txbFirstDate);
}

void InputBoxes::Clear(InputBox box) {
    controls_.Box(box)->clear();
    SetTheFocus();
}

void InputBoxes::FillWithToday(InputBox box) {
    const std::int32_t today = TodayJdn(platform_.clock.Today());
    SetText(box, TodayBoxText(today, options_.GetCal(box), options_.ReadTextOptions()));
    SetTheFocus();
}

void InputBoxes::MoveSecondDateToFirst() {
    if (controls_.txbSecondDate->text().isEmpty()) {
        SetTheFocus();
        return;
    }
    const TextOptions textOptions = options_.ReadTextOptions();
    const CalendarNumber first = options_.GetCal(InputBox::FirstDate);
    DateRecord record;
    const ParseStatus status =
        ReadDate(options_.GetCal(InputBox::SecondDate), Text(InputBox::SecondDate), textOptions, record);
    const bool valid = status == ParseStatus::Valid;
    if (!valid || !CanWriteDate(first, record.jdn)) {
        const Texts& texts = state_.texts;
        const std::string_view message =
            status == ParseStatus::NotValid
                ? ComputeMessageText(ComputeMessage::SecondDateNotValid, texts.InterfaceLanguage)
                : texts.Shown(TextId::OutOfRange);
        platform_.boxes.Show(message, ErrorTitle(texts), MessageIcon::NoIcon);
        Select(InputBox::SecondDate);
        return;
    }
    SetText(InputBox::FirstDate, WriteDate(first, record.jdn, textOptions));
    controls_.txbSecondDate->clear();
    Select(InputBox::Difference);
}

void InputBoxes::RewriteHyphens() {
    const bool hyphen = controls_.chkHyphen->isChecked();
    for (const InputBox box : {InputBox::FirstDate, InputBox::SecondDate}) {
        SetText(box, WithHyphens(Text(box), options_.GetCal(box), hyphen));
    }
}

}  // namespace calvoro
