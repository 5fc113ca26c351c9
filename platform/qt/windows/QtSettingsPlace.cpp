#include "platform/qt/QtSettingsPlace.h"

#include "platform/PrivateFolder.h"
#include "platform/windows/Shell.h"

namespace calvoro {

std::string QtSettingsPlace::BaseFolder() {
    const std::string folder = SettingsBase();
    return !folder.empty() && MakePrivateFolders(folder) ? folder : std::string();
}

}  // namespace calvoro
