#include <QKeySequence>
#include <array>

#include "tests/monkey/Actions.h"

namespace calvoro::monkey {
namespace {

constexpr std::array<Qt::Key, 20> kNamedKeys = {
    Qt::Key_Tab,    Qt::Key_Tab,       Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Enter,
    Qt::Key_Escape, Qt::Key_Space,     Qt::Key_Left,    Qt::Key_Right,  Qt::Key_Up,
    Qt::Key_Down,   Qt::Key_Home,      Qt::Key_End,     Qt::Key_PageUp, Qt::Key_PageDown,
    Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_F1,      Qt::Key_F3,     Qt::Key_Menu};

// Ctrl+Q ends the program, which is a kind of its own.
constexpr std::array<Qt::Key, 14> kWithControl = {
    Qt::Key_A, Qt::Key_C, Qt::Key_X,    Qt::Key_V,   Qt::Key_Z,      Qt::Key_Y,        Qt::Key_L,
    Qt::Key_M, Qt::Key_O, Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Delete};

constexpr std::string_view kTyped = "0123456789012345678901234567890123456789-/.,-W() xAé+";

// What the user writes now goes into the box of the main window that has the focus there.
void TellTypedInto(World& world) {
    world.typedInto.insert(qobject_cast<QLineEdit*>(world.main.window->focusWidget()));
}

}  // namespace

void Key(World& world, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    const bool toList = QApplication::activePopupWidget() != nullptr;
    const bool computes = key == Qt::Key_Return || key == Qt::Key_Enter;
    const bool steps = (key == Qt::Key_Up || key == Qt::Key_Down) && modifiers == Qt::NoModifier;
    if (toList || (!computes && !steps)) TellTypedInto(world);
    if (QWindow* window = world.Active()->windowHandle()) QTest::keyClick(window, key, modifiers);
}

void PressKey(World& world, Dice& dice) {
    Qt::KeyboardModifiers modifiers;
    if (dice.OneIn(2)) {
        const char typed = dice.OneOf(kTyped);
        world.Do(QStringLiteral("key of the character %1").arg(int{static_cast<unsigned char>(typed)}));
        TellTypedInto(world);
        if (QWindow* window = world.Active()->windowHandle()) QTest::keyClick(window, typed);
        return;
    }
    const bool control = dice.OneIn(4);
    const Qt::Key key = control ? dice.OneOf(kWithControl) : dice.OneOf(kNamedKeys);
    if (control) modifiers |= Qt::ControlModifier;
    if (dice.OneIn(8)) modifiers |= Qt::ShiftModifier;
    world.Do(QStringLiteral("key ") + QKeySequence(key | modifiers).toString());
    Key(world, key, modifiers);
}

void PressAccessKey(World& world, Dice& dice) {
    QList<QWidget*> labelled;
    for (QWidget* control : world.Active()->findChildren<QWidget*>()) {
        const bool ends = control->objectName() == QLatin1String("cmdQuit");
        const QKeySequence key = QKeySequence::mnemonic(control->property("text").toString());
        if (!ends && control->isVisible() && control->isEnabled() && !key.isEmpty())
            labelled.push_back(control);
    }
    if (labelled.isEmpty()) return;
    QPointer<QWidget> control = dice.OneOf(labelled);
    const QKeySequence key = QKeySequence::mnemonic(control->property("text").toString());
    world.Do(QStringLiteral("access key %1 of %2").arg(key.toString(), NameOf(*control)));
    Key(world, key[0].key(), Qt::AltModifier);
    // The toolkit holds the button down for a moment.
    const auto isUp = [&control] {
        const auto* button = qobject_cast<QAbstractButton*>(control.data());
        return button == nullptr || !button->isDown();
    };
    world.fault = QTest::qWaitFor(isUp) ? "" : "the button stays down";
    if (!world.fault.empty()) world.brokenInvariant = "choices";
}

void TypeText(World& world, Dice& dice) {
    if (world.Active() == world.main.window.get() && !dice.OneIn(5)) {
        constexpr std::array<const char*, 3> kBoxes = {"txbFirstDate", "txbDateDiff", "txbSecondDate"};
        world.Get<QLineEdit>(dice.OneOf(kBoxes)).setFocus(Qt::TabFocusReason);
        if (!dice.OneIn(5)) world.Get<QLineEdit>("txbFirstDate").window()->focusWidget()->setFocus();
    }
    if (auto* box = qobject_cast<QLineEdit*>(QApplication::focusWidget()); box != nullptr && !dice.OneIn(4)) {
        box->selectAll();
    }
    const QString text = dice.OneIn(4) ? OddText(world, dice).left(40) : ReadableText(world, dice);
    world.Do(QStringLiteral("text typed: ") + text);
    for (const QChar character : text) {
        // The windows may change with every key, and so may the box with the focus, by the button that clears
        // it.
        TellTypedInto(world);
        QWindow* const window = world.Active()->windowHandle();
        const bool isKey = character.unicode() >= 0x20 && character.unicode() < 0x7F;
        if (window != nullptr && isKey) QTest::keyClick(window, character.toLatin1());
    }
}

}  // namespace calvoro::monkey
