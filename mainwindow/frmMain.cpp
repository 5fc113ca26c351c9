#include "mainwindow/frmMain.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <utility>

#include "mainwindow/SettingsFile.h"
#include "text/ProgramText.h"

namespace calvoro {

frmMain::frmMain(const Platform& platform, WebAddresses addresses)
    : platform_(platform),
      addresses_(std::move(addresses)),
      settingsFilePath_(
          SettingsFilePath(platform_.place.BaseFolder(), GetProgramText(310, LanguageEnglish))) {
    setObjectName(QStringLiteral("frmMain"));
}

void frmMain::Start() {
    setWindowTitle(QStringLiteral("Calvoro 13.0"));
    show();
}

void frmMain::QuitAndSave() {
    if (!saved_) WriteSettings();
    saved_ = true;
    // exit, not quit: quit first asks every open window to close, and a window may refuse.
    QCoreApplication::exit(0);
}

void frmMain::closeEvent(QCloseEvent* event) {
    event->accept();
    QuitAndSave();
}

void frmMain::WriteSettings() {
    WriteSettingsFile(settingsFilePath_, Settings{});
}

}  // namespace calvoro
