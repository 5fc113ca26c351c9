#include <QScrollBar>
#include <QWheelEvent>
#include <array>

#include "tests/monkey/Actions.h"

namespace calvoro::monkey {
namespace {

QList<QWidget*> ControlsInSight(const QWidget& window) {
    QList<QWidget*> controls;
    for (QWidget* control : window.findChildren<QWidget*>()) {
        const bool ends = control->objectName() == QLatin1String("cmdQuit");
        if (!ends && control->isVisible() && control->window() == &window &&
            !control->visibleRegion().isEmpty()) {
            controls.push_back(control);
        }
    }
    return controls;
}

// Its menu is the toolkit's, which on a platform without a screen never comes back from it.
bool IsOfScrollBar(const QWidget& control) {
    return qobject_cast<const QScrollBar*>(&control) != nullptr ||
           control.objectName().startsWith(QLatin1String("qt_scrollarea_"));
}

// Draws the mouse over a text. Where a text is selected already, it would be dragged away instead.
bool SelectByMouse(QWidget& control, QWindow& window, QPoint place, Dice& dice) {
    const auto* line = qobject_cast<QLineEdit*>(&control);
    const auto* text = qobject_cast<QPlainTextEdit*>(control.parentWidget());
    const bool isFree = (line != nullptr && !line->hasSelectedText()) ||
                        (text != nullptr && !text->textCursor().hasSelection());
    if (!isFree) return false;
    QTest::mousePress(&window, Qt::LeftButton, Qt::NoModifier, place);
    const QPoint end = place + QPoint(dice.Between(-60, 60), dice.Between(-20, 20));
    const QPoint inside(qBound(0, end.x(), window.width() - 1), qBound(0, end.y(), window.height() - 1));
    QTest::mouseMove(&window, inside);
    QTest::mouseRelease(&window, Qt::LeftButton, Qt::NoModifier, inside);
    return true;
}

QPoint PlaceInWindow(const QWidget& control, Dice& dice, bool atMark) {
    const QRect seen = control.visibleRegion().boundingRect();
    const QPoint mark(9, control.height() / 2);
    const QPoint any(seen.left() + dice.Below(seen.width()), seen.top() + dice.Below(seen.height()));
    return control.mapTo(control.window(), atMark && seen.contains(mark) ? mark : any);
}

}  // namespace

bool ClickOnControl(QWidget& control, Dice& dice, Qt::MouseButton button, bool atMark,
                    Qt::KeyboardModifiers modifiers) {
    QWindow* const window = control.window()->windowHandle();
    if (window == nullptr || control.visibleRegion().isEmpty()) return false;
    const QPoint place = PlaceInWindow(control, dice, atMark);
    if (!QRect(QPoint(), window->size()).contains(place)) return false;
    const QWidget* const below = control.window()->childAt(place);
    if (button == Qt::RightButton && below != nullptr && IsOfScrollBar(*below)) return false;
    QTest::mouseClick(window, button, modifiers, place);
    return true;
}

void ClickSomewhere(World& world, Dice& dice) {
    QWidget* const active = world.Active();
    const QList<QWidget*> controls = ControlsInSight(*active);
    if (controls.isEmpty()) return;
    QWidget& control = *dice.OneOf(controls);
    if (QApplication::activePopupWidget() != nullptr) {
        world.typedInto.insert(qobject_cast<QLineEdit*>(world.main.window->focusWidget()));
    }
    QWindow* const window = active->windowHandle();
    const int way = dice.Below(20);
    if (way == 0) {
        world.Do(QStringLiteral("double click on ") + NameOf(control));
        const QPoint place = PlaceInWindow(control, dice, false);
        if (window != nullptr) QTest::mouseDClick(window, Qt::LeftButton, Qt::NoModifier, place);
    } else if (way == 1) {
        world.Do(QStringLiteral("selection by mouse in ") + NameOf(control));
        if (window != nullptr) SelectByMouse(control, *window, PlaceInWindow(control, dice, false), dice);
    } else if (way == 2) {
        world.Do(QStringLiteral("middle click on ") + NameOf(control));
        if (qobject_cast<QLineEdit*>(&control) != nullptr) world.typedInto.insert(&control);
        ClickOnControl(control, dice, Qt::MiddleButton);
    } else if (way < 5 && !IsOfScrollBar(control)) {
        world.Do(QStringLiteral("right click on ") + NameOf(control));
        ClickOnControl(control, dice, Qt::RightButton);
    } else {
        world.Do(QStringLiteral("click on ") + NameOf(control));
        ClickOnControl(control, dice, Qt::LeftButton, dice.OneIn(2),
                       dice.OneIn(10) ? Qt::ShiftModifier : Qt::NoModifier);
    }
}

void TurnWheel(World& world, Dice& dice) {
    const QList<QWidget*> controls = ControlsInSight(*world.Active());
    if (controls.isEmpty()) return;
    QWidget& control = *dice.OneOf(controls);
    world.Do(QStringLiteral("wheel on ") + NameOf(control));
    const QPointF place(control.rect().center());
    const int turn = dice.OneIn(2) ? 120 : -120;
    QWheelEvent event(place, control.mapToGlobal(place), {}, {0, turn}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&control, &event);
}

}  // namespace calvoro::monkey
