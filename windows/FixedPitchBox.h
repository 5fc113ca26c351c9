#pragma once

// Text boxes whose columns line up.

#include <QFont>
#include <QPlainTextEdit>
#include <QStringList>

namespace calvoro {

/// A font in which all characters are of one width: of these families when one of them is there and is such
/// a font, else of the first such family of the system.
QFont FixedPitchFont(const QStringList& families);

/// Gives a widget the system's fixed-pitch family; size and weight stay those of the window around it.
void UseFixedPitchFont(QWidget& widget);

/// A read-only box that asks for the room of a number of columns and lines, whatever the font's size.
class FixedPitchBox : public QPlainTextEdit {
    Q_OBJECT

public:
    FixedPitchBox(int columns, int lines, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    QSize SizeFor(int lines) const;

    int columns_;
    int lines_;
};

}  // namespace calvoro
