#include <QStyleFactory>
#include <array>

#include "tests/monkey/Actions.h"

namespace calvoro::monkey {

void ResizeWindow(World& world, Dice& dice) {
    QWidget& window = *world.Active();
    if (!window.isWindow() || QApplication::activePopupWidget() != nullptr) return;
    switch (dice.Below(8)) {
        case 0:
            world.Do(NameOf(window) + QStringLiteral(" maximised or back"));
            window.setWindowState(window.windowState() ^ Qt::WindowMaximized);
            break;
        case 1:
            world.Do(NameOf(window) + QStringLiteral(" over the whole screen or back"));
            window.setWindowState(window.windowState() ^ Qt::WindowFullScreen);
            break;
        case 2: {
            const QPoint place(dice.Between(-300, 900), dice.Between(-300, 900));
            world.Do(NameOf(window) + QStringLiteral(" moved to %1 %2").arg(place.x()).arg(place.y()));
            window.move(place);
            break;
        }
        default: {
            const QSize size(dice.Between(1, 1600), dice.Between(1, 1200));
            world.Do(NameOf(window) +
                     QStringLiteral(" resized to %1 %2").arg(size.width()).arg(size.height()));
            window.resize(size);
        }
    }
}

void ChangeTheme(World& world, Dice& dice) {
    const int way = dice.Below(3);
    if (way == 0) {
        const std::array<QPalette, 4> palettes = {QPalette(QColor(239, 240, 241)),
                                                  QPalette(QColor(42, 46, 50)), QPalette(Qt::black),
                                                  QPalette(Qt::yellow, Qt::blue)};
        const int chosen = dice.Below(4);
        world.Do(QStringLiteral("colours %1").arg(chosen));
        QApplication::setPalette(palettes[static_cast<std::size_t>(chosen)]);
    } else if (way == 1) {
        QFont font = QApplication::font();
        font.setPointSize(dice.Between(6, 20));
        font.setBold(dice.OneIn(5));
        world.Do(QStringLiteral("font of %1 points").arg(font.pointSize()));
        QApplication::setFont(font);
    } else {
        const QString style = dice.OneIn(3) ? QStringLiteral("Windows") : QStringLiteral("Fusion");
        world.Do(QStringLiteral("style ") + style);
        QApplication::setStyle(QStyleFactory::create(style));
    }
}

}  // namespace calvoro::monkey
