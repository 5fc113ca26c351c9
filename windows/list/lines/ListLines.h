#pragma once

// The rows of a list: the whole text as it was given, and where in it a row stands. Only the beginning of
// every sixty-fourth row is kept, so that a list takes little more than its text; those in between are found
// from there.

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "windows/list/lines/Records.h"

namespace calvoro {

class ListLines {
public:
    /// No row at all.
    ListLines() = default;

    std::uint32_t Count() const { return count_; }

    /// Remembers where the row behind the last one begins, so that one after the other is found at once.
    struct Cursor {
        std::uint32_t row = std::numeric_limits<std::uint32_t>::max();
        std::size_t place = 0;
    };

    /// A row without its line end.
    /// row     below Count()
    /// cursor  of one who has asked these lines only
    std::string_view Line(std::uint32_t row, Cursor& cursor) const;

    const FieldShape& Shape() const { return shape_; }

    /// The most fields that any row has, and no more than kMostColumns.
    std::size_t Columns() const { return columns_; }

    /// What stands behind this many delimiters belongs to the last column.
    static constexpr std::size_t kMostColumns = 256;

private:
    friend class LinesBuilder;

    struct Mark {
        std::size_t place;
        std::uint32_t row;
    };

    std::string text_;
    std::size_t begin_ = 0;  // behind a byte order mark
    FieldShape shape_;
    std::vector<Mark> marks_;
    std::uint32_t count_ = 0;
    std::size_t columns_ = 1;
};

}  // namespace calvoro
