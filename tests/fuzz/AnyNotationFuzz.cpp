// Arbitrary bytes as a date in any notation under any options: what a box accepts, the box accepts again
// after rewriting it, and the same day in every other notation reads back from there.

#include "calendar/DayNumber.h"
#include "datetext/AnyNotation.h"
#include "tests/fuzz/FuzzInput.h"

namespace {

using namespace calvoro;
using fuzz::Require;

/// Dates that are written and refused: ISO week 53 of a year below 1, and day number 0 in the leap-week
/// notations.
bool IsKnownException(CalendarNumber notation, std::int32_t jdn, const std::string& text) {
    if (notation == CalendarNumber::LPW || notation == CalendarNumber::LPM) return jdn == 0;
    if (notation != CalendarNumber::ISO || text.find("W53") == std::string::npos) return false;
    return text.front() == '-' || text.starts_with("0W") || text.starts_with("0-W");
}

void CheckAllNotations(std::int32_t jdn, const TextOptions& options) {
    for (const Notation& notation : Notations()) {
        if (!CanWriteDate(notation.number, jdn)) continue;
        const std::string written = WriteDate(notation.number, jdn, options);
        const std::string tagged = written + " " + std::string(notation.tag);
        for (const std::string& text : {written, tagged}) {
            DateRecord record;
            std::string canonical;
            const ParseStatus status = ReadDate(notation.number, text, options, record, &canonical);
            if (IsKnownException(notation.number, jdn, written)) {
                Require(status == ParseStatus::NotValid);
            } else {
                Require(status == ParseStatus::Valid && record.jdn == jdn && canonical == written);
            }
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::FuzzInput input(data, size);
    const TextOptions options = input.ChooseOptions();
    const Notation& notation = Notations()[input.Choose(7)];
    const std::string text = input.Text();

    DateRecord record;
    std::string canonical = "untouched";
    const ParseStatus status = ReadDate(notation.number, text, options, record, &canonical);
    if (status != ParseStatus::Valid) {
        Require(record == DateRecord{} && canonical == "untouched");
        return 0;
    }

    DateRecord again;
    std::string canonicalAgain;
    Require(ReadDate(notation.number, canonical, options, again, &canonicalAgain) == ParseStatus::Valid);
    Require(again == record && canonicalAgain == canonical);

    // Typed years near the limit lie beyond the days that other notations need to take.
    if (IsWithinDayLimits(record.jdn)) CheckAllNotations(record.jdn, options);
    return 0;
}
