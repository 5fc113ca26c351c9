#pragma once

// The rows of a text and the fields of a row, found without copying anything. A row is a line; in
// comma-separated values a quoted field may hold line ends, and then a row is several lines.
//
// source  RFC 4180 for quoted fields

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace calvoro {

/// The longest row that is taken.
inline constexpr std::size_t kLongestLine = std::size_t{1024} * 1024;  // bytes

/// How the rows of a text are divided into fields.
struct FieldShape {
    char delimiter = '\0';  // none: a row is one field
    bool quotes = false;    // a field that begins with '"' goes on to the closing one

    friend bool operator==(const FieldShape&, const FieldShape&) = default;
};

struct Record {
    std::size_t end = 0;   // of the row, its line end excluded
    std::size_t next = 0;  // where the next row begins
    bool tooLong = false;  // longer than kLongestLine; end and next then mean nothing
};

/// The row that begins at a place. Its line end is LF or CR LF, or the end of the text. Quotes that are not
/// closed within kLongestLine are characters like any other.
/// from  within the text
Record RecordAt(std::string_view text, std::size_t from, const FieldShape& shape);

/// Finds the fields of a row as they stand in it, quotes included.
/// fields  replaced; at most `most` of them, the last one with all that follows
void SplitFields(std::string_view line, const FieldShape& shape, std::size_t most,
                 std::vector<std::string_view>& fields);

/// One field of a row, quotes included; "" when the row has fewer.
std::string_view FieldAt(std::string_view line, const FieldShape& shape, std::size_t index);

std::size_t CountFields(std::string_view line, const FieldShape& shape);

/// What a field says.
/// scratch  holds the answer when the field is quoted
std::string_view FieldText(std::string_view field, const FieldShape& shape, std::string& scratch);

}  // namespace calvoro
