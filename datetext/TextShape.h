#pragma once

#include <cstdint>

namespace calvoro {

/// The form in which an ISO week date or an ordinal date stands in a text.
enum class TextShape : std::int16_t { Compact = 1, Hyphenated = -1, None = 0 };

}  // namespace calvoro
