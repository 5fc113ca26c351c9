#pragma once

// Texts of one notation read into day numbers, one by one, strictly or as the window reads.

#include <cstdint>
#include <string>
#include <string_view>

#include "calendar/CalendarNumber.h"
#include "datetext/TextOptions.h"
#include "quicktext/StrictReader.h"

namespace calvoro {

class ColumnReader {
public:
    /// lenient  as a box of the window reads, not strictly
    ColumnReader(CalendarNumber notation, const TextOptions& options, bool lenient);

    CalendarNumber Notation() const { return strict_.Notation(); }

    /// Reads a text, UTF-8.
    /// jdn      set when the text is a date
    /// returns  whether it is one
    bool Read(std::string_view text, std::int32_t& jdn) const;

    /// Why Read refuses a text: "not a CE date: unexpected 'O' at column 2".
    std::string Reason(std::string_view text) const;

private:
    StrictReader strict_;
    TextOptions options_;
    bool lenient_;
};

}  // namespace calvoro
