#include "datetext/Blanks.h"

#include "datetext/KeepCharacters.h"

namespace calvoro {

std::string_view TrimBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string WithoutBlanks(std::string_view text) {
    return KeepCharacters(text, [](char c) { return c != ' '; });
}

}  // namespace calvoro
