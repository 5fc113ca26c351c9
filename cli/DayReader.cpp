#include "cli/DayReader.h"

#include "datetext/AnyNotation.h"
#include "datetext/Digits.h"
#include "datetext/Tags.h"
#include "quicktext/FaultText.h"

namespace calvoro {

DayReader::DayReader(CalendarNumber from, Reading reading, const TextOptions& options)
    : reading_(reading), options_(options), strict_(from, options), auto_(options) {}

AutoResult DayReader::Read(std::string_view text) const {
    if (reading_ == Reading::Auto) return auto_.Read(text);
    if (reading_ == Reading::Lenient) return ReadLenient(text);
    return {strict_.Read(text), strict_.Notation()};
}

AutoResult DayReader::ReadLenient(std::string_view text) const {
    DateRecord record;
    const ParseStatus status = ReadDate(strict_.Notation(), text, options_, record);
    return {{status, ReadFault::None, record.jdn, 0}, strict_.Notation()};
}

bool MayStandInADate(char character, const TextOptions& options) {
    return IsDigit(character) || std::string_view("-/.W").find(character) != std::string_view::npos ||
           character == options.thousandsSeparator;
}

std::string RefusalText(const AutoResult& answer, std::string_view text) {
    if (answer.result.fault == ReadFault::SeveralNotations)
        return "ambiguous, " + FaultText(answer.result, text);
    std::string refusal =
        answer.result.status == ParseStatus::OutOfRange ? "out of range in " : "not valid in ";
    refusal.append(answer.notation ? TagText(*answer.notation) : "any notation");
    const std::string fault = FaultText(answer.result, text);
    return fault.empty() ? refusal : refusal + ", " + fault;
}

}  // namespace calvoro
