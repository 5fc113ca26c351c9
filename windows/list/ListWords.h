#pragma once

// The captions and messages of the list window, in English and German.

#include <cstdint>
#include <string>
#include <string_view>

#include "text/Language.h"
#include "windows/list/lines/LinesBuilder.h"
#include "windows/list/lines/ListSurvey.h"

namespace calvoro {

struct ListWords {
    std::string_view title;
    std::string_view howTo;
    std::string_view linesAre;
    std::string_view table;  // its name for assistive tools
    std::string_view chooseColumn;
    std::string_view column;
    std::string_view reading;
    std::string_view result;
    std::string_view weekday;
    std::string_view reason;
    std::string_view paste;
    std::string_view open;
    std::string_view copySelected;
    std::string_view copyAll;
    std::string_view saveAs;
    std::string_view withGiven;
    std::string_view refusalsOnly;
    std::string_view byDay;
    std::string_view nextRefusal;
    std::string_view earlier;
    std::string_view later;
    std::string_view progress;
    std::string_view stop;
    std::string_view fromClipboard;  // in the menus of the date boxes
    std::string_view fromFile;
    std::string_view openTitle;
    std::string_view saveTitle;
    std::string_view tabSeparated;
    std::string_view csv;
    std::string_view line;
    std::string_view lines;
    std::string_view refusal;
    std::string_view refusals;
    std::string_view soFar;
    std::string_view copied;
    std::string_view saved;
    std::string_view stopped;
    std::string_view noRefusal;
    std::string_view noText;
    std::string_view empty;
    std::string_view notText;
    std::string_view lineInSentence;  // at its beginning
    std::string_view lineTooLong;
    std::string_view tooLarge;
    std::string_view unreadable;
    std::string_view noFile;
    std::string_view tooMuchForClipboard;
    std::string_view notSaved;
    std::string_view outOfMemory;
    std::string_view busy;
    char thousands;
};

/// The words in a language; the English ones where there are none.
const ListWords& WordsOfList(LanguageNumber language);

/// "1 line", "1,234 lines".
std::string Counted(std::uint64_t number, std::string_view one, std::string_view many,
                    const ListWords& words);

/// "64 lines, 3 refusals", with "so far" while rows are still looked at; how to make a list when there is
/// none.
std::string StateText(const ListSurvey& survey, const ListWords& words);

/// What is wrong with a list that was given, in a sentence or two.
/// path  of the file; "" for a text that was pasted or dropped
std::string RefusalMessage(const ListRefusal& refusal, const std::string& path, const ListWords& words);

/// Why the list could not be saved.
std::string NotSavedMessage(const std::string& path, int error, const ListWords& words);

}  // namespace calvoro
