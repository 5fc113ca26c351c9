#include "platform/qt/QtWebOpener.h"

#include <unistd.h>

#include <QDeadlineTimer>
#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QString>
#include <QUrl>
#include <chrono>
#include <utility>

namespace calvoro {

namespace {

constexpr int kOpened = 33;
constexpr int kNothingOpensIt = 31;

/// Starts the opener of free desktops, which tells only by its exit code whether it found a browser.
void StartOpener(const QString& opener, const QUrl& url, std::function<void(int)> failedLater) {
    using namespace std::chrono_literals;
    // Without an owner: at the program's end it must not be destroyed, which would kill the browser.
    auto* const process = new QProcess;
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    process->setChildProcessModifier([] { ::setsid(); });  // it outlives the terminal too

    const QDeadlineTimer starting(30s);
    const auto tell = [process, starting, failedLater = std::move(failedLater)](bool failed) {
        process->deleteLater();
        if (failed && !starting.hasExpired()) failedLater(kNothingOpensIt);
    };
    QObject::connect(process, &QProcess::errorOccurred, process, [tell](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) tell(true);
    });
    QObject::connect(process, &QProcess::finished, process, [tell](int code, QProcess::ExitStatus status) {
        tell(code != 0 || status != QProcess::NormalExit);
    });
    process->start(opener, {QString::fromLatin1(url.toEncoded())});
}

QString Opener() {
    return QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
}

}  // namespace

int QtWebOpener::Open(std::string_view address, std::string_view /*parameters*/,
                      std::string_view /*directory*/, int /*windowState*/,
                      std::function<void(int)> failedLater) {
    const QUrl url(QString::fromUtf8(address.data(), static_cast<qsizetype>(address.size())));
    if (!url.isValid() || url.scheme().isEmpty()) return kNothingOpensIt;
    if (const QString opener = Opener(); !opener.isEmpty()) {
        StartOpener(opener, url, std::move(failedLater));
        return kOpened;
    }
    return QDesktopServices::openUrl(url) ? kOpened : kNothingOpensIt;
}

}  // namespace calvoro
