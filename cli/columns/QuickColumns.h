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
    // A line in its block, whose bytes may be read to the block's end.
    struct Line {
        const char* begin;
        const char* end;  // of the text
        const char* blockEnd;
    };

    // How far the output has come. What stands between two dates is copied with the second of them, often
    // over the end of a line.
    struct Progress {
        const char* copied;  // in the block
        char* to;
    };

    bool ConvertInPlace(const Line& line, const DayReader& reader, const RecordWriter& writer,
                        Progress& done) const;
    bool ConvertAppending(const Line& line, const DayReader& reader, const RecordWriter& writer,
                          Progress& done) const;
    const char* FindField(const Line& line, const char* from, std::size_t delimiters) const;
    std::size_t ReadField(const Line& line, const char* field, const DayReader& reader,
                          std::int32_t& jdn) const;

    char delimiter_;
    bool csv_;
    bool append_;
    bool isUsable_;
    std::vector<std::size_t> fields_;
};

}  // namespace calvoro
