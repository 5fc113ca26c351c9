#pragma once

#include <string>

namespace calvoro {

/// The character that the system's settings put between groups of digits; UTF-8. A system without one, or
/// with one that could be taken for a part of a date or number (minus sign, digit), gives ",".
std::string SystemDigitGrouping();

}  // namespace calvoro
