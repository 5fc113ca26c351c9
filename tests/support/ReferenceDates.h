#pragma once

// Reads dates published elsewhere, a row each: source,jdn,ce,jc,iso,ordinal. A source names only what it
// names, so any column but the first may be empty.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace calvoro::testing {

struct ReferenceDate {
    struct YearAndTwo {
        std::int32_t year, second, third;  // month and day, or week and weekday
    };
    struct YearAndDay {
        std::int32_t year, day;
    };
    std::string source;
    std::optional<std::int32_t> jdn;
    std::optional<YearAndTwo> commonEra;
    std::optional<YearAndTwo> julian;
    std::optional<YearAndTwo> iso;
    std::optional<YearAndDay> ordinal;
};

/// All rows of a file after its heading.
/// throws  std::runtime_error naming the line, when the file is missing or a row has another shape
std::vector<ReferenceDate> ReadReferenceDates(const std::string& path);

}  // namespace calvoro::testing
