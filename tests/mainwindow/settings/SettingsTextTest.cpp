#include "mainwindow/settings/SettingsText.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "tests/mainwindow/settings/AllButFactory.h"

namespace calvoro {
namespace {

const std::string kFactoryText =
    "0\r\n2,45,44\r\n0,0,"
    "0\r\n0\r\n1\r\n1\r\n1\r\n1\r\n\"Sun\"\r\n\"CE\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n0\r\n";

std::vector<std::string> FactoryLines() {
    return {"0",       "2,45,44", "0,0,0", "0",    "1",    "1",    "1", "1",
            "\"Sun\"", "\"CE\"",  "\"\"",  "\"\"", "\"\"", "\"\"", "0"};
}

std::string Joined(const std::vector<std::string>& lines, std::string_view lineEnd = "\r\n") {
    std::string text;
    for (const std::string& line : lines) text.append(line).append(lineEnd);
    return text;
}

/// The factory file with one line replaced, counted from 1 as in the file's description.
std::string WithLine(std::size_t number, const std::string& line) {
    std::vector<std::string> lines = FactoryLines();
    lines.at(number - 1) = line;
    return Joined(lines);
}

// ---- writing

TEST(SettingsText, WritesTheFactoryValues) {
    EXPECT_EQ(SettingsText(Settings{}), kFactoryText);
}

TEST(SettingsText, WritesEveryField) {
    EXPECT_EQ(
        SettingsText(AllButFactory()),
        "1\r\n1,46,0\r\n8,4,6\r\n1\r\n0\r\n0\r\n0\r\n1\r\n\"Mon\"\r\n\"JC\"\r\n"
        "\"2024075\"\r\n\"1234\"\r\n\"2024W125\"\r\n\"one \"quoted\" line\r\n, another\r\n\r\n\"\r\n1\r\n");
}

TEST(SettingsText, DoesNotEscapeQuotes) {
    Settings settings;
    settings.firstDate = "a\"b";
    EXPECT_EQ(SettingsText(settings), WithLine(11, "\"a\"b\""));
}

// ---- every value of every field

struct FieldRow {
    const char* name;
    std::size_t line;
    const char* text;
    std::function<void(Settings&)> expected;

    friend void PrintTo(const FieldRow& row, std::ostream* out) { *out << row.line << ": " << row.text; }
};

class FieldValues : public testing::TestWithParam<FieldRow> {};

TEST_P(FieldValues, AreRestored) {
    Settings expected;
    GetParam().expected(expected);
    EXPECT_EQ(ParseSettingsText(WithLine(GetParam().line, GetParam().text)), expected);
}

std::function<void(Settings&)> Calendars(CalendarNumber today, CalendarNumber first, CalendarNumber second) {
    return [=](Settings& s) { s.todayCalendar = today, s.firstCalendar = first, s.secondCalendar = second; };
}
std::function<void(Settings&)> Formats(DateFormat format, char separator, char thousands) {
    return [=](Settings& s) {
        s.dateFormat = format, s.dateSeparator = separator, s.thousandsSeparator = thousands;
    };
}
void NoChange(Settings&) {}

using enum CalendarNumber;

INSTANTIATE_TEST_SUITE_P(
    Language, FieldValues,
    testing::Values(FieldRow{"English", 1, "0", NoChange},
                    FieldRow{"German", 1, "1", [](Settings& s) { s.interfaceLanguage = LanguageGerman; }},
                    FieldRow{"Third", 1, "2", [](Settings& s) { s.interfaceLanguage = LanguageSpanish; }},
                    FieldRow{"Blanks", 1, " 1 ", [](Settings& s) { s.interfaceLanguage = LanguageGerman; }},
                    FieldRow{"Plus", 1, "+1", [](Settings& s) { s.interfaceLanguage = LanguageGerman; }},
                    FieldRow{"MinusZero", 1, "-0", NoChange},
                    FieldRow{"Zeros", 1, "0000000000000000000001",
                             [](Settings& s) { s.interfaceLanguage = LanguageGerman; }}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Formats, FieldValues,
    testing::Values(FieldRow{"MonthFirst", 2, "0,45,44", Formats(DateFormat::MDY, '-', ',')},
                    FieldRow{"DayFirst", 2, "1,45,44", Formats(DateFormat::DMY, '-', ',')},
                    FieldRow{"YearFirst", 2, "2,45,44", NoChange},
                    FieldRow{"UnknownFormat", 2, "3,45,44", NoChange},
                    FieldRow{"NegativeFormat", 2, "-1,45,44", NoChange},
                    FieldRow{"HugeFormat", 2, "4294967297,45,44", NoChange},
                    FieldRow{"Slash", 2, "2,47,44", Formats(DateFormat::YMD, '/', ',')},
                    FieldRow{"Dot", 2, "2,46,44", Formats(DateFormat::YMD, '.', ',')},
                    FieldRow{"UnknownSeparator", 2, "2,302,44", NoChange},
                    FieldRow{"NoSeparator", 2, "2,0,44", NoChange},
                    FieldRow{"ThousandsDot", 2, "2,45,46", Formats(DateFormat::YMD, '-', '.')},
                    FieldRow{"ThousandsNone", 2, "2,45,0", Formats(DateFormat::YMD, '-', kNoSeparator)},
                    FieldRow{"UnknownThousands", 2, "2,45,300", NoChange},
                    FieldRow{"NegativeThousands", 2, "2,45,-44", NoChange},
                    FieldRow{"Blanks", 2, " 2 , 46 , 46 ", Formats(DateFormat::YMD, '.', '.')},
                    FieldRow{"DayFirstDotNone", 2, "1,46,0", Formats(DateFormat::DMY, '.', kNoSeparator)}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(Calendars, FieldValues,
                         testing::Values(FieldRow{"JC", 3, "1,1,1", Calendars(JC, JC, JC)},
                                         FieldRow{"JDN", 3, "2,2,2", Calendars(JDN, JDN, JDN)},
                                         FieldRow{"AnIsNotOffered", 3, "3,3,3", NoChange},
                                         FieldRow{"ORD", 3, "4,4,4", Calendars(ORD, ORD, ORD)},
                                         FieldRow{"VlwIsNotOffered", 3, "5,5,5", NoChange},
                                         FieldRow{"ISO", 3, "6,6,6", Calendars(ISO, ISO, ISO)},
                                         FieldRow{"LPW", 3, "7,7,7", Calendars(LPW, LPW, LPW)},
                                         FieldRow{"LPM", 3, "8,8,8", Calendars(LPM, LPM, LPM)},
                                         FieldRow{"ArcIsNotOffered", 3, "9,9,9", NoChange},
                                         FieldRow{"Unknown", 3, "10,-1,65536", NoChange},
                                         FieldRow{"Huge", 3, "99999999999,-99999999999,65537", NoChange},
                                         FieldRow{"Mixed", 3, "6,1,4", Calendars(ISO, JC, ORD)}),
                         [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    CheckBoxes, FieldValues,
    testing::Values(FieldRow{"IncludeFirst", 4, "1", [](Settings& s) { s.includeFirstDate = true; }},
                    FieldRow{"IncludeFirstBlanks", 4, " 1 ", [](Settings& s) { s.includeFirstDate = true; }},
                    FieldRow{"IncludeFirstGrey", 4, "2", NoChange},
                    FieldRow{"IncludeFirstMinusOne", 4, "-1", NoChange},
                    FieldRow{"IncludeFirstWord", 4, "True", NoChange},
                    FieldRow{"IncludeFirstQuoted", 4, "\"1\"", NoChange},
                    FieldRow{"IncludeFirstNumberAndLetters", 4, "1x", NoChange},
                    FieldRow{"IncludeFirstTwoNumbers", 4, "1,1", NoChange},
                    FieldRow{"IncludeFirstEmpty", 4, "", NoChange},
                    FieldRow{"IncludeFirstTab", 4, "1\t", NoChange},
                    FieldRow{"IncludeFirstHuge", 4, "4294967297", NoChange},
                    FieldRow{"Weekends", 5, "0", [](Settings& s) { s.includeWeekends = false; }},
                    FieldRow{"WeekendsWord", 5, "x", [](Settings& s) { s.includeWeekends = false; }},
                    FieldRow{"Verbose", 6, "0", [](Settings& s) { s.verbose = false; }},
                    FieldRow{"Hyphen", 7, "0", [](Settings& s) { s.hyphen = false; }},
                    FieldRow{"SaveOutput", 8, "0", [](Settings& s) { s.saveOutput = false; }},
                    FieldRow{"SaveOutputEmpty", 8, "", [](Settings& s) { s.saveOutput = false; }}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Texts, FieldValues,
    testing::Values(
        FieldRow{"Monday", 9, "\"Mon\"", [](Settings& s) { s.monthWeekStart = WeekStart::Monday; }},
        FieldRow{"UnknownWeekStart", 9, "\"Tue\"", NoChange}, FieldRow{"EmptyWeekStart", 9, "\"\"", NoChange},
        FieldRow{"WeekStartInCapitals", 9, "\"MON\"", NoChange},
        FieldRow{"Julian", 10, "\"JC\"", [](Settings& s) { s.monthCalendar = JC; }},
        FieldRow{"UnknownMonthCalendar", 10, "\"ISO\"", NoChange},
        FieldRow{"First", 11, "\"2024-02-29\"", [](Settings& s) { s.firstDate = "2024-02-29"; }},
        FieldRow{"FirstWithQuote", 11, "\"a\"b\"", [](Settings& s) { s.firstDate = "a\"b"; }},
        FieldRow{"FirstOfQuotes", 11, "\"\"\"\"", [](Settings& s) { s.firstDate = "\"\""; }},
        FieldRow{"FirstLikeTwoFields", 11, "\"a\",\"b\"", [](Settings& s) { s.firstDate = "a\",\"b"; }},
        FieldRow{"FirstWithBlanksAfterIt", 11, "\"a\"  ", [](Settings& s) { s.firstDate = "a"; }},
        FieldRow{"FirstWithLineBreak", 11, "\"a\r\nb\"", [](Settings& s) { s.firstDate = "a\r\nb"; }},
        FieldRow{"FirstWithLineFeed", 11, "\"a\"\n\"b\"", [](Settings& s) { s.firstDate = "a\"\n\"b"; }},
        FieldRow{"Difference", 12, "\"1,000\"", [](Settings& s) { s.dateDiff = "1,000"; }},
        FieldRow{"Second", 13, "\"\xC3\xA4\"", [](Settings& s) { s.secondDate = "\xC3\xA4"; }},
        FieldRow{"SecondInvalidUtf8", 13, "\"\xFF\xC3\"", [](Settings& s) { s.secondDate = "\xFF\xC3"; }},
        FieldRow{"Output", 14, "\"a\r\nb\r\n\"", [](Settings& s) { s.output = "a\r\nb\r\n"; }},
        FieldRow{"OutputWithLineFeeds", 14, "\"a\nb\n\"", [](Settings& s) { s.output = "a\nb\n"; }},
        FieldRow{"OutputLikeTheEnd", 14, "\"a\"\r\n1\r\n\"", [](Settings& s) { s.output = "a\"\r\n1\r\n"; }},
        FieldRow{"OutputLikeTheEndWithoutLineEnd", 14, "\"a\"\r\n1\"",
                 [](Settings& s) { s.output = "a\"\r\n1"; }},
        FieldRow{"OutputOfQuotes", 14, "\"\"\"\"\"\"", [](Settings& s) { s.output = "\"\"\"\""; }},
        FieldRow{"OutputWithBlanksAfterIt", 14, "\"a\" ", [](Settings& s) { s.output = "a"; }}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Unit, FieldValues,
    testing::Values(FieldRow{"Days", 15, "0", NoChange},
                    FieldRow{"Months", 15, "1",
                             [](Settings& s) { s.differenceUnit = DifferenceUnit::Months; }},
                    FieldRow{"MonthsWithBlanks", 15, " 1 ",
                             [](Settings& s) { s.differenceUnit = DifferenceUnit::Months; }},
                    FieldRow{"Unknown", 15, "2", NoChange}, FieldRow{"Negative", 15, "-1", NoChange},
                    FieldRow{"ALineAfterIt", 15, "1\r\nx",
                             [](Settings& s) { s.differenceUnit = DifferenceUnit::Months; }},
                    FieldRow{"ALineLikeItAfterIt", 15, "1\r\n0",
                             [](Settings& s) { s.differenceUnit = DifferenceUnit::Months; }},
                    FieldRow{"NoLineEndAfterItButBytes", 15, "1\r\n\xFF\"",
                             [](Settings& s) { s.differenceUnit = DifferenceUnit::Months; }},
                    FieldRow{"EmptyLinesAfterIt", 15, "1\r\n\r\n",
                             [](Settings& s) { s.differenceUnit = DifferenceUnit::Months; }}),
    [](const auto& row) { return row.param.name; });

// ---- line ends

TEST(ParseSettingsText, ReadsLineFeedsAlone) {
    std::vector<std::string> lines = FactoryLines();
    lines[10] = "\"say \"a\"\"";
    lines[13] = "\"one\ntwo\n\"";
    const auto read = ParseSettingsText(Joined(lines, "\n"));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->firstDate, "say \"a\"");
    EXPECT_EQ(read->output, "one\r\ntwo\r\n") << "what ends the lines of the file ends those of the output";
}

TEST(ParseSettingsText, ReadsALineFeedAmongOtherLineEnds) {
    for (std::size_t line = 1; line <= 15; ++line) {
        std::vector<std::string> lines = FactoryLines();
        lines[8] = "\"Mon\"";
        lines[10] = "\"2024-02-29\"";
        lines[11] = "\"10\"";
        lines[13] = "\"one\r\ntwo\r\n\"";
        std::string text;
        for (std::size_t i = 0; i < lines.size(); ++i) text += lines[i] + (i + 1 == line ? "\n" : "\r\n");
        const auto read = ParseSettingsText(text);
        ASSERT_TRUE(read) << "line " << line;
        EXPECT_EQ(read->monthWeekStart, WeekStart::Monday) << "line " << line;
        EXPECT_EQ(read->firstDate, "2024-02-29") << "line " << line;
        EXPECT_EQ(read->dateDiff, "10") << "line " << line;
        EXPECT_EQ(read->output, "one\r\ntwo\r\n") << "line " << line;
    }
}

TEST(ParseSettingsText, KeepsLoneLineFeedsWhereLinesEndWithCrLf) {
    Settings settings;
    settings.firstDate = "\"\n\"";
    settings.secondDate = "\n";
    settings.output = "a\nb\r\n\n\"\n0\n\r";
    EXPECT_EQ(ParseSettingsText(SettingsText(settings)), settings);
}

TEST(ParseSettingsText, IgnoresWhatStandsBehindTheLastLine) {
    for (const char* behind : {"x", "\r\n", "0\r\n", "\"", "\"x\"\r\nx\r\n", "\n\n", "\xEF\xBB\xBF"}) {
        EXPECT_EQ(ParseSettingsText(kFactoryText + behind), Settings{}) << behind;
    }
    EXPECT_EQ(ParseSettingsText(kFactoryText + std::string(1'000'000, '"')), Settings{});
    EXPECT_EQ(ParseSettingsText(kFactoryText + std::string(1'000, '\0')), Settings{});
}

TEST(ParseSettingsText, NeedsNoLineEndAfterTheLastLine) {
    EXPECT_EQ(ParseSettingsText(kFactoryText.substr(0, kFactoryText.size() - 2)), Settings{});
    EXPECT_EQ(ParseSettingsText(kFactoryText.substr(0, kFactoryText.size() - 1)), Settings{});
    // Read as a file whose lines end with LF, the output would get another line end.
    Settings settings;
    settings.output = "a\nb\r\n";
    const std::string whole = SettingsText(settings);
    EXPECT_EQ(ParseSettingsText(whole.substr(0, whole.size() - 1)), settings);
}

TEST(ParseSettingsText, KeepsNulBytes) {
    Settings settings;
    settings.secondDate = std::string("a\0b", 3);
    settings.output = std::string("\0\r\n\0", 4);
    EXPECT_EQ(ParseSettingsText(SettingsText(settings)), settings);
}

// ---- damage

struct DamageRow {
    const char* name;
    std::size_t line;
    const char* text;

    friend void PrintTo(const DamageRow& row, std::ostream* out) { *out << row.line << ": " << row.text; }
};

class Damage : public testing::TestWithParam<DamageRow> {};

TEST_P(Damage, MakesTheFileFaulty) {
    EXPECT_EQ(ParseSettingsText(WithLine(GetParam().line, GetParam().text)), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, Damage,
    testing::Values(
        DamageRow{"LanguageBelow", 1, "-1"}, DamageRow{"LanguageAbove", 1, "3"},
        DamageRow{"LanguageHuge", 1, "4294967296"}, DamageRow{"LanguageNegativeHuge", 1, "-4294967296"},
        DamageRow{"LanguageOverflowing", 1, "18446744073709551616"},
        DamageRow{"LanguageLetters", 1, "English"}, DamageRow{"LanguageQuoted", 1, "\"0\""},
        DamageRow{"LanguageEmpty", 1, ""}, DamageRow{"LanguageSignAlone", 1, "-"},
        DamageRow{"LanguageTwoSigns", 1, "+-0"}, DamageRow{"LanguageSignApart", 1, "- 0"},
        DamageRow{"LanguageFraction", 1, "0.0"}, DamageRow{"LanguageTwoFields", 1, "0,0"},
        DamageRow{"LanguageByteOrderMark", 1,
                  "\xEF\xBB\xBF"
                  "0"},
        DamageRow{"LanguageForeignDigit", 1, "\xD9\xA1"}, DamageRow{"FormatsTwoFields", 2, "2,45"},
        DamageRow{"FormatsFourFields", 2, "2,45,44,0"}, DamageRow{"FormatsEmptyField", 2, "2,,44"},
        DamageRow{"FormatsLastFieldEmpty", 2, "2,45,"}, DamageRow{"FormatsLetters", 2, "YMD,45,44"},
        DamageRow{"FormatsCharacter", 2, "2,-,44"}, DamageRow{"FormatsEmpty", 2, ""},
        DamageRow{"FormatsSemicolons", 2, "2;45;44"}, DamageRow{"CalendarsLetters", 3, "0,JC,0"},
        DamageRow{"CalendarsTwoFields", 3, "0,0"}, DamageRow{"CalendarsTrailingLetter", 3, "0,0,0x"},
        DamageRow{"WeekStartUnquoted", 9, "Mon"}, DamageRow{"WeekStartUnclosed", 9, "\"Mon"},
        DamageRow{"WeekStartUnopened", 9, "Mon\""}, DamageRow{"WeekStartNumber", 9, "1"},
        DamageRow{"WeekStartBlankBefore", 9, " \"Mon\""}, DamageRow{"WeekStartWordAfter", 9, "\"Mon\" x"},
        DamageRow{"MonthCalendarEmpty", 10, ""}, DamageRow{"MonthCalendarQuoteAlone", 10, "\""},
        DamageRow{"FirstUnquoted", 11, "2024-02-29"}, DamageRow{"FirstEmpty", 11, ""},
        DamageRow{"FirstUnclosed", 11, "\"2024"}, DamageRow{"DifferenceUnquoted", 12, "10"},
        DamageRow{"SecondUnquoted", 13, "x"}, DamageRow{"SecondUnclosed", 13, "\"x"},
        DamageRow{"OutputUnquoted", 14, "x"}, DamageRow{"OutputUnclosed", 14, "\"x"},
        DamageRow{"OutputUnopened", 14, "x\""}, DamageRow{"OutputEmpty", 14, ""},
        DamageRow{"OutputQuoteAlone", 14, "\""}, DamageRow{"OutputWordAfter", 14, "\"a\" x"},
        DamageRow{"UnitLetters", 15, "days"}, DamageRow{"UnitEmpty", 15, ""},
        DamageRow{"UnitQuoted", 15, "\"0\""}, DamageRow{"UnitTwoFields", 15, "0,0"},
        DamageRow{"LanguageTab", 1, "0\t"}, DamageRow{"UnitTab", 15, "\t0"},
        DamageRow{"FormatsTab", 2, "2,\t45,44"}, DamageRow{"WeekStartTabAfter", 9, "\"Mon\"\t"}),
    [](const auto& row) { return row.param.name; });

TEST(ParseSettingsText, RefusesAFileWithoutOneOfItsLines) {
    for (std::size_t missing = 0; missing < 15; ++missing) {
        std::vector<std::string> lines = FactoryLines();
        lines[8] = "\"Mon\"";
        lines[13] = "\"out\r\nput\r\n\"";
        lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(missing));
        // Without one of the check boxes or of the texts the ones behind it move up, so the count is what
        // tells: the quoted lines meet a number, or the last line is missing.
        EXPECT_EQ(ParseSettingsText(Joined(lines)), std::nullopt) << "line " << missing + 1;
    }
}

TEST(ParseSettingsText, RefusesAFileCutAnywhere) {
    Settings settings = AllButFactory();
    settings.output = "2021-03-04 CE plus 10 days = 2021-03-01 JC, Sunday\r\n";
    const std::string whole = SettingsText(settings);
    ASSERT_EQ(ParseSettingsText(whole), settings);
    // Up to its last digit the file is faulty; only the line end after it may be missing.
    for (std::size_t length = 0; length + 2 < whole.size(); ++length) {
        EXPECT_EQ(ParseSettingsText(whole.substr(0, length)), std::nullopt) << "first " << length << " bytes";
    }
}

TEST(ParseSettingsText, RefusesWhatIsNoSettingsFile) {
    EXPECT_EQ(ParseSettingsText(""), std::nullopt);
    EXPECT_EQ(ParseSettingsText("\r\n"), std::nullopt);
    EXPECT_EQ(ParseSettingsText(std::string(100'000, '\0')), std::nullopt);
    EXPECT_EQ(ParseSettingsText(std::string(100'000, '\n')), std::nullopt);
    EXPECT_EQ(ParseSettingsText(std::string(100'000, '"')), std::nullopt);
    EXPECT_EQ(ParseSettingsText(std::string(100'000, '9')), std::nullopt);
}

TEST(ParseSettingsText, IsNotSlowedDownByAMissingQuote) {
    // Ten million line ends in search of the quote that closes the first date.
    std::string text = "0\n2,45,44\n0,0,0\n0\n1\n1\n1\n1\n\"Sun\"\n\"CE\"\n\"";
    text.append(10'000'000, '\n');
    EXPECT_EQ(ParseSettingsText(text), std::nullopt);
}

}  // namespace
}  // namespace calvoro
