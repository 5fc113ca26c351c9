#include "cli/Conversion.h"

#include <cstdint>
#include <string>
#include <utility>

#include "calendar/CheckedInt.h"
#include "calendar/DateRecord.h"
#include "calendar/Weekday.h"
#include "cli/QuickDate.h"
#include "datetext/AnyNotation.h"
#include "datetext/Tags.h"
#include "text/DateNames.h"

namespace calvoro {
namespace {

void AppendCsvField(std::string_view field, OutputStream& output) {
    if (field.find_first_of(",\"\r\n") == std::string_view::npos) return output.Append(field);
    output.Append('"');
    for (const char character : field) {
        if (character == '"') output.Append('"');
        output.Append(character);
    }
    output.Append('"');
}

}  // namespace

Conversion::Conversion(const ConvertOptions& options)
    : options_(options), readsQuickShape_(HasQuickShape(options.from, options.text)) {
    for (const CalendarNumber target : options.targets) {
        std::string suffix = options.tag ? " " + std::string(TagText(target)) : std::string();
        targets_.push_back({target, HasQuickShape(target, options.text), std::move(suffix)});
    }
}

ConversionOutcome Conversion::Convert(std::string_view text, OutputStream& output) const {
    std::int32_t jdn = 0;
    switch (ReadDay(text, jdn)) {
        case ParseStatus::Valid: break;
        case ParseStatus::NotValid: return {Refusal::NotValid, options_.from};
        case ParseStatus::OutOfRange: return {Refusal::OutOfRange, options_.from};
    }
    if (!options_.emptyWhereUnwritable) {
        for (const Target& target : targets_) {
            if (!CanWriteDate(target.notation, jdn)) return {Refusal::OutOfRange, target.notation};
        }
    }
    bool isFirst = true;
    for (const Target& target : targets_) {
        if (!isFirst) output.Append(options_.csv ? ',' : '\t');
        isFirst = false;
        AppendDate(target, jdn, output);
    }
    if (options_.weekday) {
        output.Append(options_.csv ? ',' : '\t');
        output.Append(WeekdayName(LanguageEnglish, euro_day_of_week(jdn)));
    }
    return {};
}

ParseStatus Conversion::ReadDay(std::string_view text, std::int32_t& jdn) const {
    if (readsQuickShape_ && ReadQuickDate(text, options_.from, jdn)) return ParseStatus::Valid;
    try {
        DateRecord record;
        const ParseStatus status = ReadDate(options_.from, text, options_.text, record);
        jdn = record.jdn;
        return status;
    } catch (const ArithmeticOverflow&) {
        return ParseStatus::OutOfRange;
    }
}

void Conversion::AppendDate(const Target& target, std::int32_t jdn, OutputStream& output) const {
    if (target.hasQuickShape && WriteQuickDate(target.notation, jdn, output.Room(kQuickDateLength))) {
        output.Commit(kQuickDateLength);
        output.Append(target.suffix);
    } else if (CanWriteDate(target.notation, jdn)) {
        const std::string date = WriteDate(target.notation, jdn, options_.text) + target.suffix;
        if (options_.csv) return AppendCsvField(date, output);
        output.Append(date);
    }
}

}  // namespace calvoro
