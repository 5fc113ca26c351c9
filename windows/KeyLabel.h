#pragma once

#include <QLabel>
#include <algorithm>

#include "windows/Mnemonics.h"

namespace calvoro {

/// A label with room for a caption whose key is underlined. The toolkit measures the words as a whole, with
/// the kerning that draws letters together, but draws the underlined one apart from its neighbours: the last
/// letter would be cut off.
class KeyLabel : public QLabel {
public:
    using QLabel::QLabel;

    QSize sizeHint() const override { return QLabel::sizeHint() + QSize(DrawnApart(), 0); }
    QSize minimumSizeHint() const override { return QLabel::minimumSizeHint() + QSize(DrawnApart(), 0); }

private:
    // By how much the words are wider in pieces, in pixels.
    int DrawnApart() const {
        const qsizetype key = text().indexOf(QLatin1Char('&'));
        if (key < 0) return 0;
        const QString words = Caption(*this);
        const auto width = [this](const QString& piece) { return fontMetrics().horizontalAdvance(piece); };
        const int pieces = width(words.left(key)) + width(words.mid(key, 1)) + width(words.mid(key + 1));
        return std::max(0, pieces - width(words));
    }
};

}  // namespace calvoro
