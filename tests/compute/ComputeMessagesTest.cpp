#include "compute/ComputeMessages.h"

#include <gtest/gtest.h>

#include <ostream>
#include <stdexcept>
#include <string>

#include "tests/support/FakeComputeWindow.h"

namespace calvoro {
namespace {

struct MessageCase {
    std::string name;
    ComputeMessage message;
    std::string english;
    std::string german;
    std::string spanish;
};

void PrintTo(const MessageCase& row, std::ostream* out) {
    *out << row.name;
}

const MessageCase kCases[] = {
    {"DifferenceMustBeEmpty", ComputeMessage::DifferenceMustBeEmpty,
     "If both the first date and the second date are specified\r\nthen the date difference window must be "
     "empty.",
     " Wenn sowohl Erstes als auch Zweites Datum angegeben sind,\r\nmuss das Feld fuer die Datumsdifferenz "
     "leer sein.",
     "Si ambas, la primera y la segunda fechas, son especificadas entonces\r\nla ventana de diferencia de "
     "fechas debe estar vacía."},
    {"FirstDateNotValid", ComputeMessage::FirstDateNotValid,
     "First date is not valid in specified calendar using specified date format.",
     "Erstes Datum ist in dem angegebenen Kalender (und Datumsformat) nicht zulaessig.",
     "La primera fecha no es válida en un calendario especificado."},
    {"FirstDateNotValidIso", ComputeMessage::FirstDateNotValidIso,
     "First date is not valid in the ISO 8601 Week Calendar.",
     "Erstes Datum ist in dem ISO 8601 Week Kalender nicht zulaessig.",
     "La primera fecha no es válida en Calendario ISO 8601 Week."},
    {"FirstDateOutOfRange", ComputeMessage::FirstDateOutOfRange, "First date is out of range.",
     "Erstes Datum liegt ausserhalb des erlaubten Bereichs.", "Primera fecha está fuera de rango."},
    {"DifferenceNotValid", ComputeMessage::DifferenceNotValid, "Date difference is not valid.",
     "Datumsdifferenz ist nicht zulaessig.", "Diferencia de fechas no es válida."},
    {"DifferenceOutOfRange", ComputeMessage::DifferenceOutOfRange, "Date difference is out of range.",
     "Datumsdifferenz ist ausserhalb des erlaubten Bereichs.", "Diferencia de fechas está fuera de rango."},
    {"SecondDateNotValid", ComputeMessage::SecondDateNotValid,
     "Second date is not valid in specified calendar using specified date format.",
     "Zweites Datum ist in dem angegebenen Kalender (und Datumsformat) nicht zulaessig.",
     "La segunda fecha no es válida en el calendario específicado."},
    {"SecondDateNotValidIso", ComputeMessage::SecondDateNotValidIso,
     "Second date is not valid in the ISO 8601 Week Calendar.",
     "Zweites Datum ist in dem ISO 8601 Week Kalender nicht zulaessig.",
     "La segunda fecha no es válida en Calendario ISO 8601 Week."},
    {"SecondDateOutOfRange", ComputeMessage::SecondDateOutOfRange, "Second date is out of range.",
     "Zweites Datum liegt ausserhalb des erlaubten Bereichs.", "La segunda fecha está fuera de rango."},
    {"ResultOutOfRange", ComputeMessage::ResultOutOfRange, "Result is out of range.",
     "Das Resultat liegt ausserhalb des erlaubten Bereichs.", "El resultado está fuera de rango."},
};
static_assert(std::size(kCases) == kComputeMessageCount);

class ComputeMessagesTest : public testing::TestWithParam<MessageCase> {};

TEST_P(ComputeMessagesTest, AreTheseInThreeLanguages) {
    const MessageCase& row = GetParam();
    EXPECT_EQ(ComputeMessageText(row.message, LanguageEnglish), row.english);
    EXPECT_EQ(ComputeMessageText(row.message, LanguageGerman), row.german);
    EXPECT_EQ(ComputeMessageText(row.message, LanguageSpanish), row.spanish);
}

TEST_P(ComputeMessagesTest, AreEmptyInTheOtherLanguages) {
    for (LanguageNumber language = 3; language <= 5; ++language) {
        EXPECT_EQ(ComputeMessageText(GetParam().message, language), "");
    }
}

TEST_P(ComputeMessagesTest, RefuseLanguagesThatAreNone) {
    EXPECT_THROW(ComputeMessageText(GetParam().message, -1), std::out_of_range);
    EXPECT_THROW(ComputeMessageText(GetParam().message, 6), std::out_of_range);
}

TEST_P(ComputeMessagesTest, AreShownInTheLanguageOfTheInterface) {
    const MessageCase& row = GetParam();
    FakeComputeWindow window;
    ShowComputeMessage(row.message, {LanguageEnglish, LanguageGerman}, window);
    ShowComputeMessage(row.message, {LanguageGerman, LanguageEnglish}, window);
    ShowComputeMessage(row.message, {LanguageSpanish, LanguageEnglish}, window);
    ASSERT_EQ(window.messages.size(), 3U);
    EXPECT_EQ(window.messages[0], (FakeComputeWindow::Message{row.english, "Error!"}));
    EXPECT_EQ(window.messages[1], (FakeComputeWindow::Message{row.german, "Fehler!"}));
    EXPECT_EQ(window.messages[2], (FakeComputeWindow::Message{row.spanish, "Error!"}));
}

INSTANTIATE_TEST_SUITE_P(EveryMessage, ComputeMessagesTest, testing::ValuesIn(kCases),
                         [](const auto& row) { return row.param.name; });

TEST(ComputeMessages, DeliberateSlipsStay) {
    EXPECT_EQ(ComputeMessageText(ComputeMessage::DifferenceMustBeEmpty, LanguageGerman).front(), ' ');
    EXPECT_TRUE(ComputeMessageText(ComputeMessage::SecondDateNotValid, LanguageSpanish)
                    .ends_with("calendario específicado."));
}

TEST(ErrorTitle, FollowsTheInterface) {
    EXPECT_EQ(ErrorTitle({LanguageEnglish, LanguageGerman}), "Error!");
    EXPECT_EQ(ErrorTitle({LanguageGerman, LanguageEnglish}), "Fehler!");
    EXPECT_EQ(ErrorTitle({LanguageSpanish, LanguageEnglish}), "Error!");
}

}  // namespace
}  // namespace calvoro
