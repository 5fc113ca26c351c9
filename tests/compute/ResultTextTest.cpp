#include "compute/ResultText.h"

#include <gtest/gtest.h>

#include "compute/ComputeMessages.h"
#include "tests/compute/OutputCase.h"

namespace calvoro {
namespace {

void Verbose(ComputeOptions& options) {
    options.verbose = true;
}

class ResultLineTest : public OutputTest {};

TEST_P(ResultLineTest, IsWritten) {
    ExpectOutput(GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    SecondDateInEachNotation, ResultLineTest,
    testing::Values(
        OutputCase{"CE", "2021-03-04", "", "", kCE, kCE, "2021-03-04 CE = 2021-03-04 CE"},
        OutputCase{"JC", "2021-03-04", "", "", kCE, kJC, "2021-03-04 CE = 2021-02-19 JC"},
        OutputCase{"ISO", "2021-03-04", "", "", kCE, kISO, "2021-03-04 CE = 2021-W09-4 ISO"},
        OutputCase{"ISOCompact", "2021-03-04", "", "", kCE, kISO, "2021-03-04 CE = 2021W094 ISO",
                   [](ComputeOptions& options) { options.text.hyphen = false; }},
        OutputCase{"JDN", "2021-03-04", "", "", kCE, kJDN, "2021-03-04 CE = 2,459,278 JDN"},
        OutputCase{"JDNWithDots", "2021-03-04", "", "", kCE, kJDN, "2021-03-04 CE = 2.459.278 JDN",
                   [](ComputeOptions& options) { options.text.thousandsSeparator = '.'; }},
        OutputCase{"JDNWithout", "2021-03-04", "", "", kCE, kJDN, "2021-03-04 CE = 2459278 JDN",
                   [](ComputeOptions& options) { options.text.thousandsSeparator = kNoSeparator; }},
        OutputCase{"LPM", "2021-03-04", "", "", kCE, kLPM, "2021-03-04 CE = 2021-03-04 LPM"},
        OutputCase{"LPW", "2021-03-04", "", "", kCE, kLPW, "2021-03-04 CE = 2021-10-4 LPW"},
        OutputCase{"DeliberateORDWithoutItsTag", "2021-03-04", "", "", kCE, kORD, "2021-03-04 CE = 2021-063"},
        OutputCase{"ORDCompact", "2021-03-04", "", "", kCE, kORD, "2021-03-04 CE = 2021063",
                   [](ComputeOptions& options) { options.text.hyphen = false; }},
        OutputCase{"FormatAndSeparator", "4/3/2021", "", "", kCE, kJC, "04/03/2021 CE = 19/02/2021 JC",
                   [](ComputeOptions& options) {
                       options.text.dateFormat = DateFormat::DMY;
                       options.text.dateSeparator = '/';
                   }},
        OutputCase{"LongYears", "12345-01-01", "", "", kCE, kCE, "12,345-01-01 CE = 12,345-01-01 CE"}),
    RowName<OutputCase>);

INSTANTIATE_TEST_SUITE_P(
    FirstDateInEachNotation, ResultLineTest,
    testing::Values(OutputCase{"CE", "", "", "2021-063", kCE, kORD, "2021-063 = 2021-03-04 CE"},
                    OutputCase{"JC", "", "", "2021-03-04", kJC, kCE, "2021-03-04 CE = 2021-02-19 JC"},
                    OutputCase{"ISO", "", "", "2021-03-04", kISO, kCE, "2021-03-04 CE = 2021-W09-4 ISO"},
                    OutputCase{"JDN", "", "", "2021-03-04", kJDN, kCE, "2021-03-04 CE = 2,459,278 JDN"},
                    OutputCase{"LPM", "", "", "2021-03-04", kLPM, kCE, "2021-03-04 CE = 2021-03-04 LPM"},
                    OutputCase{"LPW", "", "", "2021-03-04", kLPW, kCE, "2021-03-04 CE = 2021-10-4 LPW"},
                    OutputCase{"ORD", "", "", "2021-03-04", kORD, kCE, "2021-03-04 CE = 2021-063"}),
    RowName<OutputCase>);

INSTANTIATE_TEST_SUITE_P(
    Differences, ResultLineTest,
    testing::Values(
        OutputCase{"Plus", "2021-03-04", "1234", "", kCE, kCE,
                   "2021-03-04 CE plus 1,234 days = 2024-07-20 CE"},
        OutputCase{"Minus", "2021-03-04", "-1234", "", kCE, kCE,
                   "2021-03-04 CE minus 1,234 days = 2017-10-17 CE"},
        OutputCase{"PlusOne", "2021-03-04", "+1", "", kCE, kCE, "2021-03-04 CE plus 1 day = 2021-03-05 CE"},
        OutputCase{"MinusOne", "2021-03-04", "-1", "", kCE, kCE, "2021-03-04 CE minus 1 day = 2021-03-03 CE"},
        OutputCase{"DeliberateSwappedMinus", "", "1234", "2024-07-20", kCE, kCE,
                   "2024-07-20 CE minus 1,234 days = 2021-03-04 CE"},
        OutputCase{"DeliberateSwappedPlus", "", "-1234", "2017-10-17", kCE, kCE,
                   "2017-10-17 CE plus 1,234 days = 2021-03-04 CE"},
        OutputCase{"DeliberatePlusZero", "2021-03-04", "0", "", kCE, kJC,
                   "2021-03-04 CE plus 0 days = 2021-02-19 JC"},
        OutputCase{"DeliberateMinusZeroIsPlusZero", "2021-03-04", "-0", "", kCE, kCE,
                   "2021-03-04 CE plus 0 days = 2021-03-04 CE"},
        OutputCase{"ZeroBeforeASecondDate", "", "0", "2021-03-04", kCE, kCE,
                   "2021-03-04 CE minus 0 days = 2021-03-04 CE"},
        OutputCase{"OrdinalEcho", "2021-063", "1", "", kORD, kCE, "2021-063 plus 1 day = 2021-03-05 CE"},
        OutputCase{"German", "2021-03-04", "10", "", kCE, kCE, "2021-03-04 CE plus 10 Tage = 2021-03-14 CE",
                   InGerman},
        OutputCase{"GermanOne", "", "1", "2021-03-04", kCE, kCE, "2021-03-04 CE minus 1 Tag = 2021-03-03 CE",
                   InGerman},
        OutputCase{"Between", "2021-03-04", "", "2021-03-05", kCE, kCE,
                   "2021-03-04 CE to 2021-03-05 CE = 1 day"},
        OutputCase{"DeliberateMinusOneIsSingular", "2021-03-05", "", "2021-03-04", kCE, kCE,
                   "2021-03-05 CE to 2021-03-04 CE = -1 day"},
        OutputCase{"DeliberateMinusOneIsSingularInGerman", "2021-03-05", "", "2021-03-04", kCE, kCE,
                   "2021-03-05 CE bis 2021-03-04 CE = -1 Tag", InGerman},
        OutputCase{"BetweenUnequalNotations", "2021-063", "", "2459270", kORD, kJDN,
                   "2021-063 to 2,459,270 JDN = -8 days"},
        OutputCase{"SmallestOf32Bits", "47483648", "", "-2100000000", kJDN, kJDN,
                   "47,483,648 JDN to -2,100,000,000 JDN = -2,147,483,648 days"}),
    RowName<OutputCase>);

INSTANTIATE_TEST_SUITE_P(
    VerboseNotes, ResultLineTest,
    testing::Values(
        OutputCase{"WeekdayOfAConversion", "2021-03-04", "", "", kCE, kJC,
                   "2021-03-04 CE = 2021-02-19 JC, Thursday", Verbose},
        OutputCase{"NoCountingNotesForZero", "2021-03-04", "0", "", kCE, kCE,
                   "2021-03-04 CE plus 0 days = 2021-03-04 CE, Thursday", Verbose},
        OutputCase{"Excluding", "2021-03-04", "10", "", kCE, kCE,
                   "2021-03-04 CE plus 10 days = 2021-03-14 CE, Sunday, excluding 1st date", Verbose},
        OutputCase{"Including", "2021-03-04", "10", "", kCE, kCE,
                   "2021-03-04 CE plus 10 days = 2021-03-13 CE, Saturday, including 1st date",
                   [](ComputeOptions& options) { options.verbose = options.includeFirstDate = true; }},
        OutputCase{"WeekdaysOnly", "2021-03-04", "10", "", kCE, kCE,
                   "2021-03-04 CE plus 10 days = 2021-03-18 CE, Thursday, excluding 1st date, "
                   "not counting weekend days",
                   [](ComputeOptions& options) {
                       options.verbose = true;
                       options.countWeekendDays = false;
                   }},
        OutputCase{"AfterATagLessOrdinalDate", "2021-03-04", "10", "", kCE, kORD,
                   "2021-03-04 CE plus 10 days = 2021-073, Sunday, excluding 1st date", Verbose},
        OutputCase{"GermanWeekdaysOnly", "", "10", "2021-03-18", kCE, kCE,
                   "2021-03-18 CE minus 10 Tage = 2021-03-05 CE, Freitag, einschliesslich 1. Datum, "
                   "die Wochenendtage nicht gezaehlt",
                   [](ComputeOptions& options) {
                       InGerman(options);
                       options.verbose = options.includeFirstDate = true;
                       options.countWeekendDays = false;
                   }},
        OutputCase{"EnglishWhereSpanishHasNone", "2021-03-04", "10", "", kCE, kCE,
                   "2021-03-04 CE plus 10 days = 2021-03-14 CE, Sunday, excluding 1st date",
                   [](ComputeOptions& options) {
                       options.verbose = true;
                       options.texts.InterfaceLanguage = LanguageSpanish;
                   }},
        OutputCase{"Between", "2021-03-04", "", "2021-03-14", kCE, kCE,
                   "2021-03-04 CE to 2021-03-14 CE = 10 days, excluding 1st date", Verbose},
        OutputCase{"BetweenTheSameDay", "2021-03-04", "", "2021-03-04", kCE, kCE,
                   "2021-03-04 CE to 2021-03-04 CE = 0 days, excluding 1st date", Verbose},
        OutputCase{"BetweenBeforeTheBreakdown", "2021-03-01", "", "2021-04-01", kCE, kCE,
                   "2021-03-01 CE to 2021-04-01 CE = 31 days, excluding 1st date (1 month)", Verbose},
        OutputCase{"BetweenWithoutWeekends", "2021-03-01", "", "2021-04-01", kCE, kCE,
                   "2021-03-01 CE to 2021-04-01 CE = 24 days, including 1st date, not counting weekend days",
                   [](ComputeOptions& options) {
                       options.verbose = options.includeFirstDate = true;
                       options.countWeekendDays = false;
                   }}),
    RowName<OutputCase>);

INSTANTIATE_TEST_SUITE_P(
    OneDateInItsOwnCalendar, ResultLineTest,
    testing::Values(
        OutputCase{"CE", "2021-03-04", "", "", kCE, kCE,
                   "2021-03-04 CE = 2021-03-04 CE, Thursday\r\n2021-W09-4 ISO\r\n2021-02-19 JC\r\n"
                   "2021-063 ORD\r\n2021-03-04 LPM\r\n2021-10-4 LPW\r\n2,459,278 JDN",
                   Verbose},
        OutputCase{"SecondJC", "", "", "2021-02-19", kJC, kJC,
                   "2021-02-19 JC = 2021-02-19 JC, Thursday\r\n2021-03-04 CE\r\n2021-W09-4 ISO\r\n"
                   "2021-063 ORD\r\n2021-03-04 LPM\r\n2021-10-4 LPW\r\n2,459,278 JDN",
                   Verbose},
        OutputCase{"ISO", "2021-W09-4", "", "", kISO, kISO,
                   "2021-W09-4 ISO = 2021-W09-4 ISO, Thursday\r\n2021-03-04 CE\r\n2021-02-19 JC\r\n"
                   "2021-063 ORD\r\n2021-03-04 LPM\r\n2021-10-4 LPW\r\n2,459,278 JDN",
                   Verbose},
        OutputCase{"ORD", "2021-063", "", "", kORD, kORD,
                   "2021-063 = 2021-063, Thursday\r\n2021-03-04 CE\r\n2021-W09-4 ISO\r\n2021-02-19 JC\r\n"
                   "2021-03-04 LPM\r\n2021-10-4 LPW\r\n2,459,278 JDN",
                   Verbose},
        OutputCase{"LPM", "2021-03-04", "", "", kLPM, kLPM,
                   "2021-03-04 LPM = 2021-03-04 LPM, Thursday\r\n2021-03-04 CE\r\n2021-W09-4 ISO\r\n"
                   "2021-02-19 JC\r\n2021-063 ORD\r\n2021-10-4 LPW\r\n2,459,278 JDN",
                   Verbose},
        OutputCase{"LPW", "2021-10-4", "", "", kLPW, kLPW,
                   "2021-10-4 LPW = 2021-10-4 LPW, Thursday\r\n2021-03-04 CE\r\n2021-W09-4 ISO\r\n"
                   "2021-02-19 JC\r\n2021-063 ORD\r\n2021-03-04 LPM\r\n2,459,278 JDN",
                   Verbose},
        OutputCase{"JDN", "2459278", "", "", kJDN, kJDN,
                   "2,459,278 JDN = 2,459,278 JDN, Thursday\r\n2021-03-04 CE\r\n2021-W09-4 ISO\r\n"
                   "2021-02-19 JC\r\n2021-063 ORD\r\n2021-03-04 LPM\r\n2021-10-4 LPW",
                   Verbose},
        OutputCase{"WithoutOrdinalDateOutsideItsLimits", "5373485", "", "", kJDN, kJDN,
                   "5,373,485 JDN = 5,373,485 JDN, Saturday\r\n10,000-01-01 CE\r\n9999-W52-6 ISO\r\n"
                   "9999-10-20 JC\r\n10,000-01-06 LPM\r\n10,000-01-6 LPW",
                   Verbose},
        OutputCase{"PlainLineWithoutVerbose", "2021-03-04", "", "", kCE, kCE,
                   "2021-03-04 CE = 2021-03-04 CE"},
        OutputCase{"German", "2021-03-04", "", "", kCE, kCE,
                   "2021-03-04 CE = 2021-03-04 CE, Donnerstag\r\n2021-W09-4 ISO\r\n2021-02-19 JC\r\n"
                   "2021-063 ORD\r\n2021-03-04 LPM\r\n2021-10-4 LPW\r\n2,459,278 JDN",
                   [](ComputeOptions& options) {
                       Verbose(options);
                       InGerman(options);
                   }}),
    RowName<OutputCase>);

INSTANTIATE_TEST_SUITE_P(
    OrdinalLimits, ResultLineTest,
    testing::Values(OutputCase{"FirstDay", "1721426", "", "", kJDN, kORD, "1,721,426 JDN = 0001-001"},
                    OutputCase{"LastDay", "5373484", "", "", kJDN, kORD, "5,373,484 JDN = 9999-365"}),
    RowName<OutputCase>);

TEST(ResultLine, DeliberateOrdinalDateOutOfLimitsLeavesTheLineAsItStands) {
    for (const std::string jdn : {"1721425", "5373485"}) {
        for (const LanguageNumber language : {LanguageEnglish, LanguageGerman, LanguageSpanish}) {
            FakeComputeWindow window(jdn, "", "");
            window.options.firstCalendar = kJDN;
            window.options.secondCalendar = kORD;
            window.options.text.thousandsSeparator = kNoSeparator;
            window.options.texts.InterfaceLanguage = language;
            ComputeState state;
            EXPECT_EQ(cmdCompute_Click(window, state), ClickOutcome::Result);
            EXPECT_EQ(window.output, jdn + " JDN = \r\n");
            ASSERT_EQ(window.messages.size(), 1U);
            EXPECT_EQ(window.messages[0].prompt,
                      ComputeMessageText(ComputeMessage::ResultOutOfRange, language));
        }
    }
}

TEST(AppendWeekdayName, NamesEveryWeekday) {
    FakeComputeWindow window;
    for (std::int32_t jdn = -1; jdn <= 5; ++jdn) {
        AppendWeekdayName(DateRecord{.jdn = jdn}, window, {LanguageEnglish, LanguageGerman});
    }
    EXPECT_EQ(window.output, ", Sunday, Monday, Tuesday, Wednesday, Thursday, Friday, Saturday");
}

TEST(AppendCountingNotes, TellsBothRules) {
    FakeComputeWindow window;
    ComputeOptions options;
    for (const bool include : {true, false}) {
        for (const bool weekends : {true, false}) {
            options.includeFirstDate = include;
            options.countWeekendDays = weekends;
            AppendCountingNotes(window, options);
        }
    }
    EXPECT_EQ(window.output,
              ", including 1st date"
              ", including 1st date, not counting weekend days"
              ", excluding 1st date"
              ", excluding 1st date, not counting weekend days");
}

}  // namespace
}  // namespace calvoro
