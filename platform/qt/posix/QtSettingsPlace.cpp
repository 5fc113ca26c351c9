#include "platform/qt/QtSettingsPlace.h"

#include <pwd.h>
#include <unistd.h>

#include <QByteArray>
#include <cerrno>
#include <vector>

#include "platform/ConfigurationFolder.h"
#include "platform/PrivateFolder.h"

namespace calvoro {

namespace {

// Empty when the system does not tell it.
std::string HomeOfAccount() {
    std::vector<char> room(1024);
    passwd account{};
    passwd* found = nullptr;
    while (::getpwuid_r(::geteuid(), &account, room.data(), room.size(), &found) == ERANGE) {
        room.resize(2 * room.size());
    }
    return found != nullptr && found->pw_dir != nullptr ? found->pw_dir : "";
}

}  // namespace

std::string QtSettingsPlace::BaseFolder() {
    // The bytes of the environment as they are: a path need not be valid text.
    const std::string folder = ConfigurationFolder(qgetenv("XDG_CONFIG_HOME").toStdString(),
                                                   qgetenv("HOME").toStdString(), HomeOfAccount());
    return !folder.empty() && MakePrivateFolders(folder) ? folder : std::string();
}

}  // namespace calvoro
