#include "datetext/MonthText.h"

#include <limits>

#include "calendar/CheckedInt.h"
#include "tests/datetext/NaiveMonth.h"
#include "tests/datetext/TextRows.h"

namespace calvoro {
namespace {

constexpr WeekdayWords kEnglish{"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
constexpr WeekdayWords kGerman{"Sonntag",    "Montag",  "Dienstag", "Mittwoch",
                               "Donnerstag", "Freitag", "Samstag"};

MonthGrid DrawAs(const naive::Month& month) {
    return DrawMonth(month.year, month.month, month.julian ? CalendarCode::J : CalendarCode::G,
                     month.mondayFirst ? WeekStart::Monday : WeekStart::Sunday, kEnglish);
}

// --- whole months, spelled out ---

struct TextRow {
    std::string name;
    naive::Month month;
    std::string text;
};

void PrintTo(const TextRow& row, std::ostream* out) {
    *out << row.name;
}

class MonthSpelledOut : public ::testing::TestWithParam<TextRow> {};

TEST_P(MonthSpelledOut, IsDrawnToTheLetter) {
    const TextRow& row = GetParam();
    EXPECT_EQ(DrawAs(row.month).text, row.text);
    EXPECT_EQ(naive::Draw(row.month), row.text) << "the naive drawing that the other tests compare with";
}

INSTANTIATE_TEST_SUITE_P(Rows, MonthSpelledOut,
                         ::testing::Values(TextRow{"SeptemberBeginningOnTheLastDayOfALine",
                                                   {2024, 9, false, true},
                                                   " Mon  Tue  Wed  Thu  Fri  Sat  Sun \r\n"
                                                   "  26   27   28   29   30   31    1  \r\n"
                                                   "   2    3    4    5    6    7    8  \r\n"
                                                   "   9   10   11   12   13   14   15  \r\n"
                                                   "  16   17   18   19   20   21   22  \r\n"
                                                   "  23   24   25   26   27   28   29  \r\n"
                                                   "  30    1    2    3    4    5    6  "},
                                           TextRow{"FebruaryOf28DaysBeginningOnMonday",
                                                   {2021, 2, false, true},
                                                   " Mon  Tue  Wed  Thu  Fri  Sat  Sun \r\n"
                                                   "   1    2    3    4    5    6    7  \r\n"
                                                   "   8    9   10   11   12   13   14  \r\n"
                                                   "  15   16   17   18   19   20   21  \r\n"
                                                   "  22   23   24   25   26   27   28  \r\n"
                                                   "   1    2    3    4    5    6    7  "},
                                           TextRow{"FebruaryOf28DaysBeginningOnSunday",
                                                   {2015, 2, false, false},
                                                   " Sun  Mon  Tue  Wed  Thu  Fri  Sat \r\n"
                                                   "   1    2    3    4    5    6    7  \r\n"
                                                   "   8    9   10   11   12   13   14  \r\n"
                                                   "  15   16   17   18   19   20   21  \r\n"
                                                   "  22   23   24   25   26   27   28  \r\n"
                                                   "   1    2    3    4    5    6    7  "},
                                           TextRow{"AprilOf30DaysEndingALine",
                                                   {2023, 4, false, true},
                                                   " Mon  Tue  Wed  Thu  Fri  Sat  Sun \r\n"
                                                   "  27   28   29   30   31    1    2  \r\n"
                                                   "   3    4    5    6    7    8    9  \r\n"
                                                   "  10   11   12   13   14   15   16  \r\n"
                                                   "  17   18   19   20   21   22   23  \r\n"
                                                   "  24   25   26   27   28   29   30  \r\n"
                                                   "   1    2    3    4    5    6    7  "},
                                           TextRow{"MarchOf31DaysEndingALine",
                                                   {2024, 3, false, true},
                                                   " Mon  Tue  Wed  Thu  Fri  Sat  Sun \r\n"
                                                   "  26   27   28   29    1    2    3  \r\n"
                                                   "   4    5    6    7    8    9   10  \r\n"
                                                   "  11   12   13   14   15   16   17  \r\n"
                                                   "  18   19   20   21   22   23   24  \r\n"
                                                   "  25   26   27   28   29   30   31  "},
                                           TextRow{"DecemberReachingIntoTheNextYear",
                                                   {2024, 12, false, true},
                                                   " Mon  Tue  Wed  Thu  Fri  Sat  Sun \r\n"
                                                   "  25   26   27   28   29   30    1  \r\n"
                                                   "   2    3    4    5    6    7    8  \r\n"
                                                   "   9   10   11   12   13   14   15  \r\n"
                                                   "  16   17   18   19   20   21   22  \r\n"
                                                   "  23   24   25   26   27   28   29  \r\n"
                                                   "  30   31    1    2    3    4    5  "},
                                           TextRow{"DecemberOfTheYearBeforeYearZero",
                                                   {-1, 12, false, false},
                                                   " Sun  Mon  Tue  Wed  Thu  Fri  Sat \r\n"
                                                   "  28   29   30    1    2    3    4  \r\n"
                                                   "   5    6    7    8    9   10   11  \r\n"
                                                   "  12   13   14   15   16   17   18  \r\n"
                                                   "  19   20   21   22   23   24   25  \r\n"
                                                   "  26   27   28   29   30   31    1  "},
                                           TextRow{"JulianOctober1582LosesNoDays",
                                                   {1582, 10, true, false},
                                                   " Sun  Mon  Tue  Wed  Thu  Fri  Sat \r\n"
                                                   "  30    1    2    3    4    5    6  \r\n"
                                                   "   7    8    9   10   11   12   13  \r\n"
                                                   "  14   15   16   17   18   19   20  \r\n"
                                                   "  21   22   23   24   25   26   27  \r\n"
                                                   "  28   29   30   31    1    2    3  "}),
                         RowName<TextRow>);

// --- whole months, chosen for their shapes ---

struct ShapeRow {
    std::string name;
    naive::Month month;
    std::int16_t weekRows;
};

void PrintTo(const ShapeRow& row, std::ostream* out) {
    *out << row.name;
}

class MonthOfAShape : public ::testing::TestWithParam<ShapeRow> {};

TEST_P(MonthOfAShape, HasItsLinesAndText) {
    const ShapeRow& row = GetParam();
    const MonthGrid grid = DrawAs(row.month);
    EXPECT_EQ(grid.weekRows, row.weekRows);
    EXPECT_EQ(grid.text, naive::Draw(row.month));
}

constexpr bool kJulian = true;
constexpr bool kMonday = true;

INSTANTIATE_TEST_SUITE_P(
    Rows, MonthOfAShape,
    ::testing::Values(ShapeRow{"FourWeeksFromMonday", {2010, 2, false, kMonday}, 5},
                      ShapeRow{"FourWeeksFromSunday", {2026, 2, false, false}, 5},
                      ShapeRow{"FourWeeksBeginningInsideALine", {2026, 2, false, kMonday}, 5},
                      ShapeRow{"FourWeeksFromMondayJulian", {1893, 2, kJulian, kMonday}, 5},
                      ShapeRow{"FebruaryOf29FromMonday", {2016, 2, false, kMonday}, 5},
                      ShapeRow{"FebruaryOf29EndingALine", {2032, 2, false, kMonday}, 6},
                      ShapeRow{"FebruaryOf29EndingALineSundayFirst", {2020, 2, false, false}, 6},
                      ShapeRow{"JulianLeapFebruary1900", {1900, 2, kJulian, kMonday}, 5},
                      ShapeRow{"CommonEraFebruary1900", {1900, 2, false, kMonday}, 5},
                      ShapeRow{"ThirtyDaysEndingALine", {2024, 6, false, kMonday}, 6},
                      ShapeRow{"ThirtyDaysEndingALineSundayFirst", {2024, 11, false, false}, 6},
                      ShapeRow{"ThirtyDaysEndingInsideALine", {2025, 6, false, kMonday}, 6},
                      ShapeRow{"ThirtyDaysInFiveLines", {2024, 4, false, kMonday}, 5},
                      ShapeRow{"ThirtyOneDaysEndingALine", {2021, 1, false, kMonday}, 5},
                      ShapeRow{"ThirtyOneDaysEndingALineSundayFirst", {2024, 8, false, false}, 5},
                      ShapeRow{"ThirtyOneDaysInSixLines", {2023, 10, false, kMonday}, 6},
                      ShapeRow{"ThirtyOneDaysInSixLinesSundayFirst", {2024, 3, false, false}, 6},
                      ShapeRow{"DecemberEndingALine", {2023, 12, false, kMonday}, 5},
                      ShapeRow{"DecemberInSixLines", {2018, 12, false, kMonday}, 6},
                      ShapeRow{"JanuaryAfterDecember", {2025, 1, false, kMonday}, 5},
                      ShapeRow{"DecemberOfYearZero", {0, 12, false, kMonday}, 5},
                      ShapeRow{"JanuaryOfYearZero", {0, 1, false, false}, 6},
                      ShapeRow{"FebruaryOfYearZeroHas29", {0, 2, false, kMonday}, 5},
                      ShapeRow{"JanuaryOfYearOneJulian", {1, 1, kJulian, false}, 6},
                      ShapeRow{"DecemberBeforeYearZeroJulian", {-1, 12, kJulian, kMonday}, 5},
                      ShapeRow{"IdesOfMarch", {-43, 3, kJulian, kMonday}, 5},
                      ShapeRow{"FirstMonthOfDayNumbers", {-4712, 1, kJulian, kMonday}, 5},
                      ShapeRow{"NegativeCenturyJulian", {-100, 2, kJulian, false}, 5},
                      ShapeRow{"FarFuture", {12345, 10, false, kMonday}, 5},
                      ShapeRow{"JulianSeptemberEndingALine", {2024, 9, kJulian, kMonday}, 6}),
    RowName<ShapeRow>);

TEST(DrawMonth, AgreesWithTheNaiveDrawingInEveryMonthOfManyYears) {
    int months = 0;
    int withExtraLine = 0;
    for (const int begin : {-405, -4, 1580, 1890, 1996, 2020}) {
        for (int year = begin; year < begin + 12; ++year) {
            for (int month = 1; month <= 12; ++month) {
                for (const bool julian : {false, true}) {
                    for (const bool mondayFirst : {false, true}) {
                        const naive::Month drawn{year, month, julian, mondayFirst};
                        const MonthGrid grid = DrawAs(drawn);
                        ASSERT_EQ(grid.text, naive::Draw(drawn)) << year << ' ' << month << ' ' << julian;
                        ASSERT_EQ(grid.weekRows, naive::WeekRows(drawn));
                        ++months;
                        if (grid.text.ends_with("\r\n   1    2    3    4    5    6    7  ")) ++withExtraLine;
                    }
                }
            }
        }
    }
    EXPECT_EQ(months, 6 * 12 * 12 * 4);
    EXPECT_GT(withExtraLine, 100);
}

TEST(DrawMonth, DeliberatelyAddsALineOfTheNextMonthAloneExceptAfter31Days) {
    const std::string nextMonthAlone = "\r\n   1    2    3    4    5    6    7  ";
    const naive::Month february{2021, 2, false, kMonday};
    const naive::Month leapFebruary{2032, 2, false, kMonday};
    const naive::Month june{2024, 6, false, kMonday};
    for (const naive::Month& month : {february, leapFebruary, june}) {
        EXPECT_TRUE(DrawAs(month).text.ends_with(nextMonthAlone)) << month.year;
    }
    const naive::Month march{2024, 3, false, kMonday};
    const naive::Month december{2023, 12, false, kMonday};
    for (const naive::Month& month : {march, december}) {
        EXPECT_TRUE(DrawAs(month).text.ends_with("  25   26   27   28   29   30   31  ")) << month.month;
    }
}

TEST(DrawMonth, TellsTheFirstDayShown) {
    const MonthGrid september = DrawMonth(2024, 9, CalendarCode::G, WeekStart::Monday, kEnglish);
    EXPECT_EQ(september.firstShownJdn, 2460549) << "26 August 2024";
    EXPECT_EQ(september.weekRows, 6);
    const MonthGrid firstOfAll = DrawMonth(-4712, 1, CalendarCode::J, WeekStart::Monday, kEnglish);
    EXPECT_EQ(firstOfAll.firstShownJdn, 0) << "a Monday";
    EXPECT_EQ(DrawMonth(-4712, 1, CalendarCode::J, WeekStart::Sunday, kEnglish).firstShownJdn, -1);
}

TEST(DrawMonth, HeadsItsColumnsWithThreeLettersOfTheWeekdays) {
    const auto heading = [](const WeekdayWords& words, WeekStart weekStart) {
        const std::string text = DrawMonth(2024, 9, CalendarCode::G, weekStart, words).text;
        return text.substr(0, text.find("\r\n"));
    };
    EXPECT_EQ(heading(kEnglish, WeekStart::Sunday), " Sun  Mon  Tue  Wed  Thu  Fri  Sat ");
    EXPECT_EQ(heading(kGerman, WeekStart::Monday), " Mon  Die  Mit  Don  Fre  Sam  Son ");
    const WeekdayWords accents{"do",       "s\u00e1bado", "\u00e9\u00e9\u00e9\u00e9", "", "ma",
                               "mi\u00e9", "\u65e5\u66dc"};
    EXPECT_EQ(heading(accents, WeekStart::Sunday),
              " do  s\u00e1b  \u00e9\u00e9\u00e9    ma  mi\u00e9  \u65e5\u66dc ");
}

TEST(DrawMonth, RefusesYearsWhoseDaysLeave32Bits) {
    for (const std::int32_t year : {std::numeric_limits<std::int32_t>::max(), 5'900'000, -5'900'000,
                                    std::numeric_limits<std::int32_t>::min()}) {
        for (const CalendarCode calendar : {CalendarCode::G, CalendarCode::J}) {
            for (const std::int32_t month : {1, 12}) {
                EXPECT_THROW(DrawMonth(year, month, calendar, WeekStart::Monday, kEnglish),
                             ArithmeticOverflow);
            }
        }
    }
    EXPECT_NO_THROW(DrawMonth(5'800'000, 12, CalendarCode::G, WeekStart::Monday, kEnglish));
    EXPECT_NO_THROW(DrawMonth(-5'800'000, 1, CalendarCode::J, WeekStart::Monday, kEnglish));
}

// --- the column of ISO week dates ---

TEST(DrawIsoWeekDates, NumbersTheDaysOfWeek5Of2024WithTheYearsFinalDigit) {
    EXPECT_EQ(DrawIsoWeekDates(2460339, 1, true, kEnglish),
              "       M        T        W        T        F        S        S\r\n"
              "4-W05-1  4-W05-2  4-W05-3  4-W05-4  4-W05-5  4-W05-6  4-W05-7");
}

TEST(DrawIsoWeekDates, NumbersTheDaysOfWeek5Of2024WithoutTheYear) {
    EXPECT_EQ(DrawIsoWeekDates(2460339, 1, false, kEnglish),
              " Mon    Tue    Wed    Thu    Fri    Sat    Sun   \r\n"
              "W05-1  W05-2  W05-3  W05-4  W05-5  W05-6  W05-7");
}

TEST(DrawIsoWeekDates, GoesOnIntoTheNextYear) {
    const MonthGrid december = DrawMonth(2020, 12, CalendarCode::G, WeekStart::Monday, kGerman);
    EXPECT_EQ(DrawIsoWeekDates(december.firstShownJdn, december.weekRows, true, kGerman),
              "       M        D        M        D        F        S        S\r\n"
              "0-W49-1  0-W49-2  0-W49-3  0-W49-4  0-W49-5  0-W49-6  0-W49-7\r\n"
              "0-W50-1  0-W50-2  0-W50-3  0-W50-4  0-W50-5  0-W50-6  0-W50-7\r\n"
              "0-W51-1  0-W51-2  0-W51-3  0-W51-4  0-W51-5  0-W51-6  0-W51-7\r\n"
              "0-W52-1  0-W52-2  0-W52-3  0-W52-4  0-W52-5  0-W52-6  0-W52-7\r\n"
              "0-W53-1  0-W53-2  0-W53-3  0-W53-4  0-W53-5  0-W53-6  0-W53-7");
    EXPECT_EQ(DrawIsoWeekDates(december.firstShownJdn + 28, 2, false, kGerman),
              " Mon    Die    Mit    Don    Fre    Sam    Son   \r\n"
              "W53-1  W53-2  W53-3  W53-4  W53-5  W53-6  W53-7\r\n"
              "W01-1  W01-2  W01-3  W01-4  W01-5  W01-6  W01-7");
}

TEST(DrawIsoWeekDates, ShowsTheFinalDigitOfAnyYear) {
    const auto firstDate = [](std::int32_t year) {
        const MonthGrid grid = DrawMonth(year, 6, CalendarCode::G, WeekStart::Monday, kEnglish);
        const std::string text = DrawIsoWeekDates(grid.firstShownJdn, grid.weekRows, true, kEnglish);
        return text.substr(text.find('\n') + 1, 2);
    };
    EXPECT_EQ(firstDate(5), "5-");
    EXPECT_EQ(firstDate(0), "0-");
    EXPECT_EQ(firstDate(-44), "4-");
    EXPECT_EQ(firstDate(12345), "5-");
}

TEST(DrawIsoWeekDates, TrimsTheEndOfTheHeadingWithTheYearOnly) {
    WeekdayWords words = kEnglish;
    words[0] = "";
    EXPECT_EQ(DrawIsoWeekDates(0, 0, true, words), "       M        T        W        T        F        S");
    EXPECT_EQ(DrawIsoWeekDates(0, 0, false, words), " Mon    Tue    Wed    Thu    Fri    Sat       ");
}

TEST(DrawIsoWeekDates, HasAnEmptyHeadingWithTheYearWithoutNames) {
    EXPECT_EQ(DrawIsoWeekDates(2460339, 1, true, WeekdayWords{}),
              "\r\n4-W05-1  4-W05-2  4-W05-3  4-W05-4  4-W05-5  4-W05-6  4-W05-7");
    EXPECT_EQ(DrawIsoWeekDates(0, 0, true, WeekdayWords{}), "");
}

TEST(DrawIsoWeekDates, IsAHeadingAloneWithoutWeekLines) {
    EXPECT_EQ(DrawIsoWeekDates(0, 0, false, kEnglish), " Mon    Tue    Wed    Thu    Fri    Sat    Sun   ");
}

// --- the copied text ---

TEST(CopiedMonthText, HoldsHeadingAndGrid) {
    EXPECT_EQ(CopiedMonthText("March", " -44 ", "Julian Calendar", "GRID", "", ""),
              "March  -44  (Julian Calendar)\r\n\r\nGRID");
    EXPECT_EQ(CopiedMonthText("March", "-44", "Julian Calendar", "GRID", "HEADING", ""),
              "March -44 (Julian Calendar)\r\n\r\nGRID")
        << "no ISO heading without ISO week dates";
}

TEST(CopiedMonthText, IsSeptember2024ToTheLetterWithItsIsoWeekDates) {
    const MonthGrid grid = DrawMonth(2024, 9, CalendarCode::G, WeekStart::Monday, kEnglish);
    const std::string isoDates = DrawIsoWeekDates(grid.firstShownJdn, grid.weekRows, true, kEnglish);
    EXPECT_EQ(CopiedMonthText("September", "2024", "Common Era Calendar", grid.text,
                              "ISO 8601 Week dates:", isoDates),
              "September 2024 (Common Era Calendar)\r\n"
              "\r\n"
              " Mon  Tue  Wed  Thu  Fri  Sat  Sun \r\n"
              "  26   27   28   29   30   31    1  \r\n"
              "   2    3    4    5    6    7    8  \r\n"
              "   9   10   11   12   13   14   15  \r\n"
              "  16   17   18   19   20   21   22  \r\n"
              "  23   24   25   26   27   28   29  \r\n"
              "  30    1    2    3    4    5    6  \r\n"
              "\r\n"
              "ISO 8601 Week dates:\r\n"
              "\r\n"
              "       M        T        W        T        F        S        S\r\n"
              "4-W35-1  4-W35-2  4-W35-3  4-W35-4  4-W35-5  4-W35-6  4-W35-7\r\n"
              "4-W36-1  4-W36-2  4-W36-3  4-W36-4  4-W36-5  4-W36-6  4-W36-7\r\n"
              "4-W37-1  4-W37-2  4-W37-3  4-W37-4  4-W37-5  4-W37-6  4-W37-7\r\n"
              "4-W38-1  4-W38-2  4-W38-3  4-W38-4  4-W38-5  4-W38-6  4-W38-7\r\n"
              "4-W39-1  4-W39-2  4-W39-3  4-W39-4  4-W39-5  4-W39-6  4-W39-7\r\n"
              "4-W40-1  4-W40-2  4-W40-3  4-W40-4  4-W40-5  4-W40-6  4-W40-7");
}

}  // namespace
}  // namespace calvoro
