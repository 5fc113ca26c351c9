#include "mainwindow/OutputBox.h"

#include <array>

#include "datetext/Blanks.h"
#include "windows/CrLfText.h"

namespace calvoro {
namespace {

struct Threshold {
    CaptionButton* MainControls::*button;
    int length;  // characters from which the button is enabled
};
constexpr std::array<Threshold, 3> kThresholds = {{
    {&MainControls::cmdClearOutputWindow, 1},
    {&MainControls::cmdCopyToClipboard, 11},
    {&MainControls::cmdEnlarge, 141},
}};

}  // namespace

OutputBox::OutputBox(const MainControls& controls, const MainState& state, const Platform& platform,
                     InputBoxes& boxes, SecondaryWindows& windows)
    : controls_(controls), state_(state), platform_(platform), boxes_(boxes), windows_(windows) {}

std::string OutputBox::Text() const {
    return CrLfText(*controls_.txbOutput);
}

void OutputBox::SetText(std::string_view text) {
    SetCrLfText(*controls_.txbOutput, text);
}

void OutputBox::Append(std::string_view piece) {
    AppendCrLfText(*controls_.txbOutput, piece);
}

void OutputBox::ScrollToEnd() {
    const int length = CrLfLength(*controls_.txbOutput);
    if (length > 0) SetCaret(*controls_.txbOutput, length - 1);
    controls_.txbOutput->ensureCursorVisible();
}

void OutputBox::DisableButtons() {
    for (const Threshold& row : kThresholds) (controls_.*row.button)->setEnabled(false);
}

void OutputBox::FollowLength() {
    const int length = CrLfLength(*controls_.txbOutput);
    for (const Threshold& row : kThresholds) (controls_.*row.button)->setEnabled(length >= row.length);
}

void OutputBox::Clear() {
    controls_.txbOutput->clear();
    boxes_.SetTheFocus();
}

void OutputBox::CopyToClipboard() {
    platform_.clipboard.Clear();
    const std::string selected = SelectedCrLfText(*controls_.txbOutput);
    platform_.clipboard.SetText(selected.empty() ? Text() : selected);
    SetCaret(*controls_.txbOutput, 0);
    windows_.TellCopied();
}

void OutputBox::Enlarge() {
    const std::string text = Text();
    const std::string_view trimmed = TrimBlanks(text);
    if (trimmed.size() != text.size()) SetText(trimmed);
    if (trimmed.empty()) {
        platform_.boxes.Show(state_.texts.Shown(TextId::OutputWindowIsEmpty),
                             state_.texts.Shown(TextId::OutputWindow), MessageIcon::Exclamation);
        boxes_.SetTheFocus();
        return;
    }
    windows_.ShowEnlarged(trimmed);
}

}  // namespace calvoro
