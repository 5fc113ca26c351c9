#include "windows/HelpText.h"

#include <gtest/gtest.h>

#include <fstream>

#include "text/Language.h"

namespace calvoro {
namespace {

const WebAddresses kAddresses = {
    .homePage = "https://maker.example/",
    .manualEnglish = "https://manual.example/en",
    .manualGerman = "https://manual.example/de",
    .calendarsArticle = "https://maker.example/calendars",
    .isoWeekArticle = "https://encyclopedia.example/iso",
    .leapWeekPage = "https://maker.example/leapweek",
};

// The paragraphs of a file, one a line, as the help window's text.
std::string Expected(const std::string& name, int paragraphs) {
    std::ifstream file(CALVORO_SOURCE_DIR "/tests/windows/" + name);
    std::string text;
    std::string line;
    for (; std::getline(file, line); --paragraphs) text += line + "\r\n\r\n";
    EXPECT_EQ(paragraphs, 0) << name;
    return text;
}

TEST(FillHelpText, DeliberatelyKeepsTheEnglishTextWithItsSlips) {
    EXPECT_EQ(FillHelpText(kAddresses)[LanguageEnglish], Expected("HelpEnglish.txt", 12));
}

TEST(FillHelpText, DeliberatelyKeepsTheGermanTextWithItsSlips) {
    EXPECT_EQ(FillHelpText(kAddresses)[LanguageGerman], Expected("HelpGerman.txt", 11));
}

TEST(FillHelpText, LeavesSpanishEmpty) {
    EXPECT_EQ(FillHelpText(kAddresses)[LanguageSpanish], "");
}

}  // namespace
}  // namespace calvoro
