#pragma once

// The help texts in English and German, with the slips that they always had.

#include <array>
#include <string>

namespace calvoro {

/// The web pages that the help texts name.
struct HelpAddresses {
    std::string manualEnglish;     // online user manual
    std::string manualGerman;      // online user manual
    std::string calendarsArticle;  // the maker's article on calendars
    std::string isoWeekArticle;    // an encyclopedia's article on the ISO week date
    std::string leapWeekPage;      // the maker's page on the leap week calendar
};

/// By language number; Spanish is empty. UTF-8, lines end with CR LF.
using HelpTexts = std::array<std::string, 3>;

/// Builds the texts: paragraphs, each followed by two line breaks.
HelpTexts FillHelpText(const HelpAddresses& addresses);

}  // namespace calvoro
