#include "windows/Placement.h"

#include <algorithm>

namespace calvoro {

QPoint KeptOnScreen(QPoint wanted, QSize size, QRect screen) {
    const int right = std::max(screen.left(), screen.left() + screen.width() - size.width());
    const int bottom = std::max(screen.top(), screen.top() + screen.height() - size.height());
    return {std::clamp(wanted.x(), screen.left(), right), std::clamp(wanted.y(), screen.top(), bottom)};
}

}  // namespace calvoro
