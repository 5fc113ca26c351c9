// What holds for every text of dates and numbers: what is written reads back, what is read can be written,
// and nothing that can be typed does more harm than being refused.

#include <gtest/gtest.h>

#include <array>
#include <cctype>
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
    EXPECT_TRUE(Holds(60000, [&] {
        const std::int32_t jdn = *generate::Day().as("day");
        const TextOptions options = *generate::Options().as("options");
        for (const Notation& notation : Notations()) {
            if (!CanWriteDate(notation.number, jdn)) continue;
            const std::string written = WriteDate(notation.number, jdn, options);
            RequireReadsBack(notation.number, jdn, written, written, options);
            exceptions += IsKnownException(notation.number, jdn, written) ? 1 : 0;
            ordinals += notation.number == CalendarNumber::ORD ? 1 : 0;
        }
    }));
    EXPECT_GT(exceptions, 50) << "the known exceptions must be among the cases";
    EXPECT_GT(ordinals, 5000) << "and so must the days of ordinal dates";
}

TEST(DateTextProperties, WhatIsWrittenReadsBackWithItsTagAndBlanksAround) {
    EXPECT_TRUE(Holds(15000, [] {
        const std::int32_t jdn = *generate::Day().as("day");
        const TextOptions options = *generate::Options().as("options");
        const std::string before(static_cast<std::size_t>(*generate::Number(0, 3)), ' ');
        const std::string behind(static_cast<std::size_t>(*generate::Number(0, 3)), ' ');
        const std::string between(static_cast<std::size_t>(*generate::Number(1, 3)), ' ');
        for (const Notation& notation : Notations()) {
            if (!CanWriteDate(notation.number, jdn)) continue;
            const std::string written = WriteDate(notation.number, jdn, options);
            const std::string typed = before + written + between + std::string(notation.tag) + behind;
            RequireReadsBack(notation.number, jdn, written, typed, options);
        }
    }));
}

TEST(DateTextProperties, WhatIsWrittenReadsBackAfterTheThousandsSeparatorWasChanged) {
    EXPECT_TRUE(Holds(15000, [] {
        const std::int32_t jdn = *generate::Day().as("day");
        const TextOptions options = *generate::Options().as("options when written");
        TextOptions changed = options;
        changed.thousandsSeparator = *rc::gen::element(',', '.', kNoSeparator);
        changed.digitGrouping = *rc::gen::element<std::string>(",", ".", "'", "\u202f", "");
        for (const Notation& notation : Notations()) {
            if (!CanWriteDate(notation.number, jdn)) continue;
            const std::string written = WriteDate(notation.number, jdn, options);
            const std::string rewritten = WriteDate(notation.number, jdn, changed);
            RequireReadsBack(notation.number, jdn, rewritten, written, changed);
        }
    }));
}

TEST(DateTextProperties, WhatCanBeReadStaysTheSameDateWhenItIsRewritten) {
    std::array<int, 10> valid{};
    EXPECT_TRUE(Holds(60000, [&] {
        const CalendarNumber notation = *generate::OfferedNotation().as("notation");
        const TextOptions options = *generate::Options().as("options");
        const std::string text = *rc::gen::oneOf(generate::AlmostADate(), generate::ThreeNumbers(),
                                                 generate::EditedDate(notation, options))
                                      .as("text");
        DateRecord record;
        std::string canonical = "untouched";
        ParseStatus status = ParseStatus::NotValid;
        try {
            status = ReadDate(notation, text, options, record, &canonical);
        } catch (const ArithmeticOverflow&) {
            return;  // any other exception fails the property
        }
        if (status != ParseStatus::Valid) {
            RC_ASSERT(canonical == "untouched");
            RC_ASSERT(record == DateRecord{});
            return;
        }
        ++valid[static_cast<std::size_t>(notation)];
        DateRecord again;
        std::string canonicalAgain;
        RC_ASSERT(ReadDate(notation, canonical, options, again, &canonicalAgain) == ParseStatus::Valid);
        RC_ASSERT(again == record);
        RC_ASSERT(canonicalAgain == canonical);
    }));
    for (const Notation& notation : Notations()) {
        EXPECT_GT(valid[static_cast<std::size_t>(notation.number)], 150) << notation.tag;
    }
}

TEST(DateTextProperties, ForeignCharactersChangeNothingInCommonEraAndJulianDates) {
    EXPECT_TRUE(Holds(15000, [] {
        const TextOptions options = *generate::Options().as("options");
        const std::string text = *generate::ThreeNumbers().as("text");
        std::string strewn = text;
        const auto at =
            static_cast<std::size_t>(*generate::Number(0, static_cast<std::int64_t>(text.size())));
        strewn.insert(
            at, *rc::gen::element<std::string>("x", " ", "\u00e4", "()", ",", ";", std::string(1, '\0')));
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

TEST(DateTextProperties, StrToDateAcceptsExactlyTheDaysOfAMonth) {
    EXPECT_TRUE(Holds(20000, [] {
        const std::int32_t year =
            *rc::gen::oneOf(generate::Number(-500, 2500), generate::Number(-5'800'100, 5'800'100)).as("year");
        const std::int32_t month = *generate::Number(0, 13).as("month");
        const std::int32_t day = *generate::Number(0, 33).as("day");
        const bool julian = *rc::gen::arbitrary<bool>().as("julian");
        const std::int32_t format = *generate::Number(0, 2).as("format");
        const std::string separator = *rc::gen::element<std::string>("-", "/", ".");
        const std::string y = std::to_string(year);
        const std::string m = std::to_string(month);
        const std::string d = std::to_string(day);
        const std::string text = format == 2   ? y + separator + m + separator + d
                                 : format == 1 ? d + separator + m + separator + y
                                               : m + separator + d + separator + y;

        DateRecord record;
        const std::int32_t result = str_to_date(text, format, record, julian ? 'J' : 'G');
        const bool plausible = month >= 1 && month <= 12 && day >= 1 && day <= 31;
        const bool far = year > 5'800'000 || year < -5'800'000;
        if (plausible && far) {
            RC_ASSERT(result == kStrToDateYearOutOfRange);
        } else if (plausible && day <= naive::LengthOf(year, month, julian)) {
            RC_ASSERT(result == kStrToDateOk);
            RC_ASSERT(record ==
                      (DateRecord{year, month, day, julian ? CalendarCode::J : CalendarCode::G, 0, 0}));
        } else {
            RC_ASSERT(result != kStrToDateOk);
            RC_ASSERT(result != kStrToDateYearOutOfRange);
        }
    }));
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
    EXPECT_TRUE(Holds(20000, [] {
        const std::int32_t number =
            *rc::gen::oneOf(generate::Number(-12000, 12000),
                            generate::Number(std::numeric_limits<std::int32_t>::min(),
                                             std::numeric_limits<std::int32_t>::max()))
                 .as("number");
        const char separator = *rc::gen::element(',', '.', '\'').as("separator");
        const std::string plain = std::to_string(number);
        char buffer[kThousandsBufferSize];
        separate_thousands(plain.c_str(), separator, buffer);
        std::string grouped = buffer;
        RC_ASSERT(grouped == NaiveGrouping(plain, separator));
        RC_ASSERT(ThousandsText(number, separator) == grouped);
        RC_ASSERT(ThousandsText(plain, separator) == grouped);
        const bool hasGroups = number >= 1000 || number <= -1000;
        RC_ASSERT(DropWellGroupedSeparators(grouped, separator) == hasGroups);
        RC_ASSERT(grouped == plain);
    }));
}

TEST(DateTextProperties, DifferencesReadBackUnderEverySeparator) {
    EXPECT_TRUE(Holds(20000, [] {
        const std::int32_t number =
            *rc::gen::oneOf(generate::Number(-2'099'999'999, 2'099'999'999), generate::Number(-2000, 2000))
                 .as("number");
        const char separator = *rc::gen::element(',', '.', kNoSeparator).as("separator");
        std::string text = ThousandsText(number, separator);
        if (number >= 0 && *rc::gen::arbitrary<bool>()) text.insert(0, "+");
        std::int32_t read = 0;
        RC_ASSERT(ReadDifference(" " + text + " ", read) == ParseStatus::Valid);
        RC_ASSERT(read == number);
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
    EXPECT_TRUE(Holds(6000, [&] {
        const auto character = rc::gen::weightedElement<char>(
            {{8, '0'}, {8, '9'}, {2, ' '}, {2, ','}, {1, '-'}, {1, '+'}, {1, '.'}, {1, '/'}, {1, ':'}});
        const auto text = *rc::gen::resize(8, rc::gen::container<std::string>(character)).as("text");
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
    EXPECT_TRUE(Holds(1500, [&] {
        const std::int32_t year = *generate::Number(-5'799'999, 5'799'999).as("year");
        const std::int32_t month = *generate::Number(1, 12).as("month");
        const bool julian = *rc::gen::arbitrary<bool>().as("julian");
        const bool mondayFirst = *rc::gen::arbitrary<bool>().as("Monday first");
        const MonthGrid grid = DrawMonth(year, month, julian ? CalendarCode::J : CalendarCode::G,
                                         mondayFirst ? WeekStart::Monday : WeekStart::Sunday, kWeekdays);
        // 400 Common Era years are whole weeks, and so are 28 Julian ones; both cycles fit 2800 years.
        const std::int32_t same = 1800 + ((year - 1800) % 2800 + 2800) % 2800 % (julian ? 28 : 400);
        RC_ASSERT(grid.text == naive::Draw({same, month, julian, mondayFirst}));
    }));
}

}  // namespace
}  // namespace calvoro
