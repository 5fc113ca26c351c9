#include "windows/FixedPitchBox.h"

#include <QFont>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetrics>
#include <QScrollBar>
#include <QTextDocument>
#include <algorithm>
#include <cmath>

#include "windows/Controls.h"

namespace calvoro {
namespace {

constexpr int kLeastLines = 3;  // on a low screen the rest is scrolled

}  // namespace

QFont FixedPitchFont(const QStringList& families) {
    QFont font;
    font.setFamilies(families);
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    if (QFontInfo(font).fixedPitch()) return font;

    const QStringList all = QFontDatabase::families(QFontDatabase::Latin);
    const auto isUsable = [](const QString& family) {
        return QFontDatabase::isFixedPitch(family) && QFontDatabase::isSmoothlyScalable(family) &&
               !QFontDatabase::isPrivateFamily(family);
    };
    const auto found = std::find_if(all.begin(), all.end(), isUsable);
    if (found != all.end()) font.setFamilies({*found});
    return font;
}

void UseFixedPitchFont(QWidget& widget) {
    widget.setFont(FixedPitchFont(QFontDatabase::systemFont(QFontDatabase::FixedFont).families()));
}

FixedPitchBox::FixedPitchBox(int columns, int lines, QWidget* parent)
    : QPlainTextEdit(parent), columns_(columns), lines_(lines) {
    UseFixedPitchFont(*this);
    setLineWrapMode(NoWrap);
    MakeReadOnly(*this);
}

QSize FixedPitchBox::sizeHint() const {
    return SizeFor(lines_);
}

QSize FixedPitchBox::minimumSizeHint() const {
    return SizeFor(std::min(lines_, kLeastLines));
}

QSize FixedPitchBox::SizeFor(int lines) const {
    const QFontMetricsF metrics(font());
    const double around = 2 * (document()->documentMargin() + frameWidth());
    // A vertical scroll bar must not make a horizontal one necessary. One more pixel each way is for the
    // caret behind the last column and for rounding of line heights.
    const double columns = columns_ * metrics.horizontalAdvance(QLatin1Char('0'));
    const double width = columns + verticalScrollBar()->sizeHint().width() + around + 1;
    const double height = lines * std::ceil(metrics.lineSpacing()) + around + 1;
    return {static_cast<int>(std::ceil(width)), static_cast<int>(std::ceil(height))};
}

}  // namespace calvoro
