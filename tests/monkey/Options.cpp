#include <QAccessible>
#include <QCheckBox>
#include <QRadioButton>
#include <array>

#include "tests/monkey/Actions.h"

namespace calvoro::monkey {
namespace {

QList<QAbstractButton*> OptionsOf(const QWidget& window) {
    QList<QAbstractButton*> options;
    for (QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        if (button->isCheckable() && button->isVisible() && button->isEnabled()) options.push_back(button);
    }
    return options;
}

// A calendar that cannot write or read what stands in the box sends the choice back.
bool MayBeSentBack(const QString& name) {
    return name.startsWith(QLatin1String("optFirstDateIs")) ||
           name.startsWith(QLatin1String("optSecondDateIs"));
}

// An option must now be chosen, a check box must have changed.
void CheckChosen(World& world, const QAbstractButton& button, bool before, const QString& name) {
    const bool isOption = qobject_cast<const QRadioButton*>(&button) != nullptr;
    const bool asWanted = isOption ? button.isChecked() : button.isChecked() != before;
    if (asWanted || MayBeSentBack(name)) return;
    world.brokenInvariant = "choices";
    world.fault = name.toStdString() + (isOption ? " is not chosen" : " has not changed");
}

}  // namespace

void ChooseByMouse(World& world, Dice& dice) {
    const QList<QAbstractButton*> options = OptionsOf(*world.Active());
    if (options.isEmpty()) return;
    QAbstractButton& button = *dice.OneOf(options);
    const QString name = button.objectName();
    const bool before = button.isChecked();
    world.Do(QStringLiteral("choice by mouse of ") + NameOf(button));
    const bool inSight = button.visibleRegion().contains(QPoint(9, button.height() / 2));
    if (ClickOnControl(button, dice, Qt::LeftButton, true) && inSight)
        CheckChosen(world, button, before, name);
}

void ChooseByKey(World& world, Dice& dice) {
    if (QApplication::activePopupWidget() != nullptr) return;
    const QList<QAbstractButton*> options = OptionsOf(*world.Active());
    if (options.isEmpty()) return;
    QAbstractButton& button = *dice.OneOf(options);
    const QString name = button.objectName();
    const bool before = button.isChecked();
    button.setFocus(Qt::TabFocusReason);
    if (!button.hasFocus()) return;
    constexpr std::array<Qt::Key, 6> kKeys = {Qt::Key_Space, Qt::Key_Space, Qt::Key_Up,
                                              Qt::Key_Down,  Qt::Key_Left,  Qt::Key_Right};
    const Qt::Key key = dice.OneOf(kKeys);
    world.Do(QStringLiteral("key %1 on ").arg(QKeySequence(key).toString()) + NameOf(button));
    Key(world, key);
    if (key == Qt::Key_Space) CheckChosen(world, button, before, name);
}

void ChooseByAssistiveTool(World& world, Dice& dice) {
    if (QApplication::activePopupWidget() != nullptr) return;
    const QList<QAbstractButton*> options = OptionsOf(*world.Active());
    if (options.isEmpty()) return;
    QPointer<QAbstractButton> button = dice.OneOf(options);
    const QString name = button->objectName();
    const bool before = button->isChecked();
    const bool chosenOption = before && qobject_cast<QRadioButton*>(button.data()) != nullptr;
    // A press holds the button down for a tenth of a second.
    const QString action = dice.OneIn(8) ? QAccessibleActionInterface::pressAction()
                                         : QAccessibleActionInterface::toggleAction();
    world.Do(QStringLiteral("assistive action %1 on ").arg(action) + NameOf(*button));
    QAccessible::queryAccessibleInterface(button.data())->actionInterface()->doAction(action);
    const auto isUp = [&button] { return button.isNull() || !button->isDown(); };
    if (!QTest::qWaitFor(isUp)) world.fault = name.toStdString() + " stays down";
    if (!button.isNull() && !chosenOption) CheckChosen(world, *button, before, name);
}

void SwitchLanguage(World& world, Dice& dice) {
    if (QApplication::activePopupWidget() != nullptr || QApplication::activeModalWidget() != nullptr) return;
    constexpr std::array<const char*, 2> kLanguages = {"optLanguageIsEnglish", "optLanguageIsGerman"};
    auto& button = world.Get<QAbstractButton>(dice.OneOf(kLanguages));
    world.Do(QStringLiteral("language by ") + NameOf(button));
    world.main.Activate();
    button.click();
    CheckChosen(world, button, false, button.objectName());
}

}  // namespace calvoro::monkey
