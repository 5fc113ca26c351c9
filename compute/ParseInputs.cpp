#include "compute/ParseInputs.h"

#include "compute/ComputeMessages.h"
#include "compute/DateBox.h"
#include "compute/Edge.h"
#include "datetext/AnyNotation.h"
#include "datetext/Tags.h"
#include "datetext/Thousands.h"

namespace calvoro {
namespace {

bool ParseDate(const DateBox& box, std::string& text, ComputeWindow& window, ComputeState& state) {
    const ComputeOptions& options = state.options;
    const CalendarNumber calendar = options.*box.calendar;
    std::string canonical;
    const ParseStatus status = ReadDateInRange(text, calendar, options.text, state.*box.record, &canonical);
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

ParseStatus ReadDateInRange(std::string_view text, CalendarNumber calendar, const TextOptions& options,
                            DateRecord& record, std::string* canonical) {
    ParseStatus status = ParseStatus::NotValid;
    record = DateRecord();
    const bool fits = StaysIn32Bits([&] { status = ReadDate(calendar, text, options, record, canonical); });
    return fits ? status : ParseStatus::OutOfRange;
}

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
    ParseStatus status = ParseStatus::NotValid;
    if (!StaysIn32Bits([&] { status = ReadDifference(text, state.DateDifference); })) {
        status = ParseStatus::OutOfRange;
    }
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
