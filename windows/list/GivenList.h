#pragma once

// What may become a list: a text or a file, as it was pasted or dropped.

#include <QMimeData>
#include <QString>
#include <optional>

namespace calvoro {

/// One of the two is filled.
struct GivenList {
    QString text;
    QString path;
};

/// The first file, else the text.
/// returns  nothing when there is neither
std::optional<GivenList> GivenListOf(const QMimeData* data);

/// Whether a text is more than one line, empty ones at its two ends left out of account.
bool HasSeveralLines(const QString& text);

}  // namespace calvoro
