#include "compute/UnitWords.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>

namespace calvoro {
namespace {

struct WordCase {
    std::int32_t number;
    LanguageNumber language;
    std::string days;
    std::string months;
};

void PrintTo(const WordCase& row, std::ostream* out) {
    *out << row.number << ", language " << row.language;
}

class UnitWordsTest : public testing::TestWithParam<WordCase> {};

TEST_P(UnitWordsTest, FollowANumber) {
    const WordCase& row = GetParam();
    const Texts texts(row.language, LanguageEnglish);
    EXPECT_EQ(DayOrDays(row.number, texts), row.days);
    EXPECT_EQ(MonthOrMonths(row.number, texts), row.months);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, UnitWordsTest,
    testing::Values(
        WordCase{0, LanguageEnglish, "days", "months"}, WordCase{1, LanguageEnglish, "day", "month"},
        WordCase{2, LanguageEnglish, "days", "months"}, WordCase{-2, LanguageEnglish, "days", "months"},
        WordCase{11, LanguageEnglish, "days", "months"},
        WordCase{std::numeric_limits<std::int32_t>::max(), LanguageEnglish, "days", "months"},
        WordCase{std::numeric_limits<std::int32_t>::min(), LanguageEnglish, "days", "months"},
        WordCase{0, LanguageGerman, "Tage", "Monate"}, WordCase{1, LanguageGerman, "Tag", "Monat"},
        WordCase{-2, LanguageGerman, "Tage", "Monate"}, WordCase{1, LanguageSpanish, "day", "month"},
        WordCase{3, LanguageSpanish, "days", "months"}));

TEST(UnitWords, DeliberateMinusOneIsSingular) {
    EXPECT_EQ(DayOrDays(-1, {LanguageEnglish, LanguageEnglish}), "day");
    EXPECT_EQ(MonthOrMonths(-1, {LanguageEnglish, LanguageEnglish}), "month");
    EXPECT_EQ(DayOrDays(-1, {LanguageGerman, LanguageEnglish}), "Tag");
    EXPECT_EQ(MonthOrMonths(-1, {LanguageGerman, LanguageEnglish}), "Monat");
}

TEST(WordInSentence, KeepsCapitalsInGermanOnly) {
    EXPECT_EQ(WordInSentence(TextId::Weeks, {LanguageEnglish, LanguageEnglish}), "weeks");
    EXPECT_EQ(WordInSentence(TextId::Weeks, {LanguageGerman, LanguageEnglish}), "Wochen");
    EXPECT_EQ(WordInSentence(TextId::ISOWeekDate, {LanguageEnglish, LanguageEnglish}), "iso week date");
}

}  // namespace
}  // namespace calvoro
