#include "quicktext/FaultText.h"

#include <cstdint>

#include "datetext/Blanks.h"
#include "datetext/PrintableText.h"
#include "datetext/Utf8.h"

namespace calvoro {
namespace {

std::string Hex(std::uint32_t number, int leastDigits) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string hex;
    for (; number > 0 || leastDigits > 0; number /= 16, --leastDigits) {
        hex.insert(hex.begin(), kDigits[number % 16]);
    }
    return hex;
}

/// Foreign characters by their number too, as many look like others.
std::string CharacterName(std::string_view text) {
    const std::size_t length = Utf8CharacterLength(text);
    if (length == 0) return "byte \\x" + Hex(static_cast<std::uint8_t>(text.front()), 2);
    const std::uint32_t number = Utf8CharacterNumber(text);
    if (number == ' ') return "blank";
    std::string code = "U+" + Hex(number, 4);
    if (!CanBeSeen(number)) return code;
    const std::string quoted = "'" + std::string(text.substr(0, length)) + "'";
    return number < 0x80 ? quoted : quoted + " (" + code + ")";
}

}  // namespace

std::string FaultText(const StrictResult& result, std::string_view text) {
    const std::string column = "column " + std::to_string(CountCharacters(text.substr(0, result.place)) + 1);
    switch (result.fault) {
        case ReadFault::None:
        case ReadFault::TooLarge: return {};
        case ReadFault::Unexpected:
            return "unexpected " + CharacterName(text.substr(result.place)) + " at " + column;
        case ReadFault::EndsEarly:
            return TrimBlanks(text).empty() ? "empty" : "it ends too early, at " + column;
        case ReadFault::NoSuchMonth: return "no such month at " + column;
        case ReadFault::NoSuchDay: return "no such day at " + column;
        case ReadFault::NoSuchWeek: return "no such week at " + column;
        case ReadFault::NoSuchWeekday: return "no such weekday at " + column;
        case ReadFault::YearOfEra: return "years before the Common Era count from 1, at " + column;
        case ReadFault::DayZero: return "day number 0 is not read in this notation";
        case ReadFault::Fraction:
            return "a fraction of a day at " + column + ", which lies in civil day " +
                   std::to_string(result.jdn);
        case ReadFault::SeveralNotations: return "several notations have this form";
    }
    return {};
}

}  // namespace calvoro
