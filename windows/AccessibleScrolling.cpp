#include "windows/AccessibleScrolling.h"

#include <QAccessibleWidget>
#include <QScrollBar>

namespace calvoro {
namespace {

constexpr char kSafeProperty[] = "calvoroAccessibleScrolling";

/// Has the role and the children that the toolkit's has: what is scrolled, and the scroll bars that are
/// shown.
class AccessibleScrolling : public QAccessibleWidget {
public:
    explicit AccessibleScrolling(QScrollArea* area) : QAccessibleWidget(area, QAccessible::Client) {}

    int childCount() const override { return static_cast<int>(Children().size()); }

    QAccessibleInterface* child(int index) const override {
        QWidget* const found = Children().value(index);
        return found == nullptr ? nullptr : QAccessible::queryAccessibleInterface(found);
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        QObject* const wanted = child == nullptr ? nullptr : child->object();
        return static_cast<int>(Children().indexOf(qobject_cast<QWidget*>(wanted)));
    }

    QAccessibleInterface* childAt(int x, int y) const override {
        for (QWidget* part : Children()) {
            if (part->rect().contains(part->mapFromGlobal(QPoint(x, y)))) {
                return QAccessible::queryAccessibleInterface(part);
            }
        }
        return nullptr;
    }

private:
    QList<QWidget*> Children() const {
        // While it is destroyed it is asked for once more, when its own part has gone.
        const auto* area = qobject_cast<QScrollArea*>(object());
        if (area == nullptr) return {};
        QList<QWidget*> children{area->viewport()};
        for (const QScrollBar* bar : {area->horizontalScrollBar(), area->verticalScrollBar()}) {
            if (bar->isVisible()) children.append(bar->parentWidget());
        }
        return children;
    }
};

QAccessibleInterface* MakeAccessible(const QString& /*className*/, QObject* object) {
    auto* area = qobject_cast<QScrollArea*>(object);
    return area != nullptr && area->property(kSafeProperty).toBool() ? new AccessibleScrolling(area)
                                                                     : nullptr;
}

}  // namespace

void MakeAccessibleSafely(QScrollArea& area) {
    QAccessible::installFactory(MakeAccessible);  // the same factory is installed once only
    area.setProperty(kSafeProperty, true);
}

}  // namespace calvoro
