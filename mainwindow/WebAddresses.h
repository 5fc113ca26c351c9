#pragma once

#include <string>

namespace calvoro {

/// The web pages that the windows open or name; their values are chosen when the program is built.
struct WebAddresses {
    std::string homePage;  // the maker's
    std::string manualEnglish;
    std::string manualGerman;
    std::string calendarsArticle;
    std::string isoWeekArticle;
    std::string leapWeekPage;
};

}  // namespace calvoro
