#include "cli/HeadlessWindow.h"

#include <utility>

#include "calendar/Today.h"
#include "datetext/TodayText.h"

namespace calvoro {
namespace {

std::string ComputeRequest::*BoxMember(InputBox box) {
    switch (box) {
        case InputBox::FirstDate: return &ComputeRequest::first;
        case InputBox::Difference: return &ComputeRequest::difference;
        case InputBox::SecondDate: break;
    }
    return &ComputeRequest::second;
}

}  // namespace

bool LacksItsResult(std::string_view output) {
    return output.ends_with(" = \r\n");
}

HeadlessWindow::HeadlessWindow(ComputeRequest request, const Clock& clock)
    : request_(std::move(request)), clock_(clock) {}

std::string HeadlessWindow::InputText(InputBox box) const {
    return request_.*BoxMember(box);
}

void HeadlessWindow::SetInputText(InputBox box, std::string_view text) {
    request_.*BoxMember(box) = text;
}

void HeadlessWindow::ShowMessage(std::string_view prompt, std::string_view title) {
    messages_.push_back({std::string(title), std::string(prompt)});
}

bool HeadlessWindow::AskWhichBoxToClear() {
    switch (request_.clear) {
        case ClearAnswer::Cancel: return false;
        case ClearAnswer::FirstDate: request_.first.clear(); break;
        case ClearAnswer::Difference: request_.difference.clear(); break;
        case ClearAnswer::SecondDate: request_.second.clear(); break;
    }
    return true;
}

void HeadlessWindow::FillWithToday() {
    const LocalDate today = request_.today ? *request_.today : clock_.Today();
    request_.first = TodayBoxText(TodayJdn(today), request_.options.firstCalendar, request_.options.text);
}

}  // namespace calvoro
