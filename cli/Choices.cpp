#include "cli/Choices.h"

#include <algorithm>

#include "calendar/DateRecord.h"
#include "datetext/AnyNotation.h"

namespace calvoro {
namespace {

char LowerCase(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

// The reader of dates drops what it does not know; here the form must be exact.
bool HasFormOfToday(std::string_view text) {
    constexpr std::string_view kForm = "dddd-dd-dd";
    return std::equal(text.begin(), text.end(), kForm.begin(), kForm.end(), [](char character, char form) {
        return form == '-' ? character == '-' : character >= '0' && character <= '9';
    });
}

}  // namespace

bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return LowerCase(x) == LowerCase(y); });
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
