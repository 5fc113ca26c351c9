#include "quicktext/TextTail.h"

#include <algorithm>
#include <array>

#include "datetext/Blanks.h"

namespace calvoro {
namespace {

/// Takes one whole word, which a blank or the end follows.
bool TakeWord(TextCursor& cursor, std::string_view word) {
    const std::string_view rest = cursor.Rest();
    if (!rest.starts_with(word)) return false;
    if (rest.size() > word.size() && rest[word.size()] != ' ') return false;
    return cursor.Take(word);
}

std::size_t CommonLength(std::string_view a, std::string_view b) {
    const auto [end, other] = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    return static_cast<std::size_t>(end - a.begin());
}

}  // namespace

TextTail TakeTail(TextCursor& cursor, std::string_view tag, bool withEra) {
    TextTail tail;
    bool blanks = cursor.TakeBlanks();
    if (withEra && blanks && (TakeWord(cursor, "BCE") || TakeWord(cursor, "BC"))) {
        tail.beforeCommonEra = true;
        blanks = cursor.TakeBlanks();
        withEra = false;
    }
    if (blanks && TakeWord(cursor, tag)) {
        cursor.TakeBlanks();
        blanks = withEra = false;
        tag = {};
    }
    if (cursor.AtEnd()) return tail;

    // The character that keeps the word from being one of those that may stand here.
    std::size_t common = blanks ? CommonLength(cursor.Rest(), tag) : 0;
    if (blanks && withEra) common = std::max(common, CommonLength(cursor.Rest(), "BCE"));
    cursor.MoveTo(cursor.Place() + common);
    tail.outcome = cursor.Fail();
    return tail;
}

std::string_view LastWord(std::string_view text) {
    text = TrimBlanks(text);
    const std::size_t blank = text.rfind(' ');
    return blank == std::string_view::npos ? text : text.substr(blank + 1);
}

}  // namespace calvoro
