// Arbitrary bytes as a date of the leap-week calendar, in both forms: what is accepted reads back from its
// own text, and regular dates are those that their day numbers have.

#include "calendar/DayNumber.h"
#include "datetext/LeapWeekText.h"
#include "tests/fuzz/FuzzInput.h"

namespace {

using namespace calvoro;
using fuzz::Require;

using Reader = ParseStatus (*)(std::string_view, LeapWeekDate&);
using Writer = std::string (*)(const LeapWeekDate&, bool, std::string_view);

/// Reads a text; true when it is a date that the calendar accepts.
bool Check(const std::string& text, Reader read, Writer write, LeapWeekDate& date) {
    const ParseStatus status = read(text, date);
    if (status != ParseStatus::Valid || date.status < 0) return false;
    Require(date.year <= kMaxYearMagnitude && date.year >= -kMaxYearMagnitude && date.jdn != 0);
    for (const char* grouping : {",", ".", "'", "\u202f", ""}) {
        for (const bool withSuffix : {false, true}) {
            LeapWeekDate again;
            Require(read(write(date, withSuffix, grouping), again) == ParseStatus::Valid);
            Require(again == date);
        }
    }
    return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text = fuzz::FuzzInput(data, size).Text();
    LeapWeekDate week;
    if (Check(text, ParseLpwText, FormatLpwText, week)) {
        const bool regular = week.week >= 1 && week.week <= 52 && week.weekday >= 1;
        LeapWeekDate converted;
        converted.jdn = week.jdn;
        JdnToWeekForm(converted);
        if (regular) Require(converted == week);
    }
    LeapWeekDate month;
    if (Check(text, ParseLpmText, FormatLpmText, month)) {
        const bool regular = month.month >= 1 && month.day >= 1;
        LeapWeekDate converted;
        converted.jdn = month.jdn;
        JdnToLpm(converted);
        if (regular) Require(converted == month);
    }
    return 0;
}
