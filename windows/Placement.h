#pragma once

// Where a window goes: offsets in twips from the main window, kept on the screen.

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QWidget>

namespace calvoro {

/// The top left corner nearest to the wanted one with which a window of this size stays on the screen.
QPoint KeptOnScreen(QPoint wanted, QSize size, QRect screen);

/// Moves a window there, kept on the screen that holds the wanted corner (else on the window's own).
/// wanted  where the frame's top left corner should be
void MoveKeptOnScreen(QWidget& window, QPoint wanted);

/// The heights that the windows' layouts are reckoned from include a title bar of this height, in twips,
/// whatever the window manager really adds.
inline constexpr int kTitleBarHeight = 450;

}  // namespace calvoro
