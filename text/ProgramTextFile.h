#pragma once

// The file of numbered program texts, calvoro.dat, kept in memory behind the functions that load it and
// read it.
//
// Layout: UTF-8, one text a line: number, TAB, English, TAB, German, TAB, Spanish. German and Spanish may be
// missing or empty; what follows a further TAB is ignored. A number is digits only, up to 2147483647. Lines
// that begin with # are comments; an empty line is a line without a number. At most 500 lines, comments
// included; at most 1023 bytes a text. Lines end with LF or CR LF; a byte order mark is skipped.

#include <cstdint>
#include <string_view>

namespace calvoro {

/// The result of lt for a file that cannot be opened.
inline constexpr std::int32_t kCannotOpen = -1;

/// Loads the file, replacing what was loaded before only when it succeeds. The first fault ends the reading;
/// in one line the number is judged before the English text, and that before the lengths.
/// path     UTF-8
/// mode     0
/// returns  the number of texts (above 0), or
///          0 no text in it, -1 cannot be opened, -2 and -8 no memory, -3 more than 500 lines (or more than
///          4 MiB), -4 a line without a number, -6 empty, -7 cannot be read,
///          -(500 + n) no English text in line n, -(1000 + n) text too long in line n,
///          -(1500 + n) number of line n used before
std::int32_t lt(const char* path, std::int32_t mode);

/// Loads the bytes of such a file from memory; results and effect as lt.
std::int32_t LoadProgramTextsFromMemory(std::string_view bytes);

/// Copies a numbered text, followed by a NUL, into a buffer.
/// language  0 to 2; there is no text in any other
/// capacity  bytes of the buffer; a longer text is cut at a character's end
/// flag      1
/// returns   the length in bytes, or 0 when there is no such text in this language
std::int32_t gt(std::int32_t number, std::int32_t language, char* buffer, std::int32_t capacity,
                std::int32_t flag);

}  // namespace calvoro
