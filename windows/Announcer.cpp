#include "windows/Announcer.h"

#include <QAccessible>

#include "windows/AccessibleRole.h"
#include "windows/QtText.h"

namespace calvoro {

Announcer::Announcer(QWidget* window) : QWidget(window) {
    SetAccessibleRole(*this, QAccessible::Notification);
    setObjectName(QStringLiteral("announcer"));
    setFocusPolicy(Qt::NoFocus);
    setFixedSize(0, 0);
}

void Announcer::Announce(std::string_view text) {
    const QString line = ToQt(text).trimmed();
    if (line.isEmpty()) return;
    setAccessibleName(line);
    // Some readers speak a notification that appears, others an alert.
    for (const QAccessible::Event kind : {QAccessible::ObjectShow, QAccessible::Alert}) {
        QAccessibleEvent event(this, kind);
        QAccessible::updateAccessibility(&event);
    }
}

}  // namespace calvoro
