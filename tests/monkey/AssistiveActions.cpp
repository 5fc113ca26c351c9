#include <QAccessible>
#include <array>

#include "tests/monkey/Actions.h"

namespace calvoro::monkey {
namespace {

// What a reader asks for.
void Read(QAccessibleInterface& control) {
    for (const QAccessible::Text kind :
         {QAccessible::Name, QAccessible::Description, QAccessible::Value, QAccessible::Help}) {
        (void)control.text(kind);
    }
    (void)control.role();
    (void)control.state();
    (void)control.rect();
    for (int i = 0; i < std::min(control.childCount(), 20); ++i) {
        if (QAccessibleInterface* child = control.child(i)) (void)child->text(QAccessible::Name);
    }
    if (QAccessibleTextInterface* text = control.textInterface()) {
        (void)text->text(0, text->characterCount());
        int begin = 0;
        int end = 0;
        (void)text->attributes(0, &begin, &end);
    }
}

void Select(QAccessibleTextInterface& text, Dice& dice) {
    const int end = text.characterCount() + 1;
    const int first = dice.Below(end);
    if (dice.OneIn(2)) {
        text.setCursorPosition(first);
    } else {
        text.setSelection(0, std::min(first, end / 2), dice.Below(end));
    }
}

}  // namespace

void ActAsAssistiveTool(World& world, Dice& dice) {
    if (QApplication::activePopupWidget() != nullptr) return;
    QList<QWidget*> controls;
    for (QWidget* control : world.Active()->findChildren<QWidget*>()) {
        const bool ends = control->objectName() == QLatin1String("cmdQuit");
        if (!ends && control->isVisible() && control->isEnabled()) controls.push_back(control);
    }
    if (controls.isEmpty()) return;
    QPointer<QWidget> control = dice.OneOf(controls);
    QAccessibleInterface* const tool = QAccessible::queryAccessibleInterface(control.data());
    if (tool == nullptr) return;
    world.Do(QStringLiteral("assistive tool reads ") + NameOf(*control));
    Read(*tool);
    auto* box = qobject_cast<QLineEdit*>(control.data());
    if (box != nullptr && dice.OneIn(2)) {
        const QString text = OddText(world, dice);
        world.Do(QStringLiteral("assistive tool writes %1 into ").arg(text.left(60)) + NameOf(*control));
        world.typedInto.insert(box);
        tool->setText(QAccessible::Value, text);
        return;
    }
    if (QAccessibleTextInterface* text = tool->textInterface(); text != nullptr && dice.OneIn(2)) {
        world.Do(QStringLiteral("assistive tool selects in ") + NameOf(*control));
        Select(*text, dice);
        return;
    }
    QAccessibleActionInterface* const actions = tool->actionInterface();
    if (actions == nullptr || actions->actionNames().isEmpty()) return;
    const QString action = dice.OneOf(actions->actionNames());
    world.Do(QStringLiteral("assistive action %1 on ").arg(action) + NameOf(*control));
    actions->doAction(action);
    const auto isUp = [&control] {
        const auto* button = qobject_cast<QAbstractButton*>(control.data());
        return button == nullptr || !button->isDown();
    };
    if (QTest::qWaitFor(isUp)) return;
    world.brokenInvariant = "choices";
    world.fault = "the button stays down";
}

}  // namespace calvoro::monkey
