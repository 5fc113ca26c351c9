#pragma once

// That a screen reader hears once in which group an option stands.

#include <QAccessible>
#include <QTest>
#include <QWidget>

namespace calvoro {

/// Checks that an option has its group around it, once, and not as its label besides.
inline void CheckGroupIsToldOnce(QWidget& option, const QString& group) {
    QAccessibleInterface& control = *QAccessible::queryAccessibleInterface(&option);
    QVERIFY(control.relations(QAccessible::Label).isEmpty());
    QCOMPARE(control.parent()->role(), QAccessible::Grouping);
    QCOMPARE(control.parent()->text(QAccessible::Name), group);
    QStringList groups;
    for (QAccessibleInterface* around = control.parent(); around != nullptr; around = around->parent()) {
        if (around->role() == QAccessible::Grouping) groups.push_back(around->text(QAccessible::Name));
    }
    QCOMPARE(groups, QStringList{group});
}

}  // namespace calvoro
