// What holds for every text of dates and numbers: what is written reads back, what is read can be written,
// and nothing that can be typed does more harm than being refused.

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <string>

#include "calendar/CheckedInt.h"
#include "datetext/AnyNotation.h"
#include "datetext/DayCountText.h"
#include "datetext/EuroDateText.h"
#include "datetext/MonthText.h"
#include "datetext/StrToDate.h"
#include "datetext/Thousands.h"
#include "tests/datetext/NaiveMonth.h"
#include "tests/properties/DateGenerators.h"
#include "tests/properties/Property.h"

namespace calvoro {
namespace {

/// The only dates that the program writes and does not read: ISO week 53 of a year below 1, and day number
/// 0 in the leap-week notations.
bool IsKnownException(CalendarNumber notation, std::int32_t jdn, const std::string& text) {
    if (notation == CalendarNumber::LPW || notation == CalendarNumber::LPM) return jdn == 0;
    if (notation != CalendarNumber::ISO || text.find("W53") == std::string::npos) return false;
    return text.front() == '-' || text.starts_with("0W") || text.starts_with("0-W");
}

/// Reads a text that the program wrote for a day, as it stands or with something around it.
void RequireReadsBack(CalendarNumber notation, std::int32_t jdn, const std::string& written,
                      const std::string& typed, const TextOptions& options) {
    DateRecord record;
    std::string canonical;
    const ParseStatus status = ReadDate(notation, typed, options, record, &canonical);
    if (IsKnownException(notation, jdn, written)) {
        RC_ASSERT(status == ParseStatus::NotValid);
    } else {
        RC_ASSERT(status == ParseStatus::Valid);
        RC_ASSERT(record.jdn == jdn);
        RC_ASSERT(canonical == written);
    }
}

TEST(DateTextProperties, WhatIsWrittenReadsBackInEveryNotation) {
    int exceptions = 0;
    int ordinals = 0;
    const auto days = generate::Day();
    const auto optionSets = generate::Options();
    EXPECT_TRUE(Holds(25000, [&] {
        const std::int32_t jdn = *days.as("day");
        const TextOptions options = *optionSets.as("options");
        for (const Notation& notation : Notations()) {
            if (!CanWriteDate(notation.number, jdn)) continue;
            const std::string written = WriteDate(notation.number, jdn, options);
            RequireReadsBack(notation.number, jdn, written, written, options);
            exceptions += IsKnownException(notation.number, jdn, written) ? 1 : 0;
            ordinals += notation.number == CalendarNumber::ORD ? 1 : 0;
        }
    }));
    EXPECT_GT(exceptions, 60) << "the known exceptions must be among the cases";
    EXPECT_GT(ordinals, 3000) << "and so must the days of ordinal dates";
}

TEST(DateTextProperties, WhatIsWrittenReadsBackWithItsTagAndBlanksAround) {
    const auto days = generate::Day();
    const auto optionSets = generate::Options();
    const auto blanks = rc::gen::element<std::string>("", " ", "   ");
    EXPECT_TRUE(Holds(4000, [&] {
        const std::int32_t jdn = *days.as("day");
        const TextOptions options = *optionSets.as("options");
        const std::string before = *blanks;
        const std::string between = *blanks + " ";
        const std::string behind = *blanks;
        for (const Notation& notation : Notations()) {
            if (!CanWriteDate(notation.number, jdn)) continue;
            const std::string written = WriteDate(notation.number, jdn, options);
            const std::string typed = before + written + between + std::string(notation.tag) + behind;
            RequireReadsBack(notation.number, jdn, written, typed, options);
        }
    }));
}

TEST(DateTextProperties, WhatIsWrittenReadsBackAfterTheThousandsSeparatorWasChanged) {
    const auto days = generate::Day();
    const auto optionSets = generate::Options();
    EXPECT_TRUE(Holds(4000, [&] {
        const std::int32_t jdn = *days.as("day");
        const TextOptions options = *optionSets.as("options when written");
        TextOptions changed = options;
        const TextOptions other = *optionSets.as("options when read");
        changed.thousandsSeparator = other.thousandsSeparator;
        changed.digitGrouping = other.digitGrouping;
        for (const Notation& notation : Notations()) {
            if (!CanWriteDate(notation.number, jdn)) continue;
            const std::string written = WriteDate(notation.number, jdn, options);
            const std::string rewritten = WriteDate(notation.number, jdn, changed);
            RequireReadsBack(notation.number, jdn, rewritten, written, changed);
        }
    }));
}

/// Reads any text.
/// returns  whether it is a date; it then stays the same date when it is rewritten
bool ReadsToItself(CalendarNumber notation, const std::string& text, const TextOptions& options) {
    DateRecord record;
    std::string canonical = "untouched";
    const ParseStatus status = ReadDate(notation, text, options, record, &canonical);
    if (status != ParseStatus::Valid) {
        RC_ASSERT(canonical == "untouched");
        RC_ASSERT(record == DateRecord{});
        return false;
    }
    DateRecord again;
    std::string canonicalAgain;
    RC_ASSERT(ReadDate(notation, canonical, options, again, &canonicalAgain) == ParseStatus::Valid);
    RC_ASSERT(again == record);
    RC_ASSERT(canonicalAgain == canonical);
    return true;
}

TEST(DateTextProperties, AnyTextIsRefusedOrStaysTheSameDateWhenItIsRewritten) {
    int dates = 0;
    const auto optionSets = generate::Options();
    const auto texts = rc::gen::oneOf(generate::AlmostADate(), generate::ThreeNumbers());
    EXPECT_TRUE(Holds(6000, [&] {
        const TextOptions options = *optionSets.as("options");
        const std::string text = *texts.as("text");
        for (const Notation& notation : Notations()) {
            dates += ReadsToItself(notation.number, text, options) ? 1 : 0;
        }
    }));
    EXPECT_GT(dates, 300);
}

TEST(DateTextProperties, MistypedDateIsRefusedOrStaysTheSameDateWhenItIsRewritten) {
    std::array<int, 10> dates{};
    const auto days =
        rc::gen::oneOf(generate::Day(), generate::Number(kFirstFourDigitDay, kLastFourDigitDay));
    const auto optionSets = generate::Options();
    const auto edits = generate::OneEdit();
    EXPECT_TRUE(Holds(6000, [&] {
        const std::int32_t jdn = *days.as("day");
        const TextOptions options = *optionSets.as("options");
        const generate::Edit edit = *edits.as("edit");
        for (const Notation& notation : Notations()) {
            if (!CanWriteDate(notation.number, jdn)) continue;
            const std::string text = edit.AppliedTo(WriteDate(notation.number, jdn, options));
            const bool date = ReadsToItself(notation.number, text, options);
            dates[static_cast<std::size_t>(notation.number)] += date ? 1 : 0;
        }
    }));
    for (const Notation& notation : Notations()) {
        EXPECT_GT(dates[static_cast<std::size_t>(notation.number)], 150) << notation.tag;
    }
}

TEST(DateTextProperties, ForeignCharactersChangeNothingInCommonEraAndJulianDates) {
    const auto optionSets = generate::Options();
    const auto texts = generate::ThreeNumbers();
    const auto places = generate::Number(0, 1000);
    const auto foreigners =
        rc::gen::element<std::string>("x", " ", "\u00e4", "()", ",", ";", std::string(1, '\0'));
    EXPECT_TRUE(Holds(4000, [&] {
        const TextOptions options = *optionSets.as("options");
        const std::string text = *texts.as("text");
        std::string strewn = text;
        strewn.insert(static_cast<std::size_t>(*places) % (text.size() + 1), *foreigners);
        for (const CalendarNumber notation : {CalendarNumber::CE, CalendarNumber::JC}) {
            DateRecord plain;
            DateRecord foreign;
            const ParseStatus expected =
                ParseDateText(text, options.dateSeparator, notation, options.dateFormat, plain);
            RC_ASSERT(ParseDateText(strewn, options.dateSeparator, notation, options.dateFormat, foreign) ==
                      expected);
            RC_ASSERT(foreign == plain);
        }
    }));
}

/// The rule of str_to_date for three plain numbers.
std::int32_t NaiveStatus(std::int32_t year, std::int32_t month, std::int32_t day, bool julian,
                         std::int32_t other) {
    if (month < 1 || month > 12 || day < 1 || day > 31) return other;
    if (year > 5'800'000 || year < -5'800'000) return kStrToDateYearOutOfRange;
    return day <= naive::LengthOf(year, month, julian) ? kStrToDateOk : other;
}

TEST(DateTextProperties, StrToDateAcceptsExactlyTheDaysOfAMonth) {
    constexpr std::int32_t kOther = 1;
    std::array<int, 3> results{};
    const auto years = rc::gen::oneOf(generate::Number(-500, 2500), generate::Number(5'799'995, 5'800'005),
                                      generate::Number(-6'000'000, 6'000'000));
    const auto months = generate::Number(0, 13);
    const auto days = rc::gen::oneOf(generate::Number(0, 33), generate::Number(28, 31));
    EXPECT_TRUE(Holds(4000, [&] {
        const std::int32_t year = *years.as("year");
        const std::int32_t month = *months.as("month");
        const std::int32_t day = *days.as("day");
        const std::string y = std::to_string(year);
        const std::string m = std::to_string(month);
        const std::string d = std::to_string(day);
        for (const std::string separator : {"-", "/", "."}) {
            const std::array<std::string, 3> texts{m + separator + d + separator + y,
                                                   d + separator + m + separator + y,
                                                   y + separator + m + separator + d};
            for (std::int32_t format = 0; format < 3; ++format) {
                for (const char calendar : {'G', 'J'}) {
                    DateRecord record;
                    const std::int32_t result =
                        str_to_date(texts[static_cast<std::size_t>(format)], format, record, calendar);
                    const bool known = result == kStrToDateOk || result == kStrToDateYearOutOfRange;
                    const std::int32_t expected = NaiveStatus(year, month, day, calendar == 'J', kOther);
                    RC_ASSERT((known ? result : kOther) == expected);
                    const DateRecord date{year, month, day, static_cast<CalendarCode>(calendar), 0, 0};
                    RC_ASSERT(record == (result == kStrToDateOk ? date : DateRecord{}));
                    ++results[expected == kStrToDateOk ? 0 : expected == kOther ? 1 : 2];
                }
            }
        }
    }));
    for (const int result : results) EXPECT_GT(result, 3000);
}

/// Groups digits by counting from the right.
std::string NaiveGrouping(const std::string& number, char separator) {
    std::string reversed;
    int digits = 0;
    for (auto at = number.rbegin(); at != number.rend(); ++at) {
        if (*at != '-' && digits > 0 && digits % 3 == 0) reversed += separator;
        if (*at != '-') ++digits;
        reversed += *at;
    }
    return {reversed.rbegin(), reversed.rend()};
}

TEST(DateTextProperties, ThousandsSeparatorsStandBetweenGroupsOfThreeAndComeOutAgain) {
    const auto numbers = rc::gen::oneOf(
        generate::Number(-12000, 12000),
        generate::Number(std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()));
    EXPECT_TRUE(Holds(6000, [&] {
        const std::int32_t number = *numbers.as("number");
        const std::string plain = std::to_string(number);
        for (const char separator : {',', '.', '\''}) {
            char buffer[kThousandsBufferSize];
            separate_thousands(plain.c_str(), separator, buffer);
            std::string grouped = buffer;
            RC_ASSERT(grouped == NaiveGrouping(plain, separator));
            RC_ASSERT(ThousandsText(number, separator) == grouped);
            RC_ASSERT(ThousandsText(plain, separator) == grouped);
            const bool hasGroups = number >= 1000 || number <= -1000;
            RC_ASSERT(DropWellGroupedSeparators(grouped, separator) == hasGroups);
            RC_ASSERT(grouped == plain);
        }
    }));
}

TEST(DateTextProperties, DifferencesReadBackUnderEverySeparator) {
    const auto numbers =
        rc::gen::oneOf(generate::Number(-2'099'999'999, 2'099'999'999), generate::Number(-2000, 2000));
    EXPECT_TRUE(Holds(6000, [&] {
        const std::int32_t number = *numbers.as("number");
        for (const char separator : {',', '.', kNoSeparator}) {
            const std::string text = ThousandsText(number, separator);
            std::int32_t read = 0;
            RC_ASSERT(ReadDifference(" " + text + " ", read) == ParseStatus::Valid);
            RC_ASSERT(read == number);
            RC_ASSERT((ReadDifference("+" + text, read) == ParseStatus::Valid) == (number >= 0));
            RC_ASSERT(read == number);
        }
    }));
}

/// The rule of IsDigits, one character after the other.
bool NaiveIsDigits(std::string text, bool signAllowed, bool commasAllowed) {
    while (!text.empty() && text.front() == ' ') text.erase(0, 1);
    while (!text.empty() && text.back() == ' ') text.pop_back();
    if (signAllowed && !text.empty() && (text.front() == '+' || text.front() == '-')) text.erase(0, 1);
    if (commasAllowed) std::erase(text, ',');
    return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

TEST(DateTextProperties, IsDigitsFollowsItsRule) {
    int digitsOnly = 0;
    const auto character = rc::gen::weightedElement<char>(
        {{8, '0'}, {8, '9'}, {2, ' '}, {2, ','}, {1, '-'}, {1, '+'}, {1, '.'}, {1, '/'}, {1, ':'}});
    const auto texts = rc::gen::resize(8, rc::gen::container<std::string>(character));
    EXPECT_TRUE(Holds(6000, [&] {
        const std::string text = *texts.as("text");
        for (const bool signAllowed : {false, true}) {
            for (const bool commasAllowed : {false, true}) {
                const bool expected = NaiveIsDigits(text, signAllowed, commasAllowed);
                RC_ASSERT(IsDigits(text, signAllowed, commasAllowed) == expected);
                digitsOnly += expected ? 1 : 0;
            }
        }
    }));
    EXPECT_GT(digitsOnly, 1000);
}

TEST(DateTextProperties, MonthsAreDrawnAlikeAfterWholeCyclesOfYears) {
    constexpr WeekdayWords kWeekdays{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                     "Thursday", "Friday", "Saturday"};
    const auto years = generate::Number(-5'799'999, 5'799'999);
    const auto months = generate::Number(1, 12);
    EXPECT_TRUE(Holds(1000, [&] {
        const std::int32_t year = *years.as("year");
        const std::int32_t month = *months.as("month");
        for (const bool julian : {false, true}) {
            // 400 Common Era years are whole weeks, and so are 28 Julian ones.
            const std::int32_t cycle = julian ? 28 : 400;
            const std::int32_t same = 2000 + (year % cycle + cycle) % cycle;
            for (const bool mondayFirst : {false, true}) {
                const MonthGrid grid =
                    DrawMonth(year, month, julian ? CalendarCode::J : CalendarCode::G,
                              mondayFirst ? WeekStart::Monday : WeekStart::Sunday, kWeekdays);
                // 2000 is a multiple of 400, and 1988 of 28.
                RC_ASSERT(grid.text == naive::Draw({julian ? same - 12 : same, month, julian, mondayFirst}));
            }
        }
    }));
}

}  // namespace
}  // namespace calvoro
