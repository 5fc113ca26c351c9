#include "text/ProgramText.h"

#include <gtest/gtest.h>

#include <fstream>
#include <ostream>
#include <sstream>
#include <string>

#include "tests/text/TemporaryFolder.h"
#include "text/BuiltInProgramTexts.h"
#include "text/ProgramTextFile.h"
#include "text/Texts.h"

namespace calvoro {
namespace {

struct MessageCase {
    std::int32_t result;
    std::string message;
};

void PrintTo(const MessageCase& row, std::ostream* out) {
    *out << row.result;
}

class ProgramTextMessageTest : public testing::TestWithParam<MessageCase> {};

TEST_P(ProgramTextMessageTest, SaysWhatTheResultMeans) {
    EXPECT_EQ(ProgramTextMessage(GetParam().result, "/opt/calvoro/calvoro.dat"), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    Results, ProgramTextMessageTest,
    testing::Values(
        MessageCase{1, ""}, MessageCase{500, ""}, MessageCase{2'147'483'647, ""},
        MessageCase{0, "No program text was read."},
        MessageCase{-1, "Cannot open file containing program text.\r\n/opt/calvoro/calvoro.dat"},
        MessageCase{-2, "Particular memory allocation error."}, MessageCase{-3, "Too much program text."},
        MessageCase{-4, "Text not recovered."}, MessageCase{-5, "Error -5"},
        MessageCase{-6, "File is empty."}, MessageCase{-7, "Error reading file."},
        MessageCase{-8, "General memory allocation error."}, MessageCase{-9, "Error -9"},
        MessageCase{-499, "Error -499"}, MessageCase{-500, "Error -500"},
        MessageCase{-501, "Missing string at line 1."}, MessageCase{-999, "Missing string at line 499."},
        MessageCase{-1000, "Missing string at line 500."}, MessageCase{-1001, "String too long at line 1."},
        MessageCase{-1500, "String too long at line 500."},
        MessageCase{-1501, "Duplicate in program text at line 1."},
        MessageCase{-1512, "Duplicate in program text at line 12."},
        MessageCase{-2000, "Duplicate in program text at line 500."},
        MessageCase{-2'147'483'647 - 1, "Duplicate in program text at line 2147482148."}),
    [](const auto& row) { return "Row" + std::to_string(row.index); });

struct FaultyFileCase {
    std::string name;
    std::string bytes;
    std::string message;
};

void PrintTo(const FaultyFileCase& row, std::ostream* out) {
    *out << row.name;
}

class FaultyProgramTextTest : public testing::TestWithParam<FaultyFileCase> {};

TEST_P(FaultyProgramTextTest, GivesItsMessage) {
    const TemporaryFolder folder;
    folder.Write("calvoro.dat", GetParam().bytes);
    EXPECT_EQ(LoadProgramText(folder.Path(), "calvoro.dat").message, GetParam().message);
}

std::string Comments(int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text += "#\n";
    return text;
}

INSTANTIATE_TEST_SUITE_P(
    Files, FaultyProgramTextTest,
    testing::Values(
        FaultyFileCase{"Good", "1\tone\n", ""}, FaultyFileCase{"Empty", "", "File is empty."},
        FaultyFileCase{"OnlyComments", "# one\n# two\n", "No program text was read."},
        FaultyFileCase{"TooManyLines", Comments(501), "Too much program text."},
        FaultyFileCase{"LineWithoutNumber", "one\n", "Text not recovered."},
        FaultyFileCase{"Duplicate", "1\tone\n# comment\n1\tagain\n", "Duplicate in program text at line 3."},
        FaultyFileCase{"LongestText", "1\t" + std::string(1023, 'x') + "\n", ""},
        FaultyFileCase{"TextTooLong", "1\t" + std::string(1024, 'x') + "\n", "String too long at line 1."},
        FaultyFileCase{"MissingText", "1\tone\n2\n", "Missing string at line 2."}),
    [](const auto& row) { return row.param.name; });

TEST(LoadProgramText, NamesTheFileThatIsMissing) {
    const TemporaryFolder folder;
    EXPECT_EQ(LoadProgramText(folder.Path(), "calvoro.dat").message,
              "Cannot open file containing program text.\r\n" + folder.Path() + "/calvoro.dat");
}

TEST(LoadProgramText, PutsNoSecondSeparatorAfterAFolderThatEndsInOne) {
    const TemporaryFolder folder;
    EXPECT_EQ(LoadProgramText(folder.Path() + "/", "calvoro.dat").message,
              "Cannot open file containing program text.\r\n" + folder.Path() + "/calvoro.dat");
    EXPECT_EQ(LoadProgramText("Q:\\", "calvoro.dat").message,
              "Cannot open file containing program text.\r\nQ:\\calvoro.dat");
    EXPECT_EQ(LoadProgramText("/", "no such calvoro.dat").message,
              "Cannot open file containing program text.\r\n/no such calvoro.dat");
    folder.Write("calvoro.dat", "1\tone\n");
    EXPECT_EQ(LoadProgramText(folder.Path() + "/", "calvoro.dat").message, "");
    EXPECT_EQ(LoadProgramText(folder.Path(), "calvoro.dat").message, "");
}

TEST(LoadProgramText, CannotReadAFolder) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.Path() + "/calvoro.dat");
    EXPECT_EQ(LoadProgramText(folder.Path(), "calvoro.dat").message, "Error reading file.");
}

TEST(LoadProgramText, GivesTextsOrAMessage) {
    const TemporaryFolder folder;
    EXPECT_FALSE(LoadProgramText(folder.Path(), "calvoro.dat").texts);
    folder.Write("calvoro.dat", "20\tReady?\n");
    const LoadedTexts loaded = LoadProgramText(folder.Path(), "calvoro.dat");
    ASSERT_TRUE(loaded.texts);
    EXPECT_EQ(loaded.texts->GetProgramText(20), "Ready?");
}

std::string TextIn(LanguageNumber language, std::string_view bytes, std::int16_t number) {
    const ProgramTextReading read = ReadProgramTexts(bytes);
    if (!read.texts) return "not read";
    Texts texts(*read.texts);
    texts.TextLanguage = language;
    return texts.GetProgramText(number);
}

TEST(GetProgramText, ReadsATextInALanguage) {
    EXPECT_EQ(TextIn(LanguageEnglish, "18\tThis\tDies\n", 18), "This");
    EXPECT_EQ(TextIn(LanguageGerman, "18\tThis\tDies\n", 18), "Dies");
}

TEST(GetProgramText, IsEmptyWhereThereIsNone) {
    constexpr std::string_view kBytes = "18\tThis\tDies\n19\tThis alone\n";
    EXPECT_EQ(TextIn(LanguageEnglish, kBytes, 20), "") << "no such number";
    EXPECT_EQ(TextIn(LanguageEnglish, kBytes, -18), "");
    EXPECT_EQ(TextIn(LanguageSpanish, kBytes, 18), "") << "no text in this language";
    EXPECT_EQ(TextIn(LanguageGerman, kBytes, 19), "");
    EXPECT_EQ(TextIn(3, kBytes, 18), "") << "no such language";
    EXPECT_EQ(TextIn(-1, kBytes, 18), "");
}

TEST(GetProgramText, TakesATildeAloneAsAnEmptyText) {
    EXPECT_EQ(TextIn(LanguageEnglish, "1\t~\t~~\t ~\n", 1), "");
    EXPECT_EQ(TextIn(LanguageGerman, "1\t~\t~~\t ~\n", 1), "~~");
    EXPECT_EQ(TextIn(LanguageSpanish, "1\t~\t~~\t ~\n", 1), " ~");
}

TEST(GetProgramText, GivesTheLongestTextWhole) {
    const std::string longest(1023, 'x');
    EXPECT_EQ(TextIn(LanguageEnglish, "1\t" + longest + "\n", 1), longest);
}

TEST(GetProgramText, KeepsBlanksAtTheEnd) {
    EXPECT_EQ(TextIn(LanguageEnglish, "1\ttwo blanks  \n", 1), "two blanks  ");
}

// The file that is shipped.

struct ShippedCase {
    std::int16_t number;
    std::string english;
    std::string german;
};

void PrintTo(const ShippedCase& row, std::ostream* out) {
    *out << row.number;
}

class ShippedProgramTextTest : public testing::TestWithParam<ShippedCase> {};

TEST_P(ShippedProgramTextTest, IsThere) {
    const LoadedTexts loaded = LoadProgramText(std::string(CALVORO_SOURCE_DIR) + "/text", "calvoro.dat");
    ASSERT_TRUE(loaded.texts) << loaded.message;
    Texts texts = *loaded.texts;
    EXPECT_EQ(texts.GetProgramText(GetParam().number), GetParam().english);
    texts.TextLanguage = LanguageGerman;
    EXPECT_EQ(texts.GetProgramText(GetParam().number), GetParam().german);
}

const ShippedCase kShipped[] = {
    {1, "Calvoro", "Calvoro"},
    {2, "Vantorel Systems", "Vantorel Systems"},
    {13, "ISO 8601 Week dates:", "ISO-8601-Woche-Daten:"},
    {14, "Display ISO Week dates", "ISO-Woche-Daten zeigen"},
    {15, "Hide ISO Week dates", "ISO-Woche-Daten verbergen"},
    {18, "This deletes the settings file, restores all options",
     "Die Einstellungsdatei wird geloescht, alle Optionen werden"},
    {19, "to their original values and empties all boxes.", "zurueckgesetzt und alle Felder geleert."},
    {20, "Do you want to continue?", "Wollen Sie fortfahren?"},
    {21, "The number of months between two dates is not available.",
     "Die Anzahl der Monate zwischen zwei Daten ist nicht verfuegbar."},
    {22, "The difference is now counted in days: please click again.",
     "Die Differenz wird jetzt in Tagen gezaehlt: bitte nochmals klicken."},
    {23, "To add or subtract a number of months",
     "Um eine Anzahl von Monaten zu addieren oder zu subtrahieren,"},
    {24, "both dates must be in the same calendar.", "muessen beide Daten im selben Kalender sein."},
    {25, "Months can be added or subtracted only with",
     "Monate koennen nur addiert oder subtrahiert werden mit"},
    {26, "Common Era dates, Julian Calendar dates and", "Common Era Daten, julianischen Kalenderdaten und"},
    {27, "Vantorel Leap Week month dates (LPM).", "Vantorel Leap Week Monatdaten (LPM)."},
    {150, "Cannot convert date", "Datum nicht konvertierbar"},
    {156, "The first date is not valid in its calendar.",
     "Das erste Datum ist in seinem Kalender nicht zulaessig."},
    {157, "The second date is not valid in its calendar.",
     "Das zweite Datum ist in seinem Kalender nicht zulaessig."},
    {310, "Calvoro", "Calvoro"},
    {311, "Vantorel", "Vantorel"},
};

INSTANTIATE_TEST_SUITE_P(Numbers, ShippedProgramTextTest, testing::ValuesIn(kShipped),
                         [](const auto& row) { return "Text" + std::to_string(row.param.number); });

TEST(ShippedProgramTexts, HoldNothingElse) {
    EXPECT_EQ(ReadProgramTexts(BuiltInProgramTexts()).result, static_cast<std::int32_t>(std::size(kShipped)));
}

TEST(ShippedProgramTexts, AreTheEnglishOnesWhereSpanishIsChosen) {
    const Texts texts(LanguageEnglish, LanguageSpanish);
    for (const ShippedCase& row : kShipped) {
        EXPECT_EQ(texts.GetProgramText(row.number), row.english) << row.number;
    }
}

TEST(ShippedProgramTexts, AreBuiltInByteForByte) {
    std::ifstream file(std::string(CALVORO_SOURCE_DIR) + "/text/calvoro.dat", std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    ASSERT_FALSE(bytes.str().empty());
    EXPECT_EQ(BuiltInProgramTexts(), bytes.str());
}

TEST(Texts, HaveTheBuiltInTextsUnlessTheyAreGivenOthers) {
    const Texts texts;
    for (const ShippedCase& row : kShipped) {
        EXPECT_EQ(texts.GetProgramText(row.number), row.english) << row.number;
    }
}

TEST(Texts, DeliberateNumberedTextsStayInTheirOwnLanguage) {
    // The numbered texts follow the interface's language only when the month window is activated.
    Texts texts;
    texts.InterfaceLanguage = LanguageGerman;
    EXPECT_EQ(texts.GetProgramText(20), "Do you want to continue?");
    EXPECT_EQ(texts.Shown(TextId::Help), "Hilfe");
    texts.TextLanguage = LanguageGerman;
    EXPECT_EQ(texts.GetProgramText(20), "Wollen Sie fortfahren?");
}

}  // namespace
}  // namespace calvoro
