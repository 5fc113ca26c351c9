#include "text/DateNames.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace calvoro {
namespace {

struct MonthCase {
    std::string_view english;
    std::string_view german;
    std::string_view englishShort;
    std::string_view germanShort;
};

constexpr MonthCase kMonths[] = {
    {"January", "Januar", "Jan", "Jan"},
    {"February", "Februar", "Feb", "Feb"},
    {"March", "Maerz", "Mar", "Mar"},
    {"April", "April", "Apr", "Apr"},
    {"May", "Mai", "May", "Mai"},
    {"June", "Juni", "Jun", "Jun"},
    {"July", "Juli", "Jul", "Jul"},
    {"August", "August", "Aug", "Aug"},
    {"September", "September", "Sep", "Sep"},
    {"October", "Oktober", "Oct", "Okt"},
    {"November", "November", "Nov", "Nov"},
    {"December", "Dezember", "Dec", "Dez"},
};

TEST(MonthNames, AreEnglishAndGermanOnly) {
    for (std::int32_t month = 0; month < 12; ++month) {
        const MonthCase& row = kMonths[month];
        EXPECT_EQ(MonthName(LanguageEnglish, month, MonthNameForm::Full), row.english);
        EXPECT_EQ(MonthName(LanguageGerman, month, MonthNameForm::Full), row.german);
        EXPECT_EQ(MonthName(LanguageEnglish, month, MonthNameForm::Abbreviation), row.englishShort);
        EXPECT_EQ(MonthName(LanguageGerman, month, MonthNameForm::Abbreviation), row.germanShort);
        for (LanguageNumber language = LanguageSpanish; language <= 5; ++language) {
            EXPECT_EQ(MonthName(language, month, MonthNameForm::Full), "");
            EXPECT_EQ(MonthName(language, month, MonthNameForm::Abbreviation), "");
        }
    }
}

TEST(MonthNames, AreShownInEnglishWhereALanguageHasNone) {
    for (std::int32_t month = 0; month < 12; ++month) {
        EXPECT_EQ(ShownMonthName(LanguageEnglish, month), kMonths[month].english);
        EXPECT_EQ(ShownMonthName(LanguageGerman, month), kMonths[month].german);
        EXPECT_EQ(ShownMonthName(LanguageSpanish, month), kMonths[month].english);
    }
}

TEST(MonthNames, RefuseOtherLanguagesAndMonths) {
    EXPECT_THROW(MonthName(6, 0, MonthNameForm::Full), std::out_of_range);
    EXPECT_THROW(MonthName(-1, 0, MonthNameForm::Full), std::out_of_range);
    EXPECT_THROW(MonthName(LanguageEnglish, 12, MonthNameForm::Full), std::out_of_range);
    EXPECT_THROW(MonthName(LanguageEnglish, -1, MonthNameForm::Full), std::out_of_range);
    EXPECT_THROW(ShownMonthName(6, 0), std::out_of_range);
}

struct WeekdayCase {
    std::string_view english;
    std::string_view german;
};

constexpr WeekdayCase kWeekdays[] = {
    {"Sunday", "Sonntag"},      {"Monday", "Montag"},  {"Tuesday", "Dienstag"}, {"Wednesday", "Mittwoch"},
    {"Thursday", "Donnerstag"}, {"Friday", "Freitag"}, {"Saturday", "Samstag"},
};

TEST(WeekdayNames, BeginWithSundayAndHaveNoSpanish) {
    for (std::int32_t weekday = 0; weekday < 7; ++weekday) {
        EXPECT_EQ(WeekdayName(LanguageEnglish, weekday), kWeekdays[weekday].english);
        EXPECT_EQ(WeekdayName(LanguageGerman, weekday), kWeekdays[weekday].german);
        EXPECT_EQ(WeekdayName(LanguageSpanish, weekday), "");
    }
}

TEST(WeekdayNames, AreShownInEnglishWhereALanguageHasNone) {
    for (std::size_t weekday = 0; weekday < 7; ++weekday) {
        EXPECT_EQ(ShownWeekdayNames(LanguageEnglish)[weekday], kWeekdays[weekday].english);
        EXPECT_EQ(ShownWeekdayNames(LanguageGerman)[weekday], kWeekdays[weekday].german);
        EXPECT_EQ(ShownWeekdayNames(LanguageSpanish)[weekday], kWeekdays[weekday].english);
    }
}

TEST(WeekdayNames, RefuseOtherLanguagesAndWeekdays) {
    EXPECT_THROW(WeekdayName(3, 0), std::out_of_range);
    EXPECT_THROW(WeekdayName(-1, 0), std::out_of_range);
    EXPECT_THROW(WeekdayName(LanguageEnglish, 7), std::out_of_range);
    EXPECT_THROW(WeekdayName(LanguageEnglish, -1), std::out_of_range);
    EXPECT_THROW(ShownWeekdayNames(3), std::out_of_range);
}

}  // namespace
}  // namespace calvoro
