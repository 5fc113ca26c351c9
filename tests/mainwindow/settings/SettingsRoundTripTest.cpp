// Whatever was saved comes back: quotes, line ends and every other byte included.

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <optional>
#include <string>
#include <vector>

#include "mainwindow/settings/SettingsText.h"

namespace calvoro {
namespace {

using enum CalendarNumber;

rc::Gen<std::string> HostileText() {
    // Few characters, chosen from those that mean something in the file, so that they meet often.
    return rc::gen::map(rc::gen::container<std::vector<std::string>>(rc::gen::element<std::string>(
                            "\"", "\"", "\r", "\n", "\r\n", "0", "1", ",", " ", "\t", "a", "\"\r\n1\r\n",
                            "\"\r\n0", "\"\n\"", std::string(1, '\0'), "\xC3\xA4", "\xFF", "2024-02-29")),
                        [](const std::vector<std::string>& pieces) {
                            std::string text;
                            for (const std::string& piece : pieces) text += piece;
                            return text;
                        });
}

/// What a box can hold: anything without the file's own line end.
rc::Gen<std::string> BoxText() {
    return rc::gen::suchThat(rc::gen::oneOf(HostileText(), rc::gen::arbitrary<std::string>()),
                             [](const std::string& text) { return text.find("\r\n") == std::string::npos; });
}

Settings ArbitrarySettings() {
    const auto calendar = rc::gen::element(CE, JC, JDN, ORD, ISO, LPW, LPM);
    Settings settings;
    settings.interfaceLanguage = *rc::gen::element(LanguageEnglish, LanguageGerman, LanguageSpanish);
    settings.dateFormat = *rc::gen::element(DateFormat::MDY, DateFormat::DMY, DateFormat::YMD);
    settings.dateSeparator = *rc::gen::element('-', '/', '.');
    settings.thousandsSeparator = *rc::gen::element(',', '.', kNoSeparator);
    settings.todayCalendar = *calendar;
    settings.firstCalendar = *calendar;
    settings.secondCalendar = *calendar;
    settings.includeFirstDate = *rc::gen::arbitrary<bool>();
    settings.includeWeekends = *rc::gen::arbitrary<bool>();
    settings.verbose = *rc::gen::arbitrary<bool>();
    settings.hyphen = *rc::gen::arbitrary<bool>();
    settings.monthWeekStart = *rc::gen::element(WeekStart::Sunday, WeekStart::Monday);
    settings.monthCalendar = *rc::gen::element(CE, JC);
    settings.firstDate = *BoxText();
    settings.dateDiff = *BoxText();
    settings.secondDate = *BoxText();
    settings.output = *rc::gen::oneOf(HostileText(), rc::gen::arbitrary<std::string>());
    settings.differenceUnit = *rc::gen::element(DifferenceUnit::Days, DifferenceUnit::Months);
    return settings;
}

TEST(SettingsText, ComesBackWhateverWasSaved) {
    EXPECT_TRUE(rc::check([] {
        const Settings settings = ArbitrarySettings();
        const auto read = ParseSettingsText(SettingsText(settings));
        RC_ASSERT(read.has_value());
        RC_ASSERT(read->firstDate == settings.firstDate);
        RC_ASSERT(read->dateDiff == settings.dateDiff);
        RC_ASSERT(read->secondDate == settings.secondDate);
        RC_ASSERT(read->output == settings.output);
        RC_ASSERT(*read == settings);
    }));
}

TEST(SettingsText, ComesBackWithLineFeedsWhereABoxHasCarriageReturns) {
    EXPECT_TRUE(rc::check([] {
        Settings settings;
        settings.firstDate = *HostileText();
        settings.output = *HostileText();
        const auto read = ParseSettingsText(SettingsText(settings));
        RC_ASSERT(read.has_value());
        std::string expected;
        for (const char character : settings.firstDate) {
            while (character == '\n' && expected.ends_with('\r')) expected.pop_back();
            expected += character;
        }
        RC_ASSERT(read->firstDate == expected);
        RC_ASSERT(read->output == settings.output);
    }));
}

TEST(SettingsText, ComesBackWithTenMegabytesOfOutput) {
    Settings settings;
    while (settings.output.size() < 10'000'000) settings.output += "\"2024-02-29 CE\"\r\n1\r\n";
    EXPECT_EQ(ParseSettingsText(SettingsText(settings)), settings);
}

}  // namespace
}  // namespace calvoro
