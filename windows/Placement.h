#pragma once

// Where a window goes: offsets in twips from the main window, kept on the screen.

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QWidget>

namespace calvoro {

/// The top left corner nearest to the wanted one with which a window of this size stays on the screen.
QPoint KeptOnScreen(QPoint wanted, QSize size, QRect screen);

/// What a window that is shown has around its contents: borders and title bar.
QSize FrameSize(const QWidget& window);

/// The largest size that a window's contents can have on its screen, with the frame that it is likely to
/// get, or has.
QSize RoomOnScreen(const QWidget& window);

/// Moves a window there, kept on the screen that holds the wanted corner (else on the window's own).
/// wanted  where the frame's top left corner should be
/// frame   what it has, or will have when it is shown, around its contents
void MoveKeptOnScreen(QWidget& window, QPoint wanted, QSize frame);

/// The same for a window that is shown, or has no frame.
inline void MoveKeptOnScreen(QWidget& window, QPoint wanted) {
    MoveKeptOnScreen(window, wanted, FrameSize(window));
}

/// Shows a window, or brings it back when it is minimised, in front of the others and with the focus.
void BringToFront(QWidget& window);

/// The heights that the windows' layouts are reckoned from include a title bar of this height, in twips,
/// whatever the window manager really adds.
inline constexpr int kTitleBarHeight = 300;

}  // namespace calvoro
