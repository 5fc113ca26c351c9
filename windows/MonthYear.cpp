#include "windows/MonthYear.h"

#include <charconv>
#include <limits>

#include "datetext/Blanks.h"

namespace calvoro {

std::optional<std::int32_t> ReadYear(std::string_view text) {
    std::string_view number = TrimBlanks(text);
    // The library's reader takes a minus but no plus.
    if (number.starts_with('+') && !number.starts_with("+-")) number.remove_prefix(1);
    std::int32_t year = 0;
    const char* end = number.data() + number.size();
    const auto [stop, error] = std::from_chars(number.data(), end, year);
    if (error != std::errc() || stop != end) return std::nullopt;
    return year;
}

std::optional<std::string> SteppedYear(std::string_view text, std::int32_t step) {
    const std::optional<std::int32_t> year = ReadYear(text);
    if (!year) return std::nullopt;
    const std::int64_t stepped = std::int64_t{*year} + step;
    if (stepped < std::numeric_limits<std::int32_t>::min() ||
        stepped > std::numeric_limits<std::int32_t>::max())
        return std::nullopt;
    return std::to_string(stepped);
}

}  // namespace calvoro
