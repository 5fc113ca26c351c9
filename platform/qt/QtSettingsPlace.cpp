#include "platform/qt/QtSettingsPlace.h"

#include <QByteArray>
#include <QDir>
#include <QStandardPaths>
#include <filesystem>
#include <system_error>

namespace calvoro {

namespace {

std::string WantedFolder() {
#if defined(Q_OS_WIN)
    return qEnvironmentVariable("APPDATA").toStdString();
#elif defined(Q_OS_MACOS)
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation).toStdString();
#else
    // The bytes of the environment as they are: a path need not be valid text.
    const QByteArray configured = qgetenv("XDG_CONFIG_HOME");
    if (configured.startsWith('/')) return configured.toStdString();
    const QByteArray home = qgetenv("HOME");
    return (home.startsWith('/') ? home.toStdString() : QDir::homePath().toStdString()) + "/.config";
#endif
}

std::string WithoutClosingSeparators(std::string path) {
    while (path.ends_with('/')) path.pop_back();
    return path;
}

}  // namespace

std::string QtSettingsPlace::BaseFolder() {
    std::string folder = WithoutClosingSeparators(WantedFolder());
    std::error_code ignored;  // what counts is whether the folder is there afterwards
    std::filesystem::create_directories(folder, ignored);
    return std::filesystem::is_directory(folder, ignored) ? folder : std::string();
}

}  // namespace calvoro
