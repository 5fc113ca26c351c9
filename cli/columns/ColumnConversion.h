#pragma once

// The columns of a line that hold dates, converted; everything else passes through unchanged.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "cli/ConvertOptions.h"
#include "cli/DayReader.h"
#include "cli/Filter.h"
#include "cli/RecordWriter.h"
#include "cli/columns/ColumnOptions.h"
#include "cli/columns/Columns.h"
#include "cli/columns/QuickColumns.h"

namespace calvoro {

class ColumnConversion {
public:
    /// columns  with the fields to be converted
    /// Both must outlive the conversion.
    ColumnConversion(const ConvertOptions& options, const ColumnOptions& columns, Filter& filter);

    /// Converts the next line of an input; see Filter::ReadInput.
    bool ConvertLine(LineReader& reader, Place& place);

private:
    void ConvertColumns(std::string_view line, const Place& place);
    void ConvertColumn(std::size_t field, const Place& place);
    void Refuse(std::string_view reason, std::string_view text, const Place& place);
    void WriteHeader(std::string_view line);
    std::string NamesOf(std::string_view name) const;

    template <typename Write>
    void Rewrite(std::string_view line, const Write& write);

    const ConvertOptions& options_;
    const ColumnOptions& columnOptions_;
    Filter& filter_;
    DayReader reader_;
    RecordWriter writer_;
    Columns columns_;
    std::vector<std::size_t> fields_;  // in the order of the line
    QuickColumns quickColumns_;
    std::string emptyAnswer_;
    bool isHeader_;
};

}  // namespace calvoro
