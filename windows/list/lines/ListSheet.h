#pragma once

// A list with everything that decides about its rows: the lines, the column that holds the dates, and the
// options. Copies share the lines, so that a job goes on with what it began with.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "windows/list/lines/ListLines.h"
#include "windows/list/lines/ListRow.h"

namespace calvoro {

struct ListSheet {
    std::shared_ptr<const ListLines> lines = std::make_shared<ListLines>();
    std::size_t dateColumn = 0;
    std::shared_ptr<ListRowMaker> maker;

    /// A line as it was given.
    /// row  below lines->Count()
    std::string_view Line(std::uint32_t row) const { return lines->Line(row, cursor); }

    /// Computes what stands beside a line.
    /// computed  replaced
    void Compute(std::string_view line, ListRow& computed) const {
        std::string scratch;
        const FieldShape& shape = lines->Shape();
        maker->Make(FieldText(FieldAt(line, shape, dateColumn), shape, scratch), computed);
    }

    mutable ListLines::Cursor cursor = {};
};

}  // namespace calvoro
