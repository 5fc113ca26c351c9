#include "windows/HelpText.h"

#include <string_view>

#include "text/Language.h"

namespace calvoro {
namespace {

struct HelpParagraph {
    std::string_view text;
    std::string WebAddresses::*address = nullptr;  // stands after the text
    std::string_view afterAddress = {};
};

// Deliberate: slips included ("'yyy-yddd'", two blanks after "New Year's Day", the word order of the last
// German sentence); the wording is not this program's to change.
constexpr std::array<HelpParagraph, 12> kEnglish = {{
    {"The complete user manual for this software is online at: ", &WebAddresses::manualEnglish},
    {"This program converts Common Era dates, Julian Calendar dates, ISO 8601 Week dates, Vantorel Leap "
     "Week dates, ordinal dates ('yyyy-ddd') and Julian day numbers.  It can also be used to add or "
     "subtract a number of days or months to or from a date and to find the difference in days between "
     "two dates."},
    {"A Common Era (CE) date is a date in the Gregorian Calendar, except that years are numbered -1, 0, "
     "1, 2 CE ... rather than AD/BC (1 AD = 1 CE, 1 BC = 0 CE, 2 BC = -1 CE, etc.)"},
    {"A Julian Calendar date is a date in the Julian Calendar, with years numbered in the same way.  "
     "See ",
     &WebAddresses::calendarsArticle},
    {"The ordinal date 'yyy-yddd' date specifies day 'ddd' of Common Era year 'yyyy', where New Year's "
     "Day  is day 001 and the last day of the year is 365 or (in leap years) 366.  Dates in this format "
     "can range from 0001-001 to 9999-365."},
    {"An ISO 8601 Week Calendar date is a date of the form (year)-W(week)-(day).  For an explanation of "
     "this calendar see: ",
     &WebAddresses::isoWeekArticle},
    {"A Vantorel Leap Week Calendar date is of the form (year)-(week)-(day) LPW or (year)-(month)-(day) "
     "LPM.  For an explanation of this calendar see: ",
     &WebAddresses::leapWeekPage},
    {"The (chronological) Julian day number of a day is the number of days since the start of "
     "-4712-01-01 (Julian Calendar)."},
    {"To convert a date from one calendar to another first specify the input and output calendars to be "
     "used then enter the date in 'First date', and click on 'Compute'."},
    {"To get the number of days from one date to another (possibly a date in a different calendar) "
     "enter both dates and click on 'Compute'."},
    {"To add or subtract a number of days to the first date (or to the second date) enter that date and "
     "the number of days (positive or negative) and click on 'Compute'."},
    {"In the Julian Calendar a year is a leap year if it is divisible by 4.  In the Common Era Calendar "
     "a year is a leap year if either (i) it is divisible by 4 but not by 100 or (ii) it is divisible "
     "by 400.  In the Vantorel Leap Week Calendar a year is a leap year if it is the third year of a "
     "'hexade'."},
}};

constexpr std::array<HelpParagraph, 11> kGerman = {{
    {"Das Benutzerhandbuch fuer diese Software ist an ", &WebAddresses::manualGerman, " verfuegbar."},
    {"Dieses Programm konvertiert verschiedene Arten von Daten und julianische Tageszahlen.  Es erlaubt "
     "die Addition und die Subtraktion einer Anzahl von Tagen oder Monate zu einem vorgegebenen Datum."},
    {"Ein Datum im (engl.) \"Common Era\" Kalender (CE) gleicht einem Datum im gregorianischen "
     "Kalender. Aber in diesem Kalender gibt es das Jahr 0, so dass sich die Jahreszahlen bezogen auf "
     "die Zeit vor Christi Geburt zwischen dem gregorianischen Kalender und dem \"Common Era\" Kalender "
     "um eine Einheit unterscheiden: 1 CE = 1 n.Chr., 0 CE = 1 v.Chr., -1 CE = 2 v.Chr., -2 CE = 3 "
     "v.Chr. usw."},
    {"Ein julianisches Kalenderdatum ist ein Datum im julianischen Kalender (JC); die Jahre werden in "
     "gleicher Weise gezaehlt.  Sehen Sie ",
     &WebAddresses::calendarsArticle},
    {"Ein ISO-8601-Woche Kalenderdatum ist ein Datum der Form (Jahr)-W(Woche)-(Tag).  Fuer eine "
     "Erklaerung dieses Kalenders sehen Sie: ",
     &WebAddresses::isoWeekArticle},
    {"Ein Vantorel Leap Week Kalenderdatum ist von der Form (Jahr)-(Woche)-(Tag) LPW oder "
     "(Jahr)-(Monat)-(Tag) LPM.  ",
     &WebAddresses::leapWeekPage},
    {"Die julianischen Zaehlung verwendet den Tag als Einheit. Die (chronologische) julianische "
     "Tageszahl (JDN) gibt die Anzahl der Tage an, die seit dem Anfang vom 1.1.-4712 JC vergangen sind."},
    {"Um die Daten aus einem Kalender in einen anderen umzuwandeln, ist zuerst zu spezifizieren, auf "
     "welches Kalendersystem sich das 'Erste Datum' bezieht, gefolgt von der Angabe des Kalenders, in "
     "den umgerechnet werden soll.  Danach muss im Feld 'Erstes Datum' ein Datum eingegeben werden. Das "
     "Anklicken von 'Berechnen' liefert das Resultat."},
    {"Um die Anzahl der Tage zwischen zwei Datumsangaben eines Kalenders zu erhalten (moeglich sind "
     "Datumsangaben in allen Kalendersystemen) sind beide Daten einzugeben. Resultat durch Klick auf "
     "'Berechnen'."},
    {"Um eine Anzahl von Tagen zu einem Datum (erstes oder zweites Datum) zu addieren oder von einem "
     "Datum zu subtrahieren, muss das Datum angegeben werden plus die Anzahl der Tage: positiv "
     "(Addition) oder negativ (Subtraktion).  Resultat durch Klick auf 'Berechnen'."},
    {"Im julianischen Kalender ist ein Jahr Schaltjahr, wenn die Jahreszahl durch 4 teilbar ist.  Im "
     "Common Era Kalender ist ein Jahr Schaltjahr, wenn die Jahreszahl durch 4 aber nicht durch 100 "
     "teilbar ist, mit der Ausnahme, dass Jahreszahlen, die durch 400 teilbar sind, ebenfalls "
     "Schaltjahre ergeben.  Im Vantorel Leap Week Kalender ein Jahr ist ein Schaltjahr, wenn es das "
     "dritte Jahr eines 'Hexade' ist."},
}};

template <std::size_t Count>
std::string Joined(const std::array<HelpParagraph, Count>& paragraphs, const WebAddresses& addresses) {
    std::string joined;
    for (const HelpParagraph& paragraph : paragraphs) {
        joined += paragraph.text;
        if (paragraph.address != nullptr) joined += addresses.*paragraph.address;
        joined += paragraph.afterAddress;
        joined += "\r\n\r\n";
    }
    return joined;
}

}  // namespace

HelpTexts FillHelpText(const WebAddresses& addresses) {
    HelpTexts texts;
    texts[LanguageEnglish] = Joined(kEnglish, addresses);
    texts[LanguageGerman] = Joined(kGerman, addresses);
    return texts;
}

}  // namespace calvoro
