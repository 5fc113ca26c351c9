#include "windows/list/ListWords.h"

#include <system_error>

namespace calvoro {
namespace {

constexpr ListWords kEnglish = {
    .title = "Calvoro List",
    .howTo =
        "Copy a column of dates, for example from a spreadsheet, and paste it here (Ctrl+V), or drop a "
        "text or a file on this window. Each line is computed as if it stood in the date box.",
    .linesAre = "The lines are",
    .table = "List",
    .chooseColumn = "A click on the head of a column, or Enter in it, makes it the column with the dates",
    .column = "Column",
    .reading = "Read as",
    .result = "Result",
    .weekday = "Weekday",
    .reason = "Refused because",
    .paste = "Paste",
    .open = "Open file...",
    .copySelected = "Copy selected",
    .copyAll = "Copy all",
    .saveAs = "Save as...",
    .withGiven = "With the lines as given",
    .refusalsOnly = "Refusals only",
    .byDay = "Sorted by day number",
    .nextRefusal = "Next refusal",
    .earlier = "Earlier lines",
    .later = "Later lines",
    .progress = "Progress",
    .stop = "Stop",
    .fromClipboard = "List from clipboard",
    .fromFile = "List from file...",
    .openTitle = "List from file",
    .saveTitle = "Save list as",
    .tabSeparated = "Tab-separated",
    .csv = "Comma-separated",
    .line = "line",
    .lines = "lines",
    .refusal = "refusal",
    .refusals = "refusals",
    .soFar = "so far",
    .copied = "Copied",
    .saved = "Saved",
    .stopped = "Stopped",
    .noRefusal = "No line is refused.",
    .noText = "The clipboard holds no text.",
    .empty = "There is no line in it.",
    .notText = "This is no text in UTF-8.",
    .lineInSentence = "Line",
    .lineTooLong = "is longer than a line may be (1 MiB).",
    .tooLarge = "This is larger than a list may be (2 GB).",
    .unreadable = "The file cannot be read",
    .noFile = "This is no ordinary file.",
    .tooMuchForClipboard = "This is too much for the clipboard. Save the list instead.",
    .notSaved = "The list cannot be saved; the file is as it was",
    .outOfMemory = "There is not enough memory for this.",
    .busy = "Something else is still being done. Wait for its end, or stop it.",
    .thousands = ',',
};

constexpr ListWords kGerman = {
    .title = "Calvoro Liste",
    .howTo =
        "Kopieren Sie eine Spalte mit Daten, zum Beispiel aus einer Tabelle, und fuegen Sie sie hier ein "
        "(Strg+V), oder ziehen Sie einen Text oder eine Datei auf dieses Fenster. Jede Zeile wird "
        "berechnet, als staende sie im Datumsfeld.",
    .linesAre = "Die Zeilen sind",
    .table = "Liste",
    .chooseColumn =
        "Ein Klick auf den Kopf einer Spalte, oder Enter in ihr, macht sie zur Spalte mit den Daten",
    .column = "Spalte",
    .reading = "Gelesen als",
    .result = "Resultat",
    .weekday = "Wochentag",
    .reason = "Abgewiesen, weil",
    .paste = "Einfuegen",
    .open = "Datei oeffnen...",
    .copySelected = "Auswahl kopieren",
    .copyAll = "Alles kopieren",
    .saveAs = "Speichern unter...",
    .withGiven = "Mit den gegebenen Zeilen",
    .refusalsOnly = "Nur Abgewiesene",
    .byDay = "Nach Tageszahl sortiert",
    .nextRefusal = "Naechste Abgewiesene",
    .earlier = "Fruehere Zeilen",
    .later = "Spaetere Zeilen",
    .progress = "Fortschritt",
    .stop = "Anhalten",
    .fromClipboard = "Liste aus Zwischenablage",
    .fromFile = "Liste aus Datei...",
    .openTitle = "Liste aus Datei",
    .saveTitle = "Liste speichern unter",
    .tabSeparated = "Durch Tabulatoren getrennt",
    .csv = "Durch Kommas getrennt",
    .line = "Zeile",
    .lines = "Zeilen",
    .refusal = "abgewiesen",
    .refusals = "abgewiesen",
    .soFar = "bisher",
    .copied = "Kopiert",
    .saved = "Gespeichert",
    .stopped = "Angehalten",
    .noRefusal = "Keine Zeile wird abgewiesen.",
    .noText = "Die Zwischenablage enthaelt keinen Text.",
    .empty = "Es ist keine Zeile darin.",
    .notText = "Dies ist kein Text in UTF-8.",
    .lineInSentence = "Zeile",
    .lineTooLong = "ist laenger, als eine Zeile sein darf (1 MiB).",
    .tooLarge = "Dies ist groesser, als eine Liste sein darf (2 GB).",
    .unreadable = "Die Datei ist nicht lesbar",
    .noFile = "Dies ist keine gewoehnliche Datei.",
    .tooMuchForClipboard = "Das ist zu viel fuer die Zwischenablage. Speichern Sie die Liste stattdessen.",
    .notSaved = "Die Liste kann nicht gespeichert werden; die Datei ist, wie sie war",
    .outOfMemory = "Dafuer ist nicht genug Speicher da.",
    .busy = "Anderes ist noch im Gang. Warten Sie sein Ende ab, oder halten Sie es an.",
    .thousands = '.',
};

std::string SystemReason(int error) {
    return std::generic_category().message(error);
}

}  // namespace

const ListWords& WordsOfList(LanguageNumber language) {
    return language == LanguageGerman ? kGerman : kEnglish;
}

std::string Counted(std::uint64_t number, std::string_view one, std::string_view many,
                    const ListWords& words) {
    std::string digits = std::to_string(number);
    for (std::size_t at = digits.size(); at > 3; at -= 3) digits.insert(at - 3, 1, words.thousands);
    return digits.append(" ").append(number == 1 ? one : many);
}

std::string StateText(const ListSurvey& survey, const ListWords& words) {
    if (survey.Count() == 0) return std::string(words.howTo);
    std::string text = Counted(survey.Count(), words.line, words.lines, words);
    text.append(", ").append(Counted(survey.Refusals(), words.refusal, words.refusals, words));
    if (!survey.IsComplete()) text.append(" ").append(words.soFar);
    return text;
}

std::string RefusalMessage(const ListRefusal& refusal, const std::string& path, const ListWords& words) {
    std::string message = path.empty() ? std::string() : path + "\r\n";
    switch (refusal.fault) {
        case ListFault::None: break;
        case ListFault::Empty: message += words.empty; break;
        case ListFault::NotText: message += words.notText; break;
        case ListFault::LineTooLong:
            message.append(words.lineInSentence).append(" ").append(std::to_string(refusal.line)).append(" ");
            message += words.lineTooLong;
            break;
        case ListFault::TooLarge: message += words.tooLarge; break;
        case ListFault::Unreadable:
            message.append(words.unreadable).append(": ").append(SystemReason(refusal.error)).append(".");
            break;
        case ListFault::NoFile: message += words.noFile; break;
    }
    return message;
}

std::string NotSavedMessage(const std::string& path, int error, const ListWords& words) {
    return path + "\r\n" + std::string(words.notSaved) + ": " + SystemReason(error) + ".";
}

}  // namespace calvoro
