#include "csvtext/QuotedField.h"

namespace calvoro {

std::size_t FindClosingQuote(std::string_view text, std::size_t from) {
    std::size_t quote = FindCharacter(text, '"', from);
    while (quote + 1 < text.size() && text[quote + 1] == '"') quote = FindCharacter(text, '"', quote + 2);
    return quote;
}

void Unquote(std::string_view field, std::size_t closing, std::string& text) {
    text.clear();
    for (std::size_t at = 1; at < closing; ++at) {
        text += field[at];
        if (field[at] == '"') ++at;
    }
    if (closing < field.size()) text += field.substr(closing + 1);
}

}  // namespace calvoro
