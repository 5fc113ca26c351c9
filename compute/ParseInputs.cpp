#include "compute/ParseInputs.h"

#include "compute/ComputeMessages.h"
#include "compute/DateBox.h"
#include "datetext/AnyNotation.h"
#include "datetext/Tags.h"
#include "datetext/Thousands.h"

namespace calvoro {
namespace {

bool ParseDate(const DateBox& box, std::string& text, ComputeWindow& window, ComputeState& state) {
    const ComputeOptions& options = state.options;
    const CalendarNumber calendar = options.*box.calendar;
    std::string canonical;
    DateRecord& record = state.*box.record;
    record = DateRecord();
    const ParseStatus status = ReadDate(calendar, text, options.text, record, &canonical);
    if (status != ParseStatus::Valid) {
        const ComputeMessage message = status == ParseStatus::NotValid ? box.notValid : box.outOfRange;
        ShowComputeMessage(message, options.texts, window);
        return false;
    }

    text = canonical;
    window.SetInputText(box.box, text);
    std::string& echo = state.*box.echo;
    echo = canonical;
    if (calendar != CalendarNumber::ORD) echo.append(" ").append(TagText(calendar));
    return true;
}

}  // namespace

bool ParseFirstDate(std::string& text, ComputeWindow& window, ComputeState& state) {
    return ParseDate(kFirstDateBox, text, window, state);
}

bool ParseSecondDate(std::string& text, ComputeWindow& window, ComputeState& state) {
    return ParseDate(kSecondDateBox, text, window, state);
}

bool ParseDateDifference(std::string& text, ComputeWindow& window, ComputeState& state) {
    if (text.empty()) {
        state.DateDifference = 0;
        return true;
    }
    const ParseStatus status = ReadDifference(text, state.DateDifference);
    if (status != ParseStatus::Valid) {
        const ComputeMessage message = status == ParseStatus::NotValid ? ComputeMessage::DifferenceNotValid
                                                                       : ComputeMessage::DifferenceOutOfRange;
        ShowComputeMessage(message, state.options.texts, window);
        return false;
    }
    text = ThousandsText(state.DateDifference, state.options.text.thousandsSeparator);
    window.SetInputText(InputBox::Difference, text);
    return true;
}

}  // namespace calvoro
