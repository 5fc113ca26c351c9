#pragma once

// Readers that ignore some characters copy the others first.

#include <string>
#include <string_view>

namespace calvoro {

/// The characters of a text that a predicate keeps, in their order.
template <class Predicate>
std::string KeepCharacters(std::string_view text, Predicate keep) {
    std::string kept(text.size(), '\0');
    std::size_t length = 0;
    for (const char c : text) {
        kept[length] = c;
        if (keep(c)) ++length;
    }
    kept.resize(length);
    return kept;
}

}  // namespace calvoro
