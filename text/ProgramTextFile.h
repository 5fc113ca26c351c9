#pragma once

// The file of numbered program texts, calvoro.dat, kept in memory behind the two functions that load it and
// read it.
//
// Layout: UTF-8, one text a line: number, TAB, English, TAB, German, TAB, Spanish (the last may be
// missing). Lines that begin with # are comments; at most 500 lines, at most 1023 bytes a text.

#include <cstdint>

namespace calvoro {

/// Loads the file, replacing what was loaded before only when it succeeds.
/// path     UTF-8
/// mode     0
/// returns  the number of texts (above 0), or
///          0 no text in it, -1 cannot be opened, -2 and -8 no memory, -3 more than 500 lines, -4 a line
///          without a number, -6 empty, -7 cannot be read, -(500 + n) no English text in line n,
///          -(1000 + n) text too long in line n, -(1500 + n) number of line n used before
std::int32_t lt(const char* path, std::int32_t mode);

/// Copies a numbered text, followed by a NUL, into a buffer.
/// capacity  bytes of the buffer; a longer text is cut at a character's end
/// flag      1
/// returns   the length in bytes, or 0 when there is no such text in this language
std::int32_t gt(std::int32_t number, std::int32_t language, char* buffer, std::int32_t capacity,
                std::int32_t flag);

}  // namespace calvoro
