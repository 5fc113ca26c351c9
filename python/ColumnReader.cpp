#include "python/ColumnReader.h"

#include "datetext/AnyNotation.h"
#include "datetext/Tags.h"
#include "quicktext/FaultText.h"

namespace calvoro {

ColumnReader::ColumnReader(CalendarNumber notation, const TextOptions& options, bool lenient)
    : strict_(notation, options), options_(options), lenient_(lenient) {}

bool ColumnReader::Read(std::string_view text, std::int32_t& jdn) const {
    if (!lenient_) {
        const StrictResult result = strict_.Read(text);
        jdn = result.jdn;
        return result.status == ParseStatus::Valid;
    }
    DateRecord record;
    const ParseStatus status = ReadDate(Notation(), text, options_, record);
    jdn = record.jdn;
    return status == ParseStatus::Valid;
}

std::string ColumnReader::Reason(std::string_view text) const {
    StrictResult result;
    if (lenient_) {
        DateRecord record;
        result.status = ReadDate(Notation(), text, options_, record);
    } else {
        result = strict_.Read(text);
    }
    std::string reason = result.status == ParseStatus::OutOfRange ? "out of range for " : "not a ";
    reason.append(TagText(Notation()));
    if (result.status != ParseStatus::OutOfRange) reason += " date";
    const std::string fault = lenient_ ? std::string() : FaultText(result, text);
    return fault.empty() ? reason : reason + ": " + fault;
}

}  // namespace calvoro
