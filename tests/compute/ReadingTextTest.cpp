#include "compute/ReadingText.h"

#include <gtest/gtest.h>

#include <ostream>
#include <utility>

namespace calvoro {
namespace {

ComputeOptions In(LanguageNumber language) {
    ComputeOptions options;
    options.texts.InterfaceLanguage = language;
    return options;
}

struct DateRow {
    CalendarNumber calendar;
    std::string text;
    std::string english;
    std::string german;
};

void PrintTo(const DateRow& row, std::ostream* out) {
    *out << "calendar " << static_cast<int>(row.calendar) << " \"" << row.text << "\"";
}

class ReadingOfADate : public testing::TestWithParam<DateRow> {};

TEST_P(ReadingOfADate, IsTheSameInBothDateBoxesAndInBothLanguages) {
    const DateRow& row = GetParam();
    const auto reading = [&row](InputBox box, LanguageNumber language) {
        ComputeOptions options = In(language);
        (box == InputBox::FirstDate ? options.firstCalendar : options.secondCalendar) = row.calendar;
        return ReadingText(box, row.text, options);
    };
    EXPECT_EQ(reading(InputBox::FirstDate, LanguageEnglish), "First date: " + row.english);
    EXPECT_EQ(reading(InputBox::SecondDate, LanguageEnglish), "Second date: " + row.english);
    EXPECT_EQ(reading(InputBox::FirstDate, LanguageGerman), "Erstes Datum: " + row.german);
    EXPECT_EQ(reading(InputBox::SecondDate, LanguageGerman), "Zweites Datum: " + row.german);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ReadingOfADate,
    testing::Values(
        DateRow{CalendarNumber::CE, "-43-03-13", "Wednesday, 13 March -43 CE (44 BCE), day number 1705426",
                "Mittwoch, 13. Maerz -43 CE (44 v. Chr.), Tageszahl 1705426"},
        // The same day, told in the box's own calendar.
        DateRow{CalendarNumber::JC, "-43-03-15", "Wednesday, 15 March -43 JC (44 BCE), day number 1705426",
                "Mittwoch, 15. Maerz -43 JC (44 v. Chr.), Tageszahl 1705426"},
        // Every other notation is told in CE.
        DateRow{CalendarNumber::JDN, "1705426", "Wednesday, 13 March -43 CE (44 BCE), day number 1705426",
                "Mittwoch, 13. Maerz -43 CE (44 v. Chr.), Tageszahl 1705426"},
        DateRow{CalendarNumber::JDN, "0", "Monday, 24 November -4713 CE (4714 BCE), day number 0",
                "Montag, 24. November -4713 CE (4714 v. Chr.), Tageszahl 0"},
        DateRow{CalendarNumber::JDN, "-1", "Sunday, 23 November -4713 CE (4714 BCE), day number -1",
                "Sonntag, 23. November -4713 CE (4714 v. Chr.), Tageszahl -1"},
        DateRow{CalendarNumber::ISO, "2024-W11-5", "Friday, 15 March 2024 CE, day number 2460385",
                "Freitag, 15. Maerz 2024 CE, Tageszahl 2460385"},
        DateRow{CalendarNumber::ORD, "2024-075", "Friday, 15 March 2024 CE, day number 2460385",
                "Freitag, 15. Maerz 2024 CE, Tageszahl 2460385"},
        DateRow{CalendarNumber::LPW, "2024-12-5", "Friday, 15 March 2024 CE, day number 2460385",
                "Freitag, 15. Maerz 2024 CE, Tageszahl 2460385"},
        DateRow{CalendarNumber::LPM, "2024-03-19", "Friday, 15 March 2024 CE, day number 2460385",
                "Freitag, 15. Maerz 2024 CE, Tageszahl 2460385"},
        // The years on both sides of the beginning of the era.
        DateRow{CalendarNumber::CE, "1-01-01", "Monday, 1 January 1 CE, day number 1721426",
                "Montag, 1. Januar 1 CE, Tageszahl 1721426"},
        DateRow{CalendarNumber::CE, "0-12-31", "Sunday, 31 December 0 CE (1 BCE), day number 1721425",
                "Sonntag, 31. Dezember 0 CE (1 v. Chr.), Tageszahl 1721425"},
        DateRow{CalendarNumber::JC, "0-12-31", "Friday, 31 December 0 JC (1 BCE), day number 1721423",
                "Freitag, 31. Dezember 0 JC (1 v. Chr.), Tageszahl 1721423"},
        // Blanks around the text and the notation's own tag do not matter.
        DateRow{CalendarNumber::CE, "  2024-02-29 CE ", "Thursday, 29 February 2024 CE, day number 2460370",
                "Donnerstag, 29. Februar 2024 CE, Tageszahl 2460370"},
        // Numbers are plain.
        DateRow{CalendarNumber::CE, "12345-06-07", "Thursday, 7 June 12345 CE, day number 6230136",
                "Donnerstag, 7. Juni 12345 CE, Tageszahl 6230136"}));

INSTANTIATE_TEST_SUITE_P(
    Refused, ReadingOfADate,
    testing::Values(DateRow{CalendarNumber::CE, "2023-02-29", "not valid", "nicht zulaessig"},
                    DateRow{CalendarNumber::CE, "2023", "not valid", "nicht zulaessig"},
                    DateRow{CalendarNumber::CE, "tomorrow", "not valid", "nicht zulaessig"},
                    DateRow{CalendarNumber::ISO, "2024-W54-1", "not valid", "nicht zulaessig"},
                    DateRow{CalendarNumber::LPW, "2024-12-8", "not valid", "nicht zulaessig"},
                    DateRow{CalendarNumber::CE, "5800001-01-01", "beyond the years that can be computed",
                            "jenseits der Jahre, die berechnet werden koennen"},
                    DateRow{CalendarNumber::CE, "99999999999999999999-01-01",
                            "beyond the years that can be computed",
                            "jenseits der Jahre, die berechnet werden koennen"},
                    DateRow{CalendarNumber::JDN, "2100000001", "beyond the years that can be computed",
                            "jenseits der Jahre, die berechnet werden koennen"},
                    DateRow{CalendarNumber::LPW, "99999999-01-1", "beyond the years that can be computed",
                            "jenseits der Jahre, die berechnet werden koennen"}));

TEST(ReadingText, FollowsTheFormatAndTheSeparators) {
    ComputeOptions options = In(LanguageEnglish);
    options.text.dateFormat = DateFormat::DMY;
    options.text.dateSeparator = '/';
    EXPECT_EQ(ReadingText(InputBox::FirstDate, "01/02/2024", options),
              "First date: Thursday, 1 February 2024 CE, day number 2460342");
    options.text.dateFormat = DateFormat::MDY;
    EXPECT_EQ(ReadingText(InputBox::FirstDate, "01/02/2024", options),
              "First date: Tuesday, 2 January 2024 CE, day number 2460312");
    options.text.dateFormat = DateFormat::YMD;
    EXPECT_EQ(ReadingText(InputBox::FirstDate, "01/02/2024", options), "First date: not valid");
}

TEST(ReadingText, FollowsTheHyphenOfOrdinalDates) {
    ComputeOptions options = In(LanguageEnglish);
    options.firstCalendar = CalendarNumber::ORD;
    options.text.hyphen = false;
    EXPECT_EQ(ReadingText(InputBox::FirstDate, "2024075", options),
              "First date: Friday, 15 March 2024 CE, day number 2460385");
    EXPECT_EQ(ReadingText(InputBox::FirstDate, "2024-075", options), "First date: not valid");
}

TEST(ReadingText, ShowsTheEnglishWordsWhereALanguageHasNone) {
    EXPECT_EQ(ReadingText(InputBox::FirstDate, "0-03-01", In(LanguageSpanish)),
              "First date: Wednesday, 1 March 0 CE (1 BCE), day number 1721120");
}

struct DifferenceRow {
    DifferenceUnit unit;
    std::string text;
    std::string english;
    std::string german;
};

void PrintTo(const DifferenceRow& row, std::ostream* out) {
    *out << (row.unit == DifferenceUnit::Days ? "days" : "months") << " \"" << row.text << "\"";
}

class ReadingOfADifference : public testing::TestWithParam<DifferenceRow> {};

TEST_P(ReadingOfADifference, TellsNumberAndUnit) {
    const DifferenceRow& row = GetParam();
    for (const auto& [language, expected] : {std::pair(LanguageEnglish, "Date difference: " + row.english),
                                             std::pair(LanguageGerman, "Datumsdifferenz: " + row.german)}) {
        ComputeOptions options = In(language);
        options.unit = row.unit;
        EXPECT_EQ(ReadingText(InputBox::Difference, row.text, options), expected);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ReadingOfADifference,
    testing::Values(DifferenceRow{DifferenceUnit::Days, "10", "10 days", "10 Tage"},
                    DifferenceRow{DifferenceUnit::Days, " 1 ", "1 day", "1 Tag"},
                    DifferenceRow{DifferenceUnit::Days, "-1", "-1 day", "-1 Tag"},
                    DifferenceRow{DifferenceUnit::Days, "0", "0 days", "0 Tage"},
                    DifferenceRow{DifferenceUnit::Days, "12,345", "12345 days", "12345 Tage"},
                    DifferenceRow{DifferenceUnit::Days, "12.345", "12345 days", "12345 Tage"},
                    DifferenceRow{DifferenceUnit::Months, "1", "1 month", "1 Monat"},
                    DifferenceRow{DifferenceUnit::Months, "-25", "-25 months", "-25 Monate"},
                    DifferenceRow{DifferenceUnit::Days, "ten", "not valid", "nicht zulaessig"},
                    DifferenceRow{DifferenceUnit::Days, "1-2", "not valid", "nicht zulaessig"},
                    DifferenceRow{DifferenceUnit::Days, "2100000000",
                                  "beyond the numbers that can be computed",
                                  "jenseits der Zahlen, die berechnet werden koennen"},
                    DifferenceRow{DifferenceUnit::Months, "99999999999999999999",
                                  "beyond the numbers that can be computed",
                                  "jenseits der Zahlen, die berechnet werden koennen"}));

TEST(ReadingText, IsEmptyForAnEmptyBox) {
    for (const InputBox box : {InputBox::FirstDate, InputBox::Difference, InputBox::SecondDate}) {
        EXPECT_EQ(ReadingText(box, "", In(LanguageEnglish)), "");
        EXPECT_EQ(ReadingText(box, "  ", In(LanguageGerman)), "");
    }
}

}  // namespace
}  // namespace calvoro
