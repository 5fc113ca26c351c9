#pragma once

// Finds the dates of one notation that stand alone in running text: year first, with "-" between the fields.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "calendar/CalendarNumber.h"
#include "cli/scan/Neighbours.h"
#include "quicktext/StrictReader.h"

namespace calvoro {

/// Whether a notation has dates that can be told from other numbers in a text: CE, JC, ISO and ORD.
bool CanBeScannedFor(CalendarNumber notation);

struct ScannedDate {
    std::size_t length = 0;  // in bytes, with the sign, the era and the tag
    std::int32_t jdn = 0;
};

class DateScanner {
public:
    /// notation  CanBeScannedFor must hold
    explicit DateScanner(CalendarNumber notation);

    /// Finds the next date. A sign directly in front of the year, and an era or a tag behind the day, belong
    /// to it. What only looks like a date, but is no day of the calendar, is passed over.
    /// text     holds the kBytesBefore bytes before `at`, unless it begins the whole text
    /// isWhole  whether nothing follows
    /// at       where to begin; moved to the date, or to what cannot be judged without what follows: less
    /// than
    ///          kMostOpen bytes, none when the text is whole
    std::optional<ScannedDate> Next(std::string_view text, bool isWhole, std::size_t& at) const;

    static constexpr std::size_t kMostOpen = 512;

private:
    std::optional<ScannedDate> ReadAt(TextWindow& window, std::size_t begin) const;

    std::string_view form_;
    StrictReader reader_;
};

}  // namespace calvoro
