// Arbitrary bytes as an ordinal date: only the chosen form is accepted, with the day that its number has.

#include "calendar/DayNumber.h"
#include "calendar/OrdinalDate.h"
#include "datetext/Blanks.h"
#include "datetext/OrdinalText.h"
#include "tests/fuzz/FuzzInput.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace calvoro;
    using fuzz::Require;
    fuzz::FuzzInput input(data, size);
    const bool hyphen = input.Choose(2) == 0;
    const std::string text = input.Text();

    DateRecord record;
    const ParseStatus status = ParseOrdinalDate(text, hyphen, record);
    if (status != ParseStatus::Valid) {
        Require(record == DateRecord{});
        return 0;
    }
    Require(IsWithinOrdinalLimits(record.jdn));
    Require(OrdinalShape(WithoutBlanks(text)) == (hyphen ? TextShape::Hyphenated : TextShape::Compact));

    DateRecord other;
    Require(ParseOrdinalDate(text, !hyphen, other) == ParseStatus::NotValid);

    std::int32_t year = 0;
    std::int16_t dayOfYear = 0;
    JdnToOrdinal(record.jdn, year, dayOfYear);
    Require(year == record.year);
    Require(FormatOrdinalDate(year, dayOfYear, hyphen) == WithoutBlanks(text));
    return 0;
}
