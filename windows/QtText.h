#pragma once

// Text on its way between the program, where it is UTF-8, and the toolkit.

#include <QString>
#include <string_view>

namespace calvoro {

inline QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace calvoro
