#pragma once

// The columns of one line, found without copying it.
//
// source  RFC 4180 for quoted fields

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "cli/LineReader.h"

namespace calvoro {

/// Makes a line of comma-separated values as long as its quotes demand: a quoted field may hold line ends.
/// line     as the reader gave it; replaced by the longer one
/// returns  how many lines were joined to it
std::size_t JoinQuotedLines(LineReader& reader, char delimiter, std::string_view& line);

class Columns {
public:
    /// count  how many columns from the first are wanted
    Columns(char delimiter, bool csv, std::size_t count) : delimiter_(delimiter), csv_(csv), count_(count) {}

    /// Finds the columns of a line.
    /// line     without its end; must outlive what the columns are asked for
    /// returns  whether the line has all the columns that are wanted
    bool Split(std::string_view line);

    /// A column as it stands in the line, quotes included.
    std::string_view Raw(std::size_t index) const { return columns_[index]; }

    /// What a column says; valid until the next call for any column that is quoted.
    std::string_view Text(std::size_t index);

private:
    char delimiter_;
    bool csv_;
    std::size_t count_;
    std::vector<std::string_view> columns_;
    std::string unquoted_;
};

}  // namespace calvoro
