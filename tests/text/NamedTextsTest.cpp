#include "text/NamedTexts.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <ostream>
#include <stdexcept>

#include "text/Texts.h"

namespace calvoro {
namespace {

struct NamedTextCase {
    TextId id;
    std::string_view english;
    std::string_view german;
};

void PrintTo(const NamedTextCase& row, std::ostream* out) {
    *out << row.english;
}

// Written down a second time on purpose: a text changed by accident must differ from one of the two.
constexpr NamedTextCase kCases[] = {
    {TextId::AWeekFromTodayIs, "A week from today is", "Eine Woche weiter ist"},
    {TextId::TodayIs, "Today is", "Heute ist"},
    {TextId::Calendar, "Calendar", "Kalender"},
    {TextId::CancelThisOperation, "Cancel this operation", "Annullieren Sie diese Operation"},
    {TextId::DateFormatCaption, "CE/JC date format", "CE/JC-Datumsformat"},
    {TextId::DateSeparatorCaption, "CE/JC date separator", "CE/JC-Datumstrennzeichen"},
    {TextId::Clear, "Clear", "Loeschen"},
    {TextId::ClickToChangeCalendar, "Click to change calendar", "Anklicken um Kalender zu veraendern"},
    {TextId::Close, "Close", "Schliessen"},
    {TextId::CommonEra, "Common Era", "Common Era"},
    {TextId::CommonEraCalendar, "Common Era Calendar", "Common Era Kalender"},
    {TextId::CommonEraDate, "Common Era date", "Common Era Datum"},
    {TextId::Compute, "Compute", "Berechnen"},
    {TextId::Continue, "Continue", "Fortfahren"},
    {TextId::CopyToClipboard, "Copy to clipboard", "Kopieren in Zwischenablage"},
    {TextId::DateDifference, "Date difference", "Datumsdifferenz"},
    {TextId::Day, "Day", "Tag"},
    {TextId::Days, "Days", "Tage"},
    {TextId::DisplayISOWeekDates, "Display ISO Week dates", "ISO-Woche-Daten zeigen"},
    {TextId::DisplayMonth, "Display month", "Monat zeigen"},
    {TextId::DisplayNextMonth, "Display next month", "Folgender Monat zeigen"},
    {TextId::DisplayPreviousMonth, "Display previous month", "Vorhergehender Monat zeigen"},
    {TextId::Enlarge, "Enlarge", "Vergroessern"},
    {TextId::Error, "Error", "Fehler"},
    {TextId::ExcludingFirstDate, "excluding 1st date", "ausschliesslich 1. Datum"},
    {TextId::IncludingFirstDate, "including 1st date", "einschliesslich 1. Datum"},
    {TextId::NotCountingWeekendDays, "not counting weekend days", "die Wochenendtage nicht gezaehlt"},
    {TextId::FirstDate, "First date", "Erstes Datum"},
    {TextId::FirstDayOfWeek, "First day of week", "Erster Tag der Woche"},
    {TextId::Help, "Help", "Hilfe"},
    {TextId::ISOWeekDate, "ISO Week date", "ISO-Woche-Datum"},
    {TextId::HyphenInOrdinalAnd, "Hyphen in ordinal and", "Divis in Ordinal und"},
    {TextId::InISOWeekDates, "in ISO Week dates", "in ISO-Woche Daten"},
    {TextId::IncludeFirstDate, "Include first date in days-beween-dates", "Erstes Datum einschliessen"},
    {TextId::CountWeekendDays, "Count weekend days in days-between-dates", "Wochenendtage zaehlen"},
    {TextId::InvalidInput, "Invalid input", "Ungueltige Eingabe"},
    {TextId::PleaseSpecifyYear, "Please specify year", "Spezifizieren Sie bitte das Jahr"},
    {TextId::Julian, "Julian", "Julianisch"},
    {TextId::JulianCalendar, "Julian Calendar", "Julianischer Kalender"},
    {TextId::JulianCalendarDate, "Julian Calendar date", "Julianisches Kalenderdatum"},
    {TextId::JulianDayNumber, "Julian day number", "Julianische Tageszahl"},
    {TextId::LeapWeekMonthDate, "Vantorel Leap Week month date", "Vantorel Leap Week Monatdatum"},
    {TextId::LeapWeekWeekDate, "Vantorel Leap Week week date", "Vantorel Leap Week Wochendatum"},
    {TextId::Minus, "minus", "minus"},
    {TextId::Plus, "plus", "plus"},
    {TextId::Month, "Month", "Monat"},
    {TextId::Months, "Months", "Monate"},
    {TextId::None, "None", "Keine"},
    {TextId::Or, "or", "oder"},
    {TextId::OrdinalDate, "Ordinal date", "Ordinaldatum"},
    {TextId::OrdinalExampleCompact, "yyyyddd", "JJJJTTT"},
    {TextId::OrdinalExampleHyphenated, "yyyy-ddd", "JJJJ-TTT"},
    {TextId::OutOfRange, "Out of Range", "Ausserhalb des erlaubten Bereichs"},
    {TextId::OutputWindow, "Output window", "Ausgabefenster"},
    {TextId::OutputWindowIsEmpty, "The output window is empty.", "Das Ausgabefenster is leer."},
    {TextId::Quit, "Quit", "Beenden"},
    {TextId::Reset, "Reset", "Rueckstellen"},
    {TextId::SaveResultsOnQuit, "Save results on quit", "Ergebnisse beim Beenden sichern"},
    {TextId::SecondDate, "Second date", "Zweites Datum"},
    {TextId::SecondToFirst, "Second -> First", "Zweites -> Erstes"},
    {TextId::ThisIsA, "This is a", "Dies ist ein"},
    {TextId::ThousandsSeparator, "Thousands separator", "Tausendertrennzeichen"},
    {TextId::Today, "Today", "Heute"},
    {TextId::Verbose, "Verbose", "Zusatzinfo"},
    {TextId::WithFinalDigitOfYear, "with final digit of year", "mit letzter Ziffer des Jahres"},
    {TextId::Year, "Year", "Jahr"},
    {TextId::Years, "Years", "Jahre"},
    {TextId::To, "To", "Bis"},
    {TextId::Week, "Week", "Woche"},
    {TextId::Weeks, "Weeks", "Wochen"},
};
static_assert(std::size(kCases) == kNamedTextCount);

class NamedTextsTest : public testing::TestWithParam<NamedTextCase> {};

TEST_P(NamedTextsTest, HoldsEnglishAndGermanAndNoSpanish) {
    const NamedTextCase& row = GetParam();
    EXPECT_EQ(NamedText(row.id, LanguageEnglish), row.english);
    EXPECT_EQ(NamedText(row.id, LanguageGerman), row.german);
    EXPECT_EQ(NamedText(row.id, LanguageSpanish), "");
}

TEST_P(NamedTextsTest, ShowsEnglishWhereThereIsNoSpanish) {
    const NamedTextCase& row = GetParam();
    EXPECT_EQ(ShownText(row.id, LanguageEnglish), row.english);
    EXPECT_EQ(ShownText(row.id, LanguageGerman), row.german);
    EXPECT_EQ(ShownText(row.id, LanguageSpanish), row.english);
}

TEST_P(NamedTextsTest, RefusesOtherLanguages) {
    for (const LanguageNumber language : std::initializer_list<LanguageNumber>{-1, 3, 4, 5, 6}) {
        EXPECT_THROW(NamedText(GetParam().id, language), std::out_of_range) << language;
        EXPECT_THROW(ShownText(GetParam().id, language), std::out_of_range) << language;
    }
}

INSTANTIATE_TEST_SUITE_P(EveryText, NamedTextsTest, testing::ValuesIn(kCases),
                         [](const auto& row) { return "Text" + std::to_string(row.index); });

TEST(NamedTexts, DeliberateSlipsOfSpellingStay) {
    EXPECT_EQ(NamedText(TextId::IncludeFirstDate, LanguageEnglish),
              "Include first date in days-beween-dates");
    EXPECT_EQ(NamedText(TextId::OutputWindowIsEmpty, LanguageGerman), "Das Ausgabefenster is leer.");
}

TEST(Texts, StartInEnglish) {
    const Texts texts;
    EXPECT_EQ(texts.InterfaceLanguage, LanguageEnglish);
    EXPECT_EQ(texts.TextLanguage, LanguageEnglish);
    EXPECT_EQ(texts.Shown(TextId::Help), "Help");
}

TEST(LanguageNames, ListSixLanguagesAndAllOfThem) {
    ASSERT_EQ(LanguageNames.size(), 7U);
    EXPECT_EQ(LanguageNames[LanguageEnglish], "English");
    EXPECT_EQ(LanguageNames[LanguageGerman], "German");
    EXPECT_EQ(LanguageNames[LanguageSpanish], "Spanish");
    EXPECT_EQ(LanguageNames[3], "Portuguese");
    EXPECT_EQ(LanguageNames[4], "Italian");
    EXPECT_EQ(LanguageNames[5], "French");
    EXPECT_EQ(LanguageNames[6], "all six languages");
}

}  // namespace
}  // namespace calvoro
