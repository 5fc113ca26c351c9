// Arbitrary bytes as a day number: within the limits, or nothing.

#include "calendar/DayNumber.h"
#include "datetext/AnyNotation.h"
#include "datetext/DayNumberText.h"
#include "datetext/Utf8.h"
#include "tests/fuzz/FuzzInput.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace calvoro;
    using fuzz::Require;
    fuzz::FuzzInput input(data, size);
    const TextOptions options = input.ChooseOptions();
    const std::string text = input.Text();

    ParseStatus status = ParseStatus::NotValid;
    const std::int32_t number = ParseJdnText(text, status);
    Require(status == ParseStatus::Valid ? IsWithinDayLimits(number) && CountCharacters(text) <= 11
                                         : number == 0);

    // Under a date separator the same number, or none.
    DateRecord record;
    const ParseStatus underSeparator = ParseDayNumberDate(text, options.dateSeparator, record);
    if (underSeparator == ParseStatus::Valid) {
        Require(status == ParseStatus::Valid && record.jdn == number);
    } else {
        Require(record == DateRecord{});
    }

    // As a box reads it, only whole numbers pass, and they are rewritten as the same number.
    DateRecord prepared;
    std::string canonical;
    if (ReadDate(CalendarNumber::JDN, text, options, prepared, &canonical) == ParseStatus::Valid) {
        Require(canonical == WriteDate(CalendarNumber::JDN, prepared.jdn, options));
        DateRecord again;
        Require(ReadDate(CalendarNumber::JDN, canonical, options, again) == ParseStatus::Valid);
        Require(again == prepared);
    }
    return 0;
}
