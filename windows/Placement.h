#pragma once

// Where a window goes: offsets in twips from the main window, kept on the screen.

#include <QPoint>
#include <QRect>
#include <QSize>

namespace calvoro {

/// The top left corner nearest to the wanted one with which a window of this size stays on the screen.
QPoint KeptOnScreen(QPoint wanted, QSize size, QRect screen);

}  // namespace calvoro
