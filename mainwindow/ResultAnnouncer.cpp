#include "mainwindow/ResultAnnouncer.h"

#include <QAccessibleWidget>

#include "mainwindow/QtText.h"

namespace calvoro {
namespace {

QAccessibleInterface* MakeAccessible(const QString& className, QObject* object) {
    if (className != QLatin1String(ResultAnnouncer::staticMetaObject.className())) return nullptr;
    return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Notification);
}

}  // namespace

ResultAnnouncer::ResultAnnouncer(QWidget* window) : QWidget(window) {
    QAccessible::installFactory(MakeAccessible);
    setObjectName(QStringLiteral("resultAnnouncer"));
    setFocusPolicy(Qt::NoFocus);
    setFixedSize(0, 0);
}

void ResultAnnouncer::Announce(std::string_view result) {
    const QString line = ToQt(result).trimmed();
    if (line.isEmpty()) return;
    setAccessibleName(line);
    // Some readers speak a notification that appears, others an alert.
    for (const QAccessible::Event kind : {QAccessible::ObjectShow, QAccessible::Alert}) {
        QAccessibleEvent event(this, kind);
        QAccessible::updateAccessibility(&event);
    }
}

}  // namespace calvoro
