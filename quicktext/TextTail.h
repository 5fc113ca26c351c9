#pragma once

// What may stand behind a date: blanks, an era, the notation's own tag.

#include <string_view>

#include "quicktext/TextCursor.h"

namespace calvoro {

/// What was found behind a date.
struct TextTail {
    StrictResult outcome;  // valid, or the refusal of the character in the way
    bool beforeCommonEra = false;
};

/// Takes everything behind a date.
/// tag      may stand there once, exactly written, behind a blank
/// withEra  whether " BC" or " BCE" may stand in front of it
TextTail TakeTail(TextCursor& cursor, std::string_view tag, bool withEra);

/// The word behind the last blank of a text, blanks at its end aside.
std::string_view LastWord(std::string_view text);

}  // namespace calvoro
