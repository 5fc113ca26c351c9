#include "platform/qt/QtSettingsPlace.h"

#include <QStandardPaths>
#include <QString>

#include "platform/PrivateFolder.h"

namespace calvoro {

std::string QtSettingsPlace::BaseFolder() {
    const std::string folder =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation).toStdString();
    return !folder.empty() && MakePrivateFolders(folder) ? folder : std::string();
}

}  // namespace calvoro
