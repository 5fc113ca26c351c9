#include "windows/Placement.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

namespace calvoro {

QPoint KeptOnScreen(QPoint wanted, QSize size, QRect screen) {
    const int right = std::max(screen.left(), screen.left() + screen.width() - size.width());
    const int bottom = std::max(screen.top(), screen.top() + screen.height() - size.height());
    return {std::clamp(wanted.x(), screen.left(), right), std::clamp(wanted.y(), screen.top(), bottom)};
}

void MoveKeptOnScreen(QWidget& window, QPoint wanted) {
    const QScreen* screen = QGuiApplication::screenAt(wanted);
    if (screen == nullptr) screen = window.screen();
    window.move(KeptOnScreen(wanted, window.frameGeometry().size(), screen->availableGeometry()));
}

}  // namespace calvoro
