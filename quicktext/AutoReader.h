#pragma once

// Dates of any notation, read strictly, where the text itself tells the notation.

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "calendar/CalendarNumber.h"
#include "datetext/TextOptions.h"
#include "quicktext/StrictReader.h"

namespace calvoro {

struct AutoResult {
    StrictResult result;
    std::optional<CalendarNumber> notation;  // the one that was recognised
};

class AutoReader {
public:
    /// options  the format and the separators of the texts
    explicit AutoReader(const TextOptions& options);

    /// Reads a text. A tag at its end decides; else the form, when only one notation can have it (a week
    /// date, an ordinal date, a plain day number): which day it would be plays no part. A form that several
    /// notations have is refused as ambiguous, and so are leap-week dates, which look like dates of CE.
    AutoResult Read(std::string_view text) const;

private:
    const StrictReader* ReaderOfTag(std::string_view text) const;
    AutoResult ReadForm(std::string_view text) const;

    // Those whose forms no other notation has come first, for most texts end there.
    std::vector<StrictReader> readers_;
    std::size_t exclusive_;
};

}  // namespace calvoro
