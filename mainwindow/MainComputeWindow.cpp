#include "mainwindow/MainComputeWindow.h"

#include <utility>

namespace calvoro {

MainComputeWindow::MainComputeWindow(InputBoxes& boxes, const WindowOptions& options, const MainState& state,
                                     OutputBox& output, const Platform& platform,
                                     std::function<bool()> askWhichBoxToClear,
                                     std::function<void()> switchToDays)
    : boxes_(boxes),
      options_(options),
      state_(state),
      output_(output),
      platform_(platform),
      askWhichBoxToClear_(std::move(askWhichBoxToClear)),
      switchToDays_(std::move(switchToDays)) {}

std::string MainComputeWindow::InputText(InputBox box) const {
    return boxes_.Text(box);
}

void MainComputeWindow::SetInputText(InputBox box, std::string_view text) {
    boxes_.SetText(box, text);
}

ComputeOptions MainComputeWindow::ReadComputeOptions() const {
    return options_.ReadComputeOptions(state_.texts);
}

void MainComputeWindow::AppendOutput(std::string_view piece) {
    output_.Append(piece);
    appended_ += piece;
}

void MainComputeWindow::ScrollOutputToEnd() {
    output_.ScrollToEnd();
}

void MainComputeWindow::ShowMessage(std::string_view prompt, std::string_view title) {
    platform_.boxes.Show(prompt, title, MessageIcon::NoIcon);
}

bool MainComputeWindow::AskWhichBoxToClear() {
    return askWhichBoxToClear_();
}

void MainComputeWindow::FillWithToday() {
    boxes_.FillWithToday(InputBox::FirstDate);
}

void MainComputeWindow::SwitchToDays() {
    switchToDays_();
}

void MainComputeWindow::SetTheFocus() {
    boxes_.SetTheFocus();
}

std::string MainComputeWindow::TakeAppended() {
    return std::exchange(appended_, {});
}

}  // namespace calvoro
