#include "windows/AccessibleRole.h"

#include <QAccessibleWidget>
#include <QVariant>

namespace calvoro {
namespace {

constexpr char kRoleProperty[] = "calvoroAccessibleRole";

QAccessibleInterface* MakeAccessible(const QString& /*className*/, QObject* object) {
    const QVariant role = object->property(kRoleProperty);
    if (!role.isValid() || !object->isWidgetType()) return nullptr;
    return new QAccessibleWidget(static_cast<QWidget*>(object), static_cast<QAccessible::Role>(role.toInt()));
}

}  // namespace

void SetAccessibleRole(QWidget& widget, QAccessible::Role role) {
    QAccessible::installFactory(MakeAccessible);  // the same factory is installed once only
    widget.setProperty(kRoleProperty, static_cast<int>(role));
}

}  // namespace calvoro
