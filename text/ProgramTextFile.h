#pragma once

// The file of numbered program texts, calvoro.dat, and the texts of one that was read.
//
// Layout: UTF-8, one text a line: number, TAB, English, TAB, German, TAB, Spanish. German and Spanish may be
// missing or empty; what follows a further TAB is ignored. A number is digits only, up to 2147483647. Lines
// that begin with # are comments; an empty line is a line without a number. At most 500 lines, comments
// included; at most 1023 bytes a text. Lines end with LF or CR LF; a byte order mark is skipped.

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace calvoro {

/// The result of reading a file that cannot be opened.
inline constexpr std::int32_t kCannotOpen = -1;

struct ProgramTextReading;

/// The texts of a file without a fault. Copies share them.
class ProgramTexts {
public:
    /// A text; "" when there is none of this number in this language. It lives as long as any copy.
    /// language  0 to 2; there is no text in any other
    std::string_view Find(std::int32_t number, std::int32_t language) const;

    // No moving, which would leave an object without texts.
    ProgramTexts(const ProgramTexts&) = default;
    ProgramTexts& operator=(const ProgramTexts&) = default;
    ~ProgramTexts() = default;

private:
    using Table = std::unordered_map<std::int32_t, std::array<std::string, 3>>;
    friend ProgramTextReading ReadProgramTexts(std::string_view bytes);

    explicit ProgramTexts(Table table);
    static std::int32_t ReadTable(std::string_view bytes, Table& table);
    static std::int32_t AddLine(std::string_view line, std::int32_t lineNumber, Table& table);

    std::shared_ptr<const Table> table_;
};

/// What reading a program text file gives.
struct ProgramTextReading {
    std::int32_t result = 0;            // as lt
    std::optional<ProgramTexts> texts;  // there when the result is above 0
};

/// Reads the bytes of a program text file.
ProgramTextReading ReadProgramTexts(std::string_view bytes);

/// Reads a program text file.
/// path  UTF-8
ProgramTextReading ReadProgramTextFile(const char* path);

/// Copies a text, followed by a NUL, into a buffer.
/// capacity  bytes of the buffer; a longer text is cut at a character's end
/// returns   the length in bytes
std::int32_t CopyText(std::string_view text, char* buffer, std::int32_t capacity);

/// Loads the file for gt, replacing what was loaded before only when it succeeds. The first fault ends the
/// reading; in one line the number is judged before the English text, and that before the lengths.
/// path     UTF-8
/// mode     0
/// returns  the number of texts (above 0), or
///          0 no text in it, -1 cannot be opened, -2 and -8 no memory, -3 more than 500 lines (or more than
///          4 MiB), -4 a line without a number, -6 empty, -7 cannot be read,
///          -(500 + n) no English text in line n, -(1000 + n) text too long in line n,
///          -(1500 + n) number of line n used before
std::int32_t lt(const char* path, std::int32_t mode);

/// Copies a numbered text of the file that lt loaded, followed by a NUL, into a buffer.
/// language  0 to 2; there is no text in any other
/// capacity  bytes of the buffer; a longer text is cut at a character's end
/// flag      1
/// returns   the length in bytes, or 0 when there is no such text in this language
std::int32_t gt(std::int32_t number, std::int32_t language, char* buffer, std::int32_t capacity,
                std::int32_t flag);

}  // namespace calvoro
