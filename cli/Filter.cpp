#include "cli/Filter.h"

#include "datetext/PrintableText.h"

namespace calvoro {

void Filter::Refuse(std::string_view refusal, std::string_view text, const Place& place) {
    allGood_ = false;
    std::string message(place.source);
    message.append(":").append(std::to_string(place.number)).append(": ").append(refusal);
    refusals_.push_back(message.append(": ").append(QuotedText(text)));
}

// On a terminal the messages belong below the line they are about.
void Filter::TellRefusals() {
    if (IsTerminal(kStandardOutput)) output_.Flush();
    for (const std::string& refusal : refusals_) diagnostics_.Print(refusal);
    refusals_.clear();
}

}  // namespace calvoro
