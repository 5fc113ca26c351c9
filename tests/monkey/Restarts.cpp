#include <QAccessible>
#include <QFile>
#include <array>

#include "mainwindow/settings/SettingsText.h"
#include "tests/monkey/Actions.h"
#include "tests/monkey/Seen.h"

namespace calvoro::monkey {
namespace {

bool EndByAnyWay(World& world, Dice& dice) {
    auto& quit = world.Get<QAbstractButton>("cmdQuit");
    switch (dice.Below(5)) {
        case 0: world.Do(QStringLiteral("click on cmdQuit")); return ClickOnControl(quit, dice);
        case 1:
            world.Do(QStringLiteral("Ctrl+Q"));
            world.main.Activate();
            Key(world, Qt::Key_Q, Qt::ControlModifier);
            return true;
        case 2:
            world.Do(QStringLiteral("main window closed from its frame"));
            return world.main.window->windowHandle()->close();
        case 3:
            world.Do(QStringLiteral("assistive action on cmdQuit"));
            QAccessible::queryAccessibleInterface(&quit)->actionInterface()->doAction(
                QAccessibleActionInterface::pressAction());
            return QTest::qWaitFor([&quit] { return !quit.isDown(); });
        default:
            world.Do(QStringLiteral("end of the session"));
            world.main.window->QuitAndSave();
            return true;
    }
}

Settings AnySettings(const Settings& before, Dice& dice) {
    Settings settings = before;
    settings.interfaceLanguage = static_cast<LanguageNumber>(dice.Below(3));
    settings.hyphen = dice.OneIn(2);
    settings.firstCalendar = dice.OneOf(kOfferedNotations);
    settings.secondCalendar = dice.OneOf(kOfferedNotations);
    settings.todayCalendar = dice.OneOf(kOfferedNotations);
    settings.monthCalendar = dice.OneIn(2) ? CalendarNumber::CE : CalendarNumber::JC;
    settings.firstDate = dice.OneIn(3) ? "" : "2024-02-29";
    settings.output = std::string(static_cast<std::size_t>(dice.Below(400)), '=');
    return settings;
}

Settings AsSaved(Settings settings) {
    settings = WithLinesOfTheFile(std::move(settings));
    if (!settings.saveOutput) {
        settings.firstDate.clear();
        settings.dateDiff.clear();
        settings.secondDate.clear();
        settings.output.clear();
    }
    return settings;
}

}  // namespace

void EndAndStart(World& world, Dice& dice) {
    if (QApplication::activePopupWidget() != nullptr || QApplication::activeModalWidget() != nullptr) return;
    const Settings seen = SettingsSeen(world);
    // A button that is scrolled out of sight cannot be clicked.
    if (!EndByAnyWay(world, dice)) world.main.window->QuitAndSave();
    QCoreApplication::processEvents();
    world.End();
    const Settings saved = world.main.Saved();
    if (saved != AsSaved(seen)) {
        world.brokenInvariant = "settings";
        world.fault = "seen was\n" + SettingsText(seen) + "saved is\n" + SettingsText(saved);
    }
    switch (dice.Below(8)) {
        case 0:
            world.Do(world.doing + QStringLiteral("; started without settings"));
            QFile::remove(QString::fromStdString(world.main.SettingsPath()));
            world.StartWithFile();
            break;
        case 1: {
            world.Do(world.doing + QStringLiteral("; started with a damaged file"));
            QFile file(QString::fromStdString(world.main.SettingsPath()));
            if (file.open(QFile::ReadWrite) && file.size() > 0) file.resize(dice.Below(int(file.size())));
            file.close();
            world.StartWithFile();
            break;
        }
        case 2:
            world.Do(world.doing + QStringLiteral("; started with other settings"));
            QFile::remove(QString::fromStdString(world.main.SettingsPath()));
            world.Start(AsSaved(AnySettings(saved, dice)));
            break;
        default: world.Do(world.doing + QStringLiteral("; started again")); world.StartWithFile();
    }
    QCoreApplication::processEvents();
    if (world.fault.empty() && SettingsSeen(world) != world.startedWith) {
        world.brokenInvariant = "settings";
        world.fault =
            "seen is\n" + SettingsText(SettingsSeen(world)) + "read was\n" + SettingsText(world.startedWith);
    }
}

}  // namespace calvoro::monkey
