#pragma once

// Between the program's UTF-8 texts and the toolkit's.

#include <QString>
#include <string>
#include <string_view>

namespace calvoro {

inline QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string FromQt(const QString& text) {
    return text.toStdString();
}

}  // namespace calvoro
