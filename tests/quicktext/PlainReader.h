#pragma once

// A strict reader made for comparison only: expressions for the forms and schoolbook arithmetic for the days,
// sharing nothing with the program. It is slow and says no more than the day or that there is none.

#include <cstdint>
#include <optional>
#include <regex>
#include <string>

#include "calendar/CalendarNumber.h"
#include "datetext/TextOptions.h"

namespace calvoro {

class PlainReader {
public:
    PlainReader(CalendarNumber notation, const TextOptions& options);

    /// The day number of a text; nothing when it is no date of the notation.
    std::optional<std::int64_t> Read(std::string text) const;

private:
    std::optional<std::int64_t> DayOf(const std::smatch& match, bool beforeCommonEra) const;

    CalendarNumber notation_;
    TextOptions options_;
    std::regex form_;
};

}  // namespace calvoro
