#pragma once

// Lines whose columns hold plain dates in their usual form, converted as fast as lines of nothing but a date.
// Every other line is left to ColumnConversion, which converts these lines alike.

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "cli/DayReader.h"
#include "cli/OutputStream.h"
#include "cli/RecordWriter.h"
#include "cli/columns/ColumnOptions.h"

namespace calvoro {

class QuickColumns {
public:
    /// What a column holds.
    enum class ColumnKind : std::uint8_t { Other, Date, LastDate };

    /// options  how dates are written, which tells whether a delimiter can stand in one
    /// fields   of the columns to convert, from 0; in the order of the line unless answers are appended
    QuickColumns(const ColumnOptions& columns, const TextOptions& options,
                 const std::vector<std::size_t>& fields);

    /// Converts the first lines of a block as long as they can be converted here.
    /// lines    is moved on by the number of lines
    /// returns  how many bytes of the block they are
    std::size_t ConvertLines(std::string_view block, const DayReader& reader, const RecordWriter& writer,
                             OutputStream& output, std::uint64_t& lines) const;

private:
    char delimiter_;
    bool csv_;
    bool append_;
    bool isUsable_;
    std::vector<std::size_t> fields_;
    std::vector<ColumnKind> kinds_;  // up to the last field, when they are converted in place
};

}  // namespace calvoro
