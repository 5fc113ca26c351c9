#pragma once

#include <string>

namespace calvoro {

/// The web pages that the windows open or name. Most are chosen when the program is built; where the
/// installed manual lies is found out when it starts.
struct WebAddresses {
    std::string homePage;                     // the maker's
    std::string manualEnglish;                // online user manual
    std::string manualGerman;                 // online user manual
    std::string calendarsArticle;             // the maker's article on calendars
    std::string isoWeekArticle;               // an encyclopedia's article on the ISO week date
    std::string leapWeekPage;                 // the maker's page on the leap week calendar
    std::string installedManualEnglish = {};  // "file:///..."; empty when there is none
    std::string installedManualGerman = {};
};

}  // namespace calvoro
