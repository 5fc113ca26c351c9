#include "quicktext/StrictText.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace calvoro {
namespace {

using enum ReadFault;
constexpr CalendarNumber kCE = CalendarNumber::CE;
constexpr CalendarNumber kJC = CalendarNumber::JC;
constexpr CalendarNumber kISO = CalendarNumber::ISO;
constexpr CalendarNumber kORD = CalendarNumber::ORD;
constexpr CalendarNumber kLPM = CalendarNumber::LPM;
constexpr CalendarNumber kLPW = CalendarNumber::LPW;
constexpr CalendarNumber kJDN = CalendarNumber::JDN;

TextOptions With(DateFormat format, char separator) {
    TextOptions options;
    options.dateFormat = format;
    options.dateSeparator = separator;
    return options;
}

TextOptions Compact() {
    TextOptions options;
    options.hyphen = false;
    return options;
}

TextOptions Grouped(const std::string& digitGrouping) {
    TextOptions options;
    options.digitGrouping = digitGrouping;
    return options;
}

const TextOptions kPlain;
const TextOptions kDmy = With(DateFormat::DMY, '-');
const TextOptions kDmyDots = With(DateFormat::DMY, '.');
const TextOptions kYmdDots = With(DateFormat::YMD, '.');
const TextOptions kMdySlashes = With(DateFormat::MDY, '/');

struct DayRow {
    CalendarNumber notation;
    TextOptions options;
    std::string text;
    std::int32_t jdn;
};
void PrintTo(const DayRow& row, std::ostream* out) {
    *out << row.text;
}

class StrictTextOfADay : public testing::TestWithParam<DayRow> {};

TEST_P(StrictTextOfADay, IsRead) {
    const DayRow& row = GetParam();
    EXPECT_EQ(ReadStrictText(row.notation, row.options, row.text), ValidDay(row.jdn)) << row.text;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, StrictTextOfADay,
    testing::Values(
        // Every notation, with blanks around it and with its tag.
        DayRow{kCE, kPlain, "2024-03-15", 2460385}, DayRow{kCE, kPlain, "  2024-03-15 CE ", 2460385},
        DayRow{kJC, kPlain, "2024-03-02 JC", 2460385}, DayRow{kISO, kPlain, "2024-W11-5 ISO", 2460385},
        DayRow{kORD, kPlain, "2024-075 ORD", 2460385}, DayRow{kLPM, kPlain, "2024-03-19 LPM", 2460385},
        DayRow{kLPW, kPlain, "2024-12-5 LPW", 2460385}, DayRow{kJDN, kPlain, "2460385   JDN", 2460385},
        // Both forms of ISO week dates whatever the option says, ordinal dates as it says.
        DayRow{kISO, kPlain, "2024W115", 2460385}, DayRow{kISO, Compact(), "2024-W11-5", 2460385},
        DayRow{kORD, Compact(), "2024075", 2460385},
        // Few digits, many zeros.
        DayRow{kCE, kPlain, "2024-3-5", 2460375}, DayRow{kCE, kPlain, "44-03-15", 1737205},
        DayRow{kCE, kPlain, "-000044-03-15", 1705063}, DayRow{kJDN, kPlain, "0000000000", 0},
        // Orders and separators; negative years in front and last.
        DayRow{kCE, kDmy, "15-03-2024", 2460385}, DayRow{kCE, kDmyDots, "15.3.2024", 2460385},
        DayRow{kCE, kMdySlashes, "03/15/2024", 2460385}, DayRow{kCE, kYmdDots, "2024.03.15", 2460385},
        DayRow{kCE, kPlain, "-44-03-15", 1705063}, DayRow{kCE, kDmy, "15-03--44", 1705063},
        DayRow{kCE, kDmy, "15-03-(-44)", 1705063}, DayRow{kCE, kMdySlashes, "03/15/(-44) CE", 1705063},
        // Grouped years and day numbers, with either separator.
        DayRow{kCE, kPlain, "12,345-06-07", 6230136}, DayRow{kCE, kPlain, "12.345-06-07", 6230136},
        DayRow{kCE, kYmdDots, "12.345.06.07", 6230136}, DayRow{kCE, kYmdDots, "12,345.06.07", 6230136},
        DayRow{kCE, kDmyDots, "07.06.12.345", 6230136}, DayRow{kCE, kDmyDots, "7.6.(-1.234.567)", -449195120},
        DayRow{kCE, kYmdDots, "-1.234.567.06.07", -449195120}, DayRow{kJDN, kPlain, "2,460,385", 2460385},
        DayRow{kJDN, kPlain, "-2.460.385 JDN", -2460385}, DayRow{kJDN, kPlain, "1.234", 1234},
        // Leap-week years with the grouping of the options as well.
        DayRow{kLPW, kPlain, "12,345-24-4", 6230136}, DayRow{kLPM, kPlain, "12.345-06-11", 6230136},
        DayRow{kLPW, Grouped(" "), "12 345-24-4 LPW", 6230136},
        DayRow{kLPW, Grouped("\u202f"), "12\u202f345-24-4", 6230136},
        // U+2212 is a minus where one may stand.
        DayRow{kCE, kPlain, "\u221244-03-15", 1705063}, DayRow{kCE, kDmy, "15-03-(\u221244)", 1705063},
        DayRow{kISO, kPlain, "\u221244-W11-4", 1705063}, DayRow{kLPW, kPlain, "\u221244-12-4", 1705063},
        DayRow{kJDN, kPlain, "\u22121", -1},
        // Years before the Common Era, with the tag behind the era.
        DayRow{kCE, kPlain, "0044-03-13 BCE", 1705426}, DayRow{kCE, kPlain, "44-03-13 BC", 1705426},
        DayRow{kJC, kPlain, "0044-03-15 BCE JC", 1705426}, DayRow{kCE, kDmy, "13-03-0044 BCE CE", 1705426},
        DayRow{kCE, kPlain, "1-12-31 BC", 1721425}, DayRow{kCE, kPlain, "5-02-29 BCE", 1719658},
        DayRow{kCE, kPlain, "12,346-01-01 BCE", -2787858},
        DayRow{kCE, kPlain, "5800001-01-01 BC", -2116685440},
        // Deliberate: as their readers do, leap-week dates take any week, month 0 and day 0.
        DayRow{kLPW, kPlain, "2024-54-1", 2460675}, DayRow{kLPW, kPlain, "2024-01-0", 2460303},
        DayRow{kLPM, kPlain, "2024-00-08", 2460311}, DayRow{kLPM, kPlain, "2024-01-00", 2460303}));

struct FaultRow {
    CalendarNumber notation;
    TextOptions options;
    std::string text;
    ReadFault fault;
    std::size_t place;
};
void PrintTo(const FaultRow& row, std::ostream* out) {
    *out << row.text;
}

class StrictTextOfNoDay : public testing::TestWithParam<FaultRow> {};

TEST_P(StrictTextOfNoDay, IsRefusedWithThePlace) {
    const FaultRow& row = GetParam();
    const StrictResult result = ReadStrictText(row.notation, row.options, row.text);
    EXPECT_EQ(static_cast<int>(result.fault), static_cast<int>(row.fault)) << row.text;
    EXPECT_EQ(result.place, row.place) << row.text;
    EXPECT_EQ(result.status, row.fault == TooLarge ? ParseStatus::OutOfRange : ParseStatus::NotValid);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, StrictTextOfNoDay,
    testing::Values(
        // Nothing, and too little.
        FaultRow{kCE, kPlain, "", EndsEarly, 0}, FaultRow{kCE, kPlain, "  ", EndsEarly, 2},
        FaultRow{kCE, kPlain, "2024-03", EndsEarly, 7}, FaultRow{kCE, kPlain, "2024-03-", EndsEarly, 8},
        FaultRow{kORD, kPlain, "2024-07", EndsEarly, 7}, FaultRow{kJDN, kPlain, "-", EndsEarly, 1},
        // What does not belong to a date, in front, inside and behind.
        FaultRow{kCE, kPlain, "Room 12 on 2024-03-15", Unexpected, 0},
        FaultRow{kCE, kPlain, "7,2024-03-15", Unexpected, 1},
        FaultRow{kCE, kPlain, "2O24-03-15", Unexpected, 1},
        FaultRow{kCE, kPlain, "1731/32-02-11", Unexpected, 4},
        FaultRow{kCE, kPlain, "44 BC-03-15", Unexpected, 2},
        FaultRow{kCE, kPlain, "2024-W11-5", Unexpected, 5},
        FaultRow{kCE, kPlain, "2024-11-05 JC", Unexpected, 11},
        FaultRow{kCE, kPlain, "2024 - 03 - 15", Unexpected, 4},
        FaultRow{kCE, kPlain, "2024-03-15\t", Unexpected, 10},
        FaultRow{kCE, kPlain, "2024-03-15 ce", Unexpected, 11},
        FaultRow{kCE, kPlain, "2024-03-15 CX", Unexpected, 12},
        FaultRow{kCE, kPlain, "2024-03-15 CE CE", Unexpected, 14},
        FaultRow{kCE, kPlain, "2024-03-15CE", Unexpected, 10},
        FaultRow{kCE, kPlain, "2024-03-15 C", EndsEarly, 12},
        FaultRow{kCE, kPlain, "\u0662024-03-15", Unexpected, 0},
        FaultRow{kCE, kPlain, "2024\u201103-15", Unexpected, 4},
        FaultRow{kCE, kPlain, "2024\u221203-15", Unexpected, 4},
        FaultRow{kCE, kPlain, "+2024-03-15", Unexpected, 0},
        FaultRow{kISO, kPlain, "+2024-W11-5", Unexpected, 0},
        FaultRow{kCE, kPlain, "--44-03-15", Unexpected, 1},
        FaultRow{kCE, kPlain, std::string("2024\0-03-15", 11), Unexpected, 4},
        // Another format or another separator.
        FaultRow{kCE, kPlain, "2024/03/15", Unexpected, 4},
        FaultRow{kCE, kMdySlashes, "2024-03-15", Unexpected, 2},
        FaultRow{kCE, kDmy, "15-03.2024", Unexpected, 5}, FaultRow{kCE, kDmy, "2024-03-15", Unexpected, 2},
        // Too many digits or too few.
        FaultRow{kCE, kPlain, "2024-003-15", Unexpected, 7},
        FaultRow{kCE, kPlain, "2024-03-150", Unexpected, 10},
        FaultRow{kLPW, kPlain, "2024-12-05", Unexpected, 9},
        FaultRow{kLPW, kPlain, "2024-1-5", Unexpected, 6}, FaultRow{kLPM, kPlain, "2024-12-5", EndsEarly, 9},
        FaultRow{kLPM, kPlain, "2024-012-05", Unexpected, 7},
        FaultRow{kISO, kPlain, "2024-W1-5", Unexpected, 7},
        FaultRow{kISO, kPlain, "2024-W11-55", Unexpected, 10},
        FaultRow{kORD, kPlain, "02024-075", Unexpected, 4},
        // Forms half one and half another.
        FaultRow{kISO, kPlain, "2024-W115", Unexpected, 8},
        FaultRow{kISO, kPlain, "2024W11-5", Unexpected, 7},
        FaultRow{kISO, kPlain, "2024-w11-5", Unexpected, 5},
        FaultRow{kISO, kPlain, "12,345-W01-1", Unexpected, 2},
        FaultRow{kORD, kPlain, "2024075", Unexpected, 4},
        FaultRow{kORD, Compact(), "2024-075", Unexpected, 4},
        FaultRow{kORD, kPlain, "-001-075", Unexpected, 0},
        // Separators that do not group by threes, or group what is never grouped.
        FaultRow{kJDN, kPlain, "12,34", Unexpected, 2}, FaultRow{kJDN, kPlain, "1234,567", Unexpected, 4},
        FaultRow{kJDN, kPlain, "1,234.567,890", Unexpected, 5},
        FaultRow{kJDN, kPlain, "24.60.370", Unexpected, 2},
        FaultRow{kJDN, kPlain, "2,460,3850", Unexpected, 5},
        FaultRow{kJDN, kPlain, "2,46O,385", Unexpected, 4}, FaultRow{kJDN, kPlain, "0,123", Unexpected, 1},
        FaultRow{kJDN, kPlain, "2 460 385", Unexpected, 2},
        FaultRow{kCE, kPlain, "2,024-03-15", Unexpected, 1},
        FaultRow{kCE, kPlain, "1,2345-03-15", Unexpected, 1},
        FaultRow{kCE, kPlain, "12,345,-03-15", Unexpected, 6},
        FaultRow{kCE, kPlain, "12 345-03-15", Unexpected, 2},
        FaultRow{kCE, kYmdDots, "2.024.03.15", Unexpected, 1},
        FaultRow{kCE, kYmdDots, "1.2.3.4", Unexpected, 1}, FaultRow{kCE, kYmdDots, "..03.15", Unexpected, 0},
        FaultRow{kCE, kDmyDots, "7.6.12.34", Unexpected, 6},
        FaultRow{kLPW, kPlain, "12 345-24-4", Unexpected, 2},
        // Parentheses belong around a negative year that stands last.
        FaultRow{kCE, kDmy, "15-03-(44)", Unexpected, 7}, FaultRow{kCE, kDmy, "15-03-(-44", EndsEarly, 10},
        FaultRow{kCE, kDmy, "15-03--44)", Unexpected, 9}, FaultRow{kCE, kPlain, "(-44)-03-15", Unexpected, 0},
        // No such day.
        FaultRow{kCE, kPlain, "2024-13-01", NoSuchMonth, 5},
        FaultRow{kCE, kPlain, "2024-00-01", NoSuchMonth, 5},
        FaultRow{kCE, kPlain, "2023-02-29", NoSuchDay, 8}, FaultRow{kCE, kPlain, "1900-02-29", NoSuchDay, 8},
        FaultRow{kJC, kPlain, "1900-02-30", NoSuchDay, 8}, FaultRow{kCE, kDmy, "31-04-2024", NoSuchDay, 0},
        FaultRow{kISO, kPlain, "2021-W53-1", NoSuchWeek, 6},
        FaultRow{kISO, kPlain, "2024-W00-1", NoSuchWeek, 6},
        FaultRow{kISO, kPlain, "2024-W01-8", NoSuchWeekday, 9},
        FaultRow{kORD, kPlain, "2023-366", NoSuchDay, 5},
        FaultRow{kLPM, kPlain, "2024-13-01", NoSuchMonth, 5},
        FaultRow{kLPM, kPlain, "2021-12-35", NoSuchDay, 8},
        FaultRow{kLPW, kPlain, "2024-01-8", NoSuchWeekday, 8},
        // Deliberate: the two kinds of dates that are written and not read.
        FaultRow{kISO, kPlain, "-1-W53-1", NoSuchWeek, 4}, FaultRow{kLPM, kPlain, "-4713-12-01", DayZero, 0},
        FaultRow{kLPW, kPlain, "-4713-49-1", DayZero, 0},
        // Eras.
        FaultRow{kCE, kPlain, "0-03-13 BCE", YearOfEra, 0},
        FaultRow{kCE, kPlain, " -44-03-13 BC", YearOfEra, 1},
        FaultRow{kCE, kPlain, "0044-03-13 BCE BCE", Unexpected, 15},
        FaultRow{kCE, kPlain, "0044-03-13 CE BCE", Unexpected, 14},
        FaultRow{kCE, kPlain, "0044-03-13 BCEE", Unexpected, 14},
        FaultRow{kCE, kPlain, "0044-03-13 bc", Unexpected, 11},
        FaultRow{kISO, kPlain, "0044-W11-4 BCE", Unexpected, 11},
        FaultRow{kCE, kPlain, "4-02-29 BCE", NoSuchDay, 5},
        // Beyond what is read.
        FaultRow{kCE, kPlain, "5800001-01-01", TooLarge, 0},
        FaultRow{kCE, kPlain, "999999999999999999999999-01-01", TooLarge, 0},
        FaultRow{kCE, kPlain, "5800002-01-01 BCE", TooLarge, 0},
        FaultRow{kISO, kPlain, "5800000-W01-1", TooLarge, 0}, FaultRow{kORD, kPlain, "0000-001", TooLarge, 0},
        FaultRow{kLPW, kPlain, "2024-99999-1", TooLarge, 5},
        FaultRow{kLPW, kPlain, "5800001--1", TooLarge, 0}, FaultRow{kLPM, kPlain, "--01-08", Unexpected, 1},
        FaultRow{kJDN, kPlain, "2100000001", TooLarge, 0},
        FaultRow{kJDN, kPlain, "-99999999999", TooLarge, 0},
        FaultRow{kJDN, kPlain, "00000000001", TooLarge, 0},
        FaultRow{kJDN, kPlain, "99999999999.5", TooLarge, 0}));

struct FractionRow {
    std::string text;
    std::int32_t civilDay;
    std::size_t place;
};
void PrintTo(const FractionRow& row, std::ostream* out) {
    *out << row.text;
}

class DayNumberWithAFraction : public testing::TestWithParam<FractionRow> {};

TEST_P(DayNumberWithAFraction, NamesTheCivilDay) {
    const FractionRow& row = GetParam();
    const StrictResult result = ReadStrictText(kJDN, kPlain, row.text);
    EXPECT_EQ(static_cast<int>(result.fault), static_cast<int>(Fraction)) << row.text;
    EXPECT_EQ(result.status, ParseStatus::NotValid);
    EXPECT_EQ(result.jdn, row.civilDay) << row.text;
    EXPECT_EQ(result.place, row.place) << row.text;
}

// The astronomers' day begins at noon, half a day after the civil day of its number.
INSTANTIATE_TEST_SUITE_P(
    Rows, DayNumberWithAFraction,
    testing::Values(FractionRow{"2460370.5", 2460371, 7},
                    FractionRow{"2460370.4999999999999999999999", 2460370, 7},
                    FractionRow{"2460370.0", 2460370, 7}, FractionRow{"2460370.50000", 2460371, 7},
                    FractionRow{" 2460370.75 JDN ", 2460371, 8}, FractionRow{"2,460,370.5", 2460371, 9},
                    FractionRow{"60370.125", 60370, 5}, FractionRow{"0.5", 1, 1}, FractionRow{"0.123", 0, 1},
                    FractionRow{"-0.3", 0, 2}, FractionRow{"-0.5", 0, 2}, FractionRow{"-0.500", 0, 2},
                    FractionRow{"-0.5000000000000000000000000000001", -1, 2}, FractionRow{"-0.6", -1, 2},
                    FractionRow{"-1.5", -1, 2}, FractionRow{"-1.51", -2, 2}, FractionRow{"\u22121.9", -2, 4},
                    FractionRow{"2100000000.5", 2100000001, 10},
                    FractionRow{"-2100000000.9", -2100000001, 11}));

TEST(ReadStrictText, TakesAFractionForAFaultOnlyWhereNothingElseIsWrong) {
    EXPECT_EQ(ReadStrictText(kJDN, kPlain, "2460370.5 x"), Refused(Unexpected, 10));
    EXPECT_EQ(ReadStrictText(kJDN, kPlain, "2460370.5x"), Refused(Unexpected, 7));
    EXPECT_EQ(ReadStrictText(kJDN, kPlain, "2460370."), Refused(Unexpected, 7));
    EXPECT_EQ(ReadStrictText(kJDN, kPlain, "2460370,5"), Refused(Unexpected, 7));
    EXPECT_EQ(ReadStrictText(kJDN, kPlain, ".5"), Refused(Unexpected, 0));
}

}  // namespace
}  // namespace calvoro
