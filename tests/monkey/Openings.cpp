#include <array>

#include "tests/monkey/Actions.h"
#include "windows/frmList.h"

namespace calvoro::monkey {
namespace {

bool IsWaiting() {
    return QApplication::activePopupWidget() != nullptr || QApplication::activeModalWidget() != nullptr;
}

void ActivateMain(World& world) {
    if (QApplication::activeWindow() != world.main.window.get()) world.main.Activate();
}

}  // namespace

void OpenWindow(World& world, Dice& dice) {
    if (IsWaiting()) return;
    if (auto* list = world.Open<frmList>(); list != nullptr && dice.OneIn(4)) {
        constexpr std::array<const char*, 2> kQuestions = {"cmdOpen", "cmdSaveAs"};
        auto* button = list->findChild<QWidget*>(QLatin1String(dice.OneOf(kQuestions)));
        world.Do(QStringLiteral("click on ") + NameOf(*button));
        list->activateWindow();
        ClickOnControl(*button, dice);
        return;
    }
    ActivateMain(world);
    constexpr std::array<const char*, 6> kButtons = {"cmdDisplayMonth", "cmdHelp",  "cmdEnlarge",
                                                     "cmdEnlarge",      "cmdReset", "cmdCopyToClipboard"};
    constexpr std::array<std::pair<Qt::Key, bool>, 3> kKeys = {
        {{Qt::Key_F1, false}, {Qt::Key_M, true}, {Qt::Key_L, true}}};
    if (dice.OneIn(2)) {
        const auto [key, control] = dice.OneOf(kKeys);
        world.Do(QStringLiteral("key %1 to open a window").arg(int{key}));
        Key(world, key, control ? Qt::ControlModifier : Qt::NoModifier);
    } else {
        auto& button = world.Get<QWidget>(dice.OneOf(kButtons));
        world.Do(QStringLiteral("click on ") + NameOf(button));
        ClickOnControl(button, dice);
    }
}

void CloseWindow(World& world, Dice& dice) {
    if (QWidget* popup = QApplication::activePopupWidget()) {
        world.Do(QStringLiteral("Esc in ") + NameOf(*popup));
        Key(world, Qt::Key_Escape);
        return;
    }
    if (IsWaiting()) return;
    QList<QWidget*> windows = world.OpenWindows();
    windows.removeAll(world.main.window.get());
    if (windows.isEmpty()) return;
    QWidget& window = *dice.OneOf(windows);
    switch (dice.Below(3)) {
        case 0:
            world.Do(QStringLiteral("Esc in ") + NameOf(window));
            window.activateWindow();
            if (QWindow* handle = window.windowHandle()) QTest::keyClick(handle, Qt::Key_Escape);
            break;
        case 1:
            world.Do(NameOf(window) + QStringLiteral(" closed from its frame"));
            if (QWindow* handle = window.windowHandle()) handle->close();
            break;
        default:
            if (auto* button = window.findChild<QWidget*>(QStringLiteral("cmdClose"))) {
                world.Do(QStringLiteral("click on ") + NameOf(*button));
                window.activateWindow();
                ClickOnControl(*button, dice);
            }
    }
}

void GoToWindow(World& world, Dice& dice) {
    if (IsWaiting()) return;
    QWidget& window = *dice.OneOf(world.OpenWindows());
    world.Do(QStringLiteral("to ") + NameOf(window));
    window.activateWindow();
}

}  // namespace calvoro::monkey
