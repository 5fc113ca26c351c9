#include "platform/qt/QtSettingsPlace.h"

#include <QByteArray>
#include <QStandardPaths>

#if defined(Q_OS_WIN)
#include "platform/windows/Shell.h"
#elif !defined(Q_OS_MACOS)
#include <pwd.h>
#include <unistd.h>
#endif

#include "platform/ConfigurationFolder.h"
#include "platform/PrivateFolder.h"

namespace calvoro {

namespace {

std::string WantedFolder() {
#if defined(Q_OS_WIN)
    return SettingsBase();
#elif defined(Q_OS_MACOS)
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation).toStdString();
#else
    const passwd* const account = ::getpwuid(::geteuid());
    const bool hasHome = account != nullptr && account->pw_dir != nullptr;
    // The bytes of the environment as they are: a path need not be valid text.
    return ConfigurationFolder(qgetenv("XDG_CONFIG_HOME").toStdString(), qgetenv("HOME").toStdString(),
                               hasHome ? account->pw_dir : "");
#endif
}

}  // namespace

std::string QtSettingsPlace::BaseFolder() {
    const std::string folder = WantedFolder();
    return !folder.empty() && MakePrivateFolders(folder) ? folder : std::string();
}

}  // namespace calvoro
