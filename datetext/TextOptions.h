#pragma once

// How dates and numbers are written: the user's choices that readers and writers share.

#include <cstdint>
#include <string>

namespace calvoro {

/// The order of month, day and year in Common Era and Julian dates; the numbers are those of the settings
/// file and of str_to_date.
enum class DateFormat : std::int16_t { MDY = 0, DMY = 1, YMD = 2 };

/// "No thousands separator".
inline constexpr char kNoSeparator = '\0';

/// The choices that readers and writers share.
struct TextOptions {
    DateFormat dateFormat = DateFormat::YMD;
    char dateSeparator = '-';         // '-', '/' or '.'
    char thousandsSeparator = ',';    // ',', '.' or kNoSeparator
    bool hyphen = true;               // in ordinal and ISO week dates
    std::string digitGrouping = ",";  // the system's own grouping, for leap-week years from 10000; UTF-8
};

}  // namespace calvoro
