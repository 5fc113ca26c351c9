#include "text/NamedTexts.h"

#include <stdexcept>

namespace calvoro {
namespace {

struct NamedTextRow {
    TextId id{};
    std::array<std::string_view, 3> texts;  // by language number
};

constexpr std::array<NamedTextRow, kNamedTextCount> kNamedTexts = {{
    {TextId::AWeekFromTodayIs, {"A week from today is", "Eine Woche weiter ist", ""}},
    {TextId::TodayIs, {"Today is", "Heute ist", ""}},
    {TextId::Calendar, {"Calendar", "Kalender", ""}},
    {TextId::CancelThisOperation, {"Cancel this operation", "Annullieren Sie diese Operation", ""}},
    {TextId::DateFormatCaption, {"CE/JC date format", "CE/JC-Datumsformat", ""}},
    {TextId::DateSeparatorCaption, {"CE/JC date separator", "CE/JC-Datumstrennzeichen", ""}},
    {TextId::Clear, {"Clear", "Loeschen", ""}},
    {TextId::ClickToChangeCalendar, {"Click to change calendar", "Anklicken um Kalender zu veraendern", ""}},
    {TextId::Close, {"Close", "Schliessen", ""}},
    {TextId::CommonEra, {"Common Era", "Common Era", ""}},
    {TextId::CommonEraCalendar, {"Common Era Calendar", "Common Era Kalender", ""}},
    {TextId::CommonEraDate, {"Common Era date", "Common Era Datum", ""}},
    {TextId::Compute, {"Compute", "Berechnen", ""}},
    {TextId::Continue, {"Continue", "Fortfahren", ""}},
    {TextId::CopyToClipboard, {"Copy to clipboard", "Kopieren in Zwischenablage", ""}},
    {TextId::DateDifference, {"Date difference", "Datumsdifferenz", ""}},
    {TextId::Day, {"Day", "Tag", ""}},
    {TextId::Days, {"Days", "Tage", ""}},
    {TextId::DisplayISOWeekDates, {"Display ISO Week dates", "ISO-Woche-Daten zeigen", ""}},
    {TextId::DisplayMonth, {"Display month", "Monat zeigen", ""}},
    {TextId::DisplayNextMonth, {"Display next month", "Folgender Monat zeigen", ""}},
    {TextId::DisplayPreviousMonth, {"Display previous month", "Vorhergehender Monat zeigen", ""}},
    {TextId::Enlarge, {"Enlarge", "Vergroessern", ""}},
    {TextId::Error, {"Error", "Fehler", ""}},
    {TextId::ExcludingFirstDate, {"excluding 1st date", "ausschliesslich 1. Datum", ""}},
    {TextId::IncludingFirstDate, {"including 1st date", "einschliesslich 1. Datum", ""}},
    {TextId::NotCountingWeekendDays, {"not counting weekend days", "die Wochenendtage nicht gezaehlt", ""}},
    {TextId::FirstDate, {"First date", "Erstes Datum", ""}},
    {TextId::FirstDayOfWeek, {"First day of week", "Erster Tag der Woche", ""}},
    {TextId::Help, {"Help", "Hilfe", ""}},
    {TextId::ISOWeekDate, {"ISO Week date", "ISO-Woche-Datum", ""}},
    {TextId::HyphenInOrdinalAnd, {"Hyphen in ordinal and", "Divis in Ordinal und", ""}},
    {TextId::InISOWeekDates, {"in ISO Week dates", "in ISO-Woche Daten", ""}},
    {TextId::IncludeFirstDate, {"Include first date in days-beween-dates", "Erstes Datum einschliessen", ""}},
    {TextId::CountWeekendDays, {"Count weekend days in days-between-dates", "Wochenendtage zaehlen", ""}},
    {TextId::InvalidInput, {"Invalid input", "Ungueltige Eingabe", ""}},
    {TextId::PleaseSpecifyYear, {"Please specify year", "Spezifizieren Sie bitte das Jahr", ""}},
    {TextId::Julian, {"Julian", "Julianisch", ""}},
    {TextId::JulianCalendar, {"Julian Calendar", "Julianischer Kalender", ""}},
    {TextId::JulianCalendarDate, {"Julian Calendar date", "Julianisches Kalenderdatum", ""}},
    {TextId::JulianDayNumber, {"Julian day number", "Julianische Tageszahl", ""}},
    {TextId::LeapWeekMonthDate, {"Vantorel Leap Week month date", "Vantorel Leap Week Monatdatum", ""}},
    {TextId::LeapWeekWeekDate, {"Vantorel Leap Week week date", "Vantorel Leap Week Wochendatum", ""}},
    {TextId::Minus, {"minus", "minus", ""}},
    {TextId::Plus, {"plus", "plus", ""}},
    {TextId::Month, {"Month", "Monat", ""}},
    {TextId::Months, {"Months", "Monate", ""}},
    {TextId::None, {"None", "Keine", ""}},
    {TextId::Or, {"or", "oder", ""}},
    {TextId::OrdinalDate, {"Ordinal date", "Ordinaldatum", ""}},
    {TextId::OrdinalExampleCompact, {"yyyyddd", "JJJJTTT", ""}},
    {TextId::OrdinalExampleHyphenated, {"yyyy-ddd", "JJJJ-TTT", ""}},
    {TextId::OutOfRange, {"Out of Range", "Ausserhalb des erlaubten Bereichs", ""}},
    {TextId::OutputWindow, {"Output window", "Ausgabefenster", ""}},
    {TextId::OutputWindowIsEmpty, {"The output window is empty.", "Das Ausgabefenster is leer.", ""}},
    {TextId::Quit, {"Quit", "Beenden", ""}},
    {TextId::Reset, {"Reset", "Rueckstellen", ""}},
    {TextId::SaveResultsOnQuit, {"Save results on quit", "Ergebnisse beim Beenden sichern", ""}},
    {TextId::SecondDate, {"Second date", "Zweites Datum", ""}},
    {TextId::SecondToFirst, {"Second -> First", "Zweites -> Erstes", ""}},
    {TextId::ThisIsA, {"This is a", "Dies ist ein", ""}},
    {TextId::ThousandsSeparator, {"Thousands separator", "Tausendertrennzeichen", ""}},
    {TextId::Today, {"Today", "Heute", ""}},
    {TextId::Verbose, {"Verbose", "Zusatzinfo", ""}},
    {TextId::WithFinalDigitOfYear, {"with final digit of year", "mit letzter Ziffer des Jahres", ""}},
    {TextId::Year, {"Year", "Jahr", ""}},
    {TextId::Years, {"Years", "Jahre", ""}},
    {TextId::To, {"To", "Bis", ""}},
    {TextId::Week, {"Week", "Woche", ""}},
    {TextId::Weeks, {"Weeks", "Wochen", ""}},
}};

constexpr bool RowsStandInTheOrderOfTheirIds() {
    for (std::size_t i = 0; i < kNamedTexts.size(); ++i) {
        if (static_cast<std::size_t>(kNamedTexts[i].id) != i) return false;
    }
    return true;
}
static_assert(RowsStandInTheOrderOfTheirIds());

}  // namespace

std::string_view NamedText(TextId id, LanguageNumber language) {
    if (language < LanguageEnglish || language > LanguageSpanish) throw std::out_of_range("language number");
    return kNamedTexts[static_cast<std::size_t>(id)].texts[static_cast<std::size_t>(language)];
}

std::string_view ShownText(TextId id, LanguageNumber language) {
    const std::string_view text = NamedText(id, language);
    return text.empty() ? NamedText(id, LanguageEnglish) : text;
}

}  // namespace calvoro
