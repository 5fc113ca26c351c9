#include "platform/qt/QtSettingsPlace.h"

#include <pwd.h>
#include <unistd.h>

#include <QByteArray>

#include "platform/ConfigurationFolder.h"
#include "platform/PrivateFolder.h"

namespace calvoro {

std::string QtSettingsPlace::BaseFolder() {
    const passwd* const account = ::getpwuid(::geteuid());
    const bool hasHome = account != nullptr && account->pw_dir != nullptr;
    // The bytes of the environment as they are: a path need not be valid text.
    const std::string folder =
        ConfigurationFolder(qgetenv("XDG_CONFIG_HOME").toStdString(), qgetenv("HOME").toStdString(),
                            hasHome ? account->pw_dir : "");
    return !folder.empty() && MakePrivateFolders(folder) ? folder : std::string();
}

}  // namespace calvoro
