#include "windows/list/GivenList.h"

#include <QUrl>
#include <algorithm>

namespace calvoro {

std::optional<GivenList> GivenListOf(const QMimeData* data) {
    if (data == nullptr) return {};
    const QList<QUrl> addresses = data->urls();
    const auto file = std::find_if(addresses.begin(), addresses.end(),
                                   [](const QUrl& address) { return address.isLocalFile(); });
    if (file != addresses.end()) return GivenList{QString(), file->toLocalFile()};
    const QString text = data->text();
    if (text.isEmpty()) return {};
    return GivenList{text, QString()};
}

bool HasSeveralLines(const QString& text) {
    return text.trimmed().contains(QLatin1Char('\n'));
}

}  // namespace calvoro
