#pragma once

// Between the program's UTF-8 texts and the toolkit's. Every byte comes back, those of a byte order mark and
// those that are no valid UTF-8 included: the toolkit would drop the one and replace the others.

#include <QString>
#include <string>
#include <string_view>

namespace calvoro {

/// A byte that belongs to no valid character becomes the lone surrogate U+DC00 + byte.
QString ToQt(std::string_view text);

/// The inverse; any other lone surrogate becomes U+FFFD.
std::string FromQt(const QString& text);

}  // namespace calvoro
