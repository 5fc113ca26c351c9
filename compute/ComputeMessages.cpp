#include "compute/ComputeMessages.h"

#include <array>
#include <stdexcept>

namespace calvoro {
namespace {

using MessageRow = std::array<std::string_view, kComputeMessageCount>;

constexpr MessageRow kEnglish = {
    "If both the first date and the second date are specified\r\n"
    "then the date difference window must be empty.",
    "First date is not valid in specified calendar using specified date format.",
    "First date is not valid in the ISO 8601 Week Calendar.",
    "First date is out of range.",
    "Date difference is not valid.",
    "Date difference is out of range.",
    "Second date is not valid in specified calendar using specified date format.",
    "Second date is not valid in the ISO 8601 Week Calendar.",
    "Second date is out of range.",
    "Result is out of range.",
};

constexpr MessageRow kGerman = {
    // Deliberate: this one begins with a blank.
    " Wenn sowohl Erstes als auch Zweites Datum angegeben sind,\r\n"
    "muss das Feld fuer die Datumsdifferenz leer sein.",
    "Erstes Datum ist in dem angegebenen Kalender (und Datumsformat) nicht zulaessig.",
    "Erstes Datum ist in dem ISO 8601 Week Kalender nicht zulaessig.",
    "Erstes Datum liegt ausserhalb des erlaubten Bereichs.",
    "Datumsdifferenz ist nicht zulaessig.",
    "Datumsdifferenz ist ausserhalb des erlaubten Bereichs.",
    "Zweites Datum ist in dem angegebenen Kalender (und Datumsformat) nicht zulaessig.",
    "Zweites Datum ist in dem ISO 8601 Week Kalender nicht zulaessig.",
    "Zweites Datum liegt ausserhalb des erlaubten Bereichs.",
    "Das Resultat liegt ausserhalb des erlaubten Bereichs.",
};

constexpr MessageRow kSpanish = {
    "Si ambas, la primera y la segunda fechas, son especificadas entonces\r\n"
    "la ventana de diferencia de fechas debe estar vacía.",
    "La primera fecha no es válida en un calendario especificado.",
    "La primera fecha no es válida en Calendario ISO 8601 Week.",
    "Primera fecha está fuera de rango.",
    "Diferencia de fechas no es válida.",
    "Diferencia de fechas está fuera de rango.",
    // Deliberate: the accent of "específicado" belongs to the text.
    "La segunda fecha no es válida en el calendario específicado.",
    "La segunda fecha no es válida en Calendario ISO 8601 Week.",
    "La segunda fecha está fuera de rango.",
    "El resultado está fuera de rango.",
};

// By language number; Portuguese, Italian and French have none.
constexpr std::array<MessageRow, 6> kMessages = {{kEnglish, kGerman, kSpanish, {}, {}, {}}};
static_assert(kMessages[LanguageEnglish] == kEnglish && kMessages[LanguageGerman] == kGerman &&
              kMessages[LanguageSpanish] == kSpanish);
static_assert(static_cast<std::size_t>(ComputeMessage::ResultOutOfRange) + 1 == kComputeMessageCount);

}  // namespace

std::string_view ComputeMessageText(ComputeMessage message, LanguageNumber language) {
    if (language < 0 || static_cast<std::size_t>(language) >= kMessages.size()) {
        throw std::out_of_range("language number");
    }
    return kMessages[static_cast<std::size_t>(language)][static_cast<std::size_t>(message)];
}

std::string ErrorTitle(const Texts& texts) {
    return std::string(texts.Shown(TextId::Error)) + "!";
}

void ShowComputeMessage(ComputeMessage message, const Texts& texts, ComputeWindow& window) {
    window.ShowMessage(ComputeMessageText(message, texts.InterfaceLanguage), ErrorTitle(texts));
}

}  // namespace calvoro
