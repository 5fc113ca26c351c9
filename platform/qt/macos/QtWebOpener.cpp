#include "platform/qt/QtWebOpener.h"

#include <QDesktopServices>
#include <QString>
#include <QUrl>

namespace calvoro {

int QtWebOpener::Open(std::string_view address, std::string_view /*parameters*/,
                      std::string_view /*directory*/, int /*windowState*/,
                      std::function<void(int)> /*failedLater*/) {
    constexpr int kOpened = 33;
    constexpr int kNothingOpensIt = 31;
    const QUrl url(QString::fromUtf8(address.data(), static_cast<qsizetype>(address.size())));
    if (!url.isValid() || url.scheme().isEmpty()) return kNothingOpensIt;
    return QDesktopServices::openUrl(url) ? kOpened : kNothingOpensIt;
}

}  // namespace calvoro
