#include "datetext/TodayText.h"

#include "calendar/DayNumber.h"
#include "tests/datetext/TextRows.h"

namespace calvoro {
namespace {

constexpr std::int32_t kToday = 2461365;  // Friday, 20 November 2026
constexpr LabelWords kEnglish{
    "Today is", {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"}, false};
constexpr LabelWords kGerman{
    "Heute ist", {"Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag"}, true};

struct LabelRow {
    std::string name;
    CalendarNumber calendar;
    std::string english;
    std::string german;
};

void PrintTo(const LabelRow& row, std::ostream* out) {
    *out << row.name;
}

class TodayLabelIn : public ::testing::TestWithParam<LabelRow> {};

TEST_P(TodayLabelIn, ACalendarInBothLanguages) {
    const LabelRow& row = GetParam();
    EXPECT_EQ(TodayLabel(kToday, row.calendar, TextOptions{}, kEnglish), row.english);
    EXPECT_EQ(TodayLabel(kToday, row.calendar, TextOptions{}, kGerman), row.german);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, TodayLabelIn,
    ::testing::Values(
        LabelRow{"CE", CalendarNumber::CE, "Today is Friday, 2026-11-20 CE",
                 "Heute ist Freitag, der 2026-11-20 CE"},
        LabelRow{"JC", CalendarNumber::JC, "Today is Friday, 2026-11-07 JC",
                 "Heute ist Freitag, der 2026-11-07 JC"},
        LabelRow{"ISO", CalendarNumber::ISO, "Today is Friday, 2026-W47-5 ISO",
                 "Heute ist Freitag, 2026-W47-5 ISO"},
        LabelRow{"ORD", CalendarNumber::ORD, "Today is Friday, 2026-324", "Heute ist Freitag, 2026-324"},
        LabelRow{"LPW", CalendarNumber::LPW, "Today is Friday, 2026-48-5", "Heute ist Freitag, 2026-48-5"},
        LabelRow{"LPM", CalendarNumber::LPM, "Today is Friday, 2026-11-26", "Heute ist Freitag, 2026-11-26"},
        LabelRow{"JDN", CalendarNumber::JDN, "Today is Friday, 2,461,365 JDN",
                 "Heute ist Freitag, 2,461,365 JDN"}),
    RowName<LabelRow>);

TEST(TodayLabel, TellsAWeekFromTodayWithItsOwnPhrase) {
    LabelWords words = kEnglish;
    words.phrase = "A week from today is";
    EXPECT_EQ(TodayLabel(kToday + 7, CalendarNumber::CE, TextOptions{}, words),
              "A week from today is Friday, 2026-11-27 CE");
}

TEST(TodayLabel, FollowsTheOptions) {
    const TextOptions options{DateFormat::DMY, '.', '.', false, ","};
    EXPECT_EQ(TodayLabel(kToday, CalendarNumber::CE, options, kGerman),
              "Heute ist Freitag, der 20.11.2026 CE");
    EXPECT_EQ(TodayLabel(kToday, CalendarNumber::JDN, options, kEnglish), "Today is Friday, 2.461.365 JDN");
    EXPECT_EQ(TodayLabel(kToday, CalendarNumber::ISO, options, kEnglish), "Today is Friday, 2026W475 ISO");
    EXPECT_EQ(TodayLabel(kToday, CalendarNumber::ORD, options, kEnglish), "Today is Friday, 2026324");
    const TextOptions bare{DateFormat::MDY, '/', kNoSeparator, true, ","};
    EXPECT_EQ(TodayLabel(kToday, CalendarNumber::JDN, bare, kEnglish), "Today is Friday, 2461365 JDN");
}

TEST(TodayLabel, NamesEveryWeekday) {
    for (std::int32_t day = 0; day < 7; ++day) {
        const std::string label = TodayLabel(kToday - 5 + day, CalendarNumber::CE, TextOptions{}, kEnglish);
        const std::string expected =
            "Today is " + std::string(kEnglish.weekdays[static_cast<std::size_t>(day)]);
        EXPECT_TRUE(label.starts_with(expected + ", ")) << label;
    }
}

TEST(TodayLabel, WritesAnOrdinalDateByItsFormulaBeyondFourDigitsToo) {
    EXPECT_EQ(TodayLabel(kLastFourDigitDay, CalendarNumber::ORD, TextOptions{}, kEnglish),
              "Today is Friday, 9999-365");
    EXPECT_EQ(TodayLabel(kLastFourDigitDay + 7, CalendarNumber::ORD, TextOptions{}, kEnglish),
              "Today is Friday, 10000-007");
    EXPECT_EQ(TodayLabel(kFirstFourDigitDay - 1, CalendarNumber::ORD, TextOptions{}, kEnglish),
              "Today is Sunday, 0000-366");
    TextOptions noHyphen;
    noHyphen.hyphen = false;
    EXPECT_EQ(TodayLabel(kLastFourDigitDay + 7, CalendarNumber::ORD, noHyphen, kEnglish),
              "Today is Friday, 10000007");
    EXPECT_EQ(TodayLabel(kLastFourDigitDay + 7, CalendarNumber::CE, TextOptions{}, kEnglish),
              "Today is Friday, 10,000-01-07 CE");
}

TEST(NextTodayCalendar, GoesRoundInSevenClicks) {
    constexpr CalendarNumber kCycle[] = {CalendarNumber::CE,  CalendarNumber::ISO, CalendarNumber::JC,
                                         CalendarNumber::ORD, CalendarNumber::LPM, CalendarNumber::LPW,
                                         CalendarNumber::JDN, CalendarNumber::CE};
    for (int step = 0; step < 7; ++step) {
        EXPECT_EQ(NextTodayCalendar(kCycle[step]), kCycle[step + 1]);
        EXPECT_EQ(PreviousTodayCalendar(kCycle[step + 1]), kCycle[step]);
    }
}

TEST(NextTodayCalendar, BeginsAtTheCommonEraWhenTheCalendarIsNotOffered) {
    for (const CalendarNumber calendar : {CalendarNumber::AN, CalendarNumber::VLW, CalendarNumber::ARC,
                                          static_cast<CalendarNumber>(-1), static_cast<CalendarNumber>(10)}) {
        EXPECT_EQ(NextTodayCalendar(calendar), CalendarNumber::CE);
        EXPECT_EQ(PreviousTodayCalendar(calendar), CalendarNumber::CE);
    }
}

struct BoxRow {
    std::string name;
    CalendarNumber calendar;
    std::string text;
    std::string otherText;  // day first, dots, no hyphens
};

void PrintTo(const BoxRow& row, std::ostream* out) {
    *out << row.name;
}

class TodayBoxTextIn : public ::testing::TestWithParam<BoxRow> {};

TEST_P(TodayBoxTextIn, ACalendar) {
    const BoxRow& row = GetParam();
    EXPECT_EQ(TodayBoxText(kToday, row.calendar, TextOptions{}), row.text);
    const TextOptions other{DateFormat::DMY, '.', '.', false, ","};
    EXPECT_EQ(TodayBoxText(kToday, row.calendar, other), row.otherText);
}

INSTANTIATE_TEST_SUITE_P(Rows, TodayBoxTextIn,
                         ::testing::Values(BoxRow{"CE", CalendarNumber::CE, "2026-11-20", "20.11.2026"},
                                           BoxRow{"JC", CalendarNumber::JC, "2026-11-07", "07.11.2026"},
                                           BoxRow{"ISO", CalendarNumber::ISO, "2026-W47-5", "2026W475"},
                                           BoxRow{"ORD", CalendarNumber::ORD, "2026-324", "2026324"},
                                           BoxRow{"LPW", CalendarNumber::LPW, "2026-48-5", "2026-48-5"},
                                           BoxRow{"LPM", CalendarNumber::LPM, "2026-11-26", "2026-11-26"},
                                           BoxRow{"JDN", CalendarNumber::JDN, "2,461,365", "2.461.365"}),
                         RowName<BoxRow>);

}  // namespace
}  // namespace calvoro
