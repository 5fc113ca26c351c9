#include "cli/Choices.h"

#include <algorithm>

#include "calendar/DateRecord.h"
#include "datetext/AnyNotation.h"

namespace calvoro {
namespace {

// The reader of dates drops what it does not know; here the form must be exact.
bool HasFormOfToday(std::string_view text) {
    constexpr std::string_view kForm = "dddd-dd-dd";
    return std::equal(text.begin(), text.end(), kForm.begin(), kForm.end(), [](char character, char form) {
        return form == '-' ? character == '-' : character >= '0' && character <= '9';
    });
}

}  // namespace

std::string TakeDigitGrouping(std::string_view text, std::string& grouping) {
    char separator = kNoSeparator;
    std::string reason = TakeChoice(kThousandsSeparatorChoices, text, NameCase::Any, separator);
    if (reason.empty()) grouping = separator == kNoSeparator ? std::string() : std::string(1, separator);
    return reason;
}

std::string TakeToday(std::string_view text, std::optional<LocalDate>& today) {
    DateRecord record;
    if (!HasFormOfToday(text) ||
        ReadDate(CalendarNumber::CE, text, TextOptions{}, record) != ParseStatus::Valid || record.year < 1) {
        return "must be a date YYYY-MM-DD of the years 1 to 9999";
    }
    today = LocalDate{record.year, record.month, record.day};
    return {};
}

}  // namespace calvoro
