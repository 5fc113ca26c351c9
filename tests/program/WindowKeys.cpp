// Prints the key of each button and each label of the main window, the month window and the list window, as
// "frmMain.cmdEnlarge g" a line: keys are given out by the windows themselves, and the tests that drive the
// program from outside must not guess them. An argument, the number of a language, chooses whose keys. With a
// second one the lines are for the page of the manual that lists all keys: window, key and caption, separated
// by tabs, shortcuts without a caption included.

#include <QAbstractButton>
#include <QApplication>
#include <QKeySequence>
#include <QLabel>
#include <QShortcut>
#include <QVariant>
#include <QWidget>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "mainwindow/frmMain.h"
#include "mainwindow/settings/SettingsFile.h"
#include "tests/support/FakePlatform.h"
#include "text/Texts.h"
#include "windows/Mnemonics.h"

namespace {

using namespace calvoro;

void PrintKeys(const QWidget& window, bool withCaptions) {
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        const bool mayHaveKey = qobject_cast<const QAbstractButton*>(control) != nullptr ||
                                qobject_cast<const QLabel*>(control) != nullptr;
        if (!mayHaveKey || control->objectName().isEmpty()) continue;
        const QString caption = control->property("text").toString();
        const QString key = QKeySequence::mnemonic(caption).toString().section(u'+', -1).toLower();
        if (key.isEmpty()) continue;
        if (withCaptions) {
            std::printf("%s\tAlt+%s\t%s\n", qPrintable(window.objectName()), qPrintable(key.toUpper()),
                        qPrintable(Caption(*control)));
            continue;
        }
        std::printf("%s.%s %s\n", qPrintable(window.objectName()), qPrintable(control->objectName()),
                    qPrintable(key));
    }
    if (!withCaptions) return;
    for (const QShortcut* shortcut : window.findChildren<QShortcut*>()) {
        std::printf("%s\t%s\t\n", qPrintable(window.objectName()),
                    qPrintable(shortcut->key().toString(QKeySequence::PortableText)));
    }
}

// It has a key and no button.
void OpenList(const frmMain& window) {
    for (QShortcut* shortcut : window.findChildren<QShortcut*>()) {
        if (shortcut->key() == QKeySequence(Qt::CTRL | Qt::Key_L)) Q_EMIT shortcut->activated();
    }
}

}  // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    FakePlatform fakes;
    std::string folder = (std::filesystem::temp_directory_path() / "calvoro-keys-XXXXXX").string();
    if (::mkdtemp(folder.data()) == nullptr) return EXIT_FAILURE;
    fakes.place.folder = folder;
    Settings settings;
    settings.interfaceLanguage = static_cast<LanguageNumber>(argc > 1 ? std::atoi(argv[1]) : 0);
    WriteSettingsFile(SettingsFilePath(folder, Texts().GetProgramText(310)), settings, "");
    {
        frmMain window(fakes.platform, {}, Texts());
        window.Start();
        window.findChild<QAbstractButton*>(QStringLiteral("cmdDisplayMonth"))->click();
        OpenList(window);
        QApplication::processEvents();
        for (const QWidget* shown : QApplication::topLevelWidgets()) {
            if (shown->isVisible()) PrintKeys(*shown, argc > 2);
        }
    }
    std::filesystem::remove_all(folder);
    return EXIT_SUCCESS;
}
