#include "windows/Placement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <algorithm>

namespace calvoro {

namespace {

constexpr int kLikelyBorder = 4;  // pixels on each side

}  // namespace

QPoint KeptOnScreen(QPoint wanted, QSize size, QRect screen) {
    const int right = std::max(screen.left(), screen.left() + screen.width() - size.width());
    const int bottom = std::max(screen.top(), screen.top() + screen.height() - size.height());
    return {std::clamp(wanted.x(), screen.left(), right), std::clamp(wanted.y(), screen.top(), bottom)};
}

QSize FrameSize(const QWidget& window) {
    return window.frameGeometry().size() - window.geometry().size();
}

QSize RoomOnScreen(const QWidget& window) {
    QSize frame = FrameSize(window);
    // The same before and after it is shown.
    if (!window.windowFlags().testFlag(Qt::FramelessWindowHint)) {
        const QStyle& style = *window.style();
        const int border = std::max(kLikelyBorder, style.pixelMetric(QStyle::PM_MdiSubWindowFrameWidth));
        frame = frame.expandedTo({2 * border, style.pixelMetric(QStyle::PM_TitleBarHeight) + 2 * border});
    }
    return window.screen()->availableSize() - frame;
}

void MoveKeptOnScreen(QWidget& window, QPoint wanted, QSize frame) {
    const QScreen* screen = QGuiApplication::screenAt(wanted);
    if (screen == nullptr) screen = window.screen();
    window.move(KeptOnScreen(wanted, window.size() + frame, screen->availableGeometry()));
}

void BringToFront(QWidget& window) {
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

}  // namespace calvoro
