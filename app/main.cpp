// The program's entry: answers what needs no display, refuses kindly where there is none, loads the texts,
// shows the main window, and sees to it that every way of ending saves the settings.

#include <QApplication>
#include <QIcon>
#include <QPointer>
#include <QSessionManager>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ConfiguredAddresses.h"
#include "app/Arguments.h"
#include "app/EndingSignals.h"
#include "app/InstalledManual.h"
#include "app/NoDisplay.h"
#include "datetext/PrintableText.h"
#include "mainwindow/StartUpTexts.h"
#include "mainwindow/frmMain.h"
#include "platform/Platform.h"
#include "platform/SystemClock.h"
#include "platform/qt/QtClipboard.h"
#include "platform/qt/QtMessageBoxes.h"
#include "platform/qt/QtSettingsPlace.h"
#include "platform/qt/QtWebOpener.h"
#include "platform/qt/SystemDigitGrouping.h"

namespace {

using namespace calvoro;

constexpr int kUsageError = 2;

int Print(std::string_view text) {
    std::fwrite(text.data(), 1, text.size(), stdout);
    return std::fflush(stdout) == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

int Refuse(const std::string& argument) {
    std::fprintf(stderr, "calvoro: unknown option or missing value: %s; try 'calvoro --help'\n",
                 QuotedText(argument).c_str());
    return kUsageError;
}

/// Saves when Qt ends the process in the middle of the event loop, as it does when the display is gone.
class SaveAtExit {
public:
    explicit SaveAtExit(frmMain* window) : window_(window) {}
    ~SaveAtExit() {
        if (window_) window_->QuitAndSave();
    }
    SaveAtExit(const SaveAtExit&) = delete;
    SaveAtExit& operator=(const SaveAtExit&) = delete;

private:
    QPointer<frmMain> window_;
};

/// The configured pages, and the manual that lies on this machine.
WebAddresses Addresses() {
    WebAddresses addresses = ConfiguredAddresses();
    const auto installed = [](const QString& language) {
        return InstalledManual(QCoreApplication::applicationDirPath(), QString::fromUtf8(kManualFolder),
                               language);
    };
    addresses.installedManualEnglish = installed(QStringLiteral("en"));
    addresses.installedManualGerman = installed(QStringLiteral("de"));
    return addresses;
}

int ShowWindow(QApplication& application) {
    QtMessageBoxes boxes;
    QtClipboard clipboard;
    const SystemClock clock;
    QtWebOpener web;
    QtSettingsPlace place;
    const Platform platform{boxes, clipboard, clock, web, place, SystemDigitGrouping()};

    const std::optional<Texts> texts =
        LoadTextsOrTell(QCoreApplication::applicationDirPath().toStdString(), boxes);
    if (!texts) return EXIT_FAILURE;

    frmMain window(platform, Addresses(), *texts);
    const auto end = [&window] { window.QuitAndSave(); };
    const EndingSignals endingSignals(end, nullptr);
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &window, end, Qt::DirectConnection);
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &window, end);
    static const SaveAtExit saveAtExit(&window);
    window.Start();
    // Reading a picture takes longer than all captions; nobody misses it before the window is painted.
    QTimer::singleShot(0, &application,
                       [] { QApplication::setWindowIcon(QIcon(QStringLiteral(":/calvoro.png"))); });
    return QApplication::exec();
}

}  // namespace

int main(int argc, char* argv[]) {
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    const ReadArguments read = ReadProgramArguments(arguments);
    switch (read.request) {
        case Request::Help: return Print(HelpMessage());
        case Request::Version:
            return Print(std::string("calvoro ") + kProgramVersion + "\n" + kNotice + "\n");
        case Request::Refuse: return Refuse(read.refused);
        case Request::ShowWindow: break;
    }

    std::optional<NoDisplayGuard> guard(std::in_place);
    QApplication application(argc, argv);
    guard.reset();
    QGuiApplication::setDesktopFileName(QStringLiteral("calvoro"));
    return ShowWindow(application);
}
