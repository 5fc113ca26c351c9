// Arbitrary bytes as a Common Era or Julian date: what is accepted is a date that exists, its text reads
// back as the same record, and what is refused leaves no trace.

#include "calendar/DayNumber.h"
#include "calendar/EuroDate.h"
#include "datetext/EuroDateText.h"
#include "datetext/StrToDate.h"
#include "tests/fuzz/FuzzInput.h"

namespace {

using namespace calvoro;
using fuzz::Require;

void CheckReader(const std::string& text, char separator, CalendarNumber tag, DateFormat format) {
    DateRecord record;
    const ParseStatus status = ParseDateText(text, separator, tag, format, record);
    if (status != ParseStatus::Valid) {
        Require(record == DateRecord{});
        return;
    }
    Require(record.year <= kMaxYearMagnitude && record.year >= -kMaxYearMagnitude);

    DateRecord converted;
    converted.jdn = record.jdn;
    converted.calendar = record.calendar;
    jdn_to_euro_date(converted);
    Require(converted == record);

    for (const char thousands : {',', '.', kNoSeparator}) {
        if (thousands == separator)
            continue;  // ungrouping a year between the same dots is not this reader's task
        for (const bool withSuffix : {false, true}) {
            DateRecord again;
            const std::string written = FormatDateText(record, format, separator, thousands, withSuffix);
            Require(ParseDateText(written, separator, tag, format, again) == ParseStatus::Valid);
            Require(again == record);
        }
    }
}

void CheckSplitter(const std::string& text, std::int32_t format, std::int32_t calendar) {
    DateRecord record;
    const std::int32_t result = str_to_date(text, format, record, calendar);
    Require((result == kStrToDateOk) == (record != DateRecord{}));
    if (result != kStrToDateOk) return;
    Require(record.month >= 1 && record.month <= 12 && record.day >= 1 && record.day <= 31);
    Require(record.year <= kMaxYearMagnitude && record.year >= -kMaxYearMagnitude);
    Require(record.jdn == 0 && record.calendar == static_cast<CalendarCode>(calendar));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::FuzzInput input(data, size);
    const char separator = input.ChooseDateSeparator();
    const DateFormat format = input.ChooseDateFormat();
    const CalendarNumber tag = input.Choose(2) == 0 ? CalendarNumber::CE : CalendarNumber::JC;
    const std::string text = input.Text();
    CheckReader(text, separator, tag, format);
    CheckSplitter(text, static_cast<std::int32_t>(format), tag == CalendarNumber::CE ? 'G' : 'J');
    return 0;
}
