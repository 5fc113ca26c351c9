#include "platform/qt/QtClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QString>

namespace calvoro {

void QtClipboard::Clear() {
    QGuiApplication::clipboard()->clear();
}

void QtClipboard::SetText(std::string_view text) {
    QString shown = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
#ifndef Q_OS_WIN
    shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
#endif
    QGuiApplication::clipboard()->setText(shown);
}

}  // namespace calvoro
