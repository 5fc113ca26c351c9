// Arbitrary bytes as an ISO week date: what is accepted is the date that its day number has, in both forms.

#include "calendar/DayNumber.h"
#include "datetext/Blanks.h"
#include "datetext/IsoWeekText.h"
#include "tests/fuzz/FuzzInput.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace calvoro;
    using fuzz::Require;
    const std::string text = fuzz::FuzzInput(data, size).Text();

    IsoWeekDate date;
    const ParseStatus status = ParseIsoWeekDate(text, date);
    const TextShape shape = IsoShape(WithoutBlanks(text));
    if (status == ParseStatus::OutOfRange) Require(shape != TextShape::None);
    if (status != ParseStatus::Valid) {
        Require(date == IsoWeekDate{});
        return 0;
    }
    Require(shape != TextShape::None);
    Require(date.set == 1 && date.year < kMaxYearMagnitude && date.year > -kMaxYearMagnitude);

    IsoWeekDate converted;
    converted.jdn = date.jdn;
    converted.set = 1;
    JdnToIsoWeekDate(converted);
    Require(converted == date);

    for (const bool hyphen : {false, true}) {
        const std::string written = FormatIsoWeekDate(date, hyphen);
        Require(IsoShape(written) == (hyphen ? TextShape::Hyphenated : TextShape::Compact));
        IsoWeekDate again;
        Require(ParseIsoWeekDate(written, again) == ParseStatus::Valid);
        Require(again == date);
    }
    return 0;
}
