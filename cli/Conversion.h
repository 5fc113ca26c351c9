#pragma once

// One typed date into the fields of one output line.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "cli/ConvertOptions.h"
#include "cli/DayReader.h"
#include "cli/OutputStream.h"
#include "cli/RecordWriter.h"

namespace calvoro {

/// A conversion made ready for many dates.
class Conversion {
public:
    explicit Conversion(const ConvertOptions& options);

    /// Appends the fields of a date to the output, without a line end; nothing when it is refused.
    /// returns  empty, or why the date is refused, to stand in front of it: "not valid in CE, empty"
    std::string Convert(std::string_view text, OutputStream& output) const;

    /// Converts the first lines of a block as long as they are plain dates in their usual form, which most
    /// are, each into a line of the output.
    /// lines    is moved on by the number of lines
    /// returns  how many bytes of the block they are; whatever comes next is left to Convert
    std::size_t ConvertLines(std::string_view block, OutputStream& output, std::uint64_t& lines) const;

private:
    DayReader reader_;
    RecordWriter writer_;
};

}  // namespace calvoro
