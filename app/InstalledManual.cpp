#include "app/InstalledManual.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace calvoro {

std::string InstalledManual(const QString& programFolder, const QString& configured,
                            const QString& language) {
    for (const QString& folder : {QStringLiteral("manual"), configured}) {
        if (folder.isEmpty()) continue;
        const QString file = QStringLiteral("%1/%2/index.html").arg(folder, language);
        const QString page = QDir::cleanPath(QDir(programFolder).filePath(file));
        if (QFileInfo(page).isFile()) return QUrl::fromLocalFile(page).toEncoded().toStdString();
    }
    return {};
}

}  // namespace calvoro
