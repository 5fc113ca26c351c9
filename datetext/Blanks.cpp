#include "datetext/Blanks.h"

namespace calvoro {

std::string_view TrimBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string WithoutBlanks(std::string_view text) {
    std::string kept;
    for (const char c : text) {
        if (c != ' ') kept.push_back(c);
    }
    return kept;
}

}  // namespace calvoro
