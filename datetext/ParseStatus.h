#pragma once

#include <cstdint>

namespace calvoro {

/// What every reader of dates and numbers reports.
enum class ParseStatus : std::int16_t {
    Valid = 1,
    NotValid = 0,
    OutOfRange = -1,
};

}  // namespace calvoro
