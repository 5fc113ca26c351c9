// What assistive tools meet of a page that is scrolled.

#include "windows/AccessibleScrolling.h"

#include <QAccessible>
#include <QScrollBar>
#include <QtTest>

using namespace calvoro;

class AccessibleScrollingTest : public QObject {
    Q_OBJECT

private:
    // A scroll area with a page of this size in a window of 200 by 200.
    struct Area {
        explicit Area(int width, int height, bool safe = true) {
            if (safe) MakeAccessibleSafely(area);
            auto* page = new QWidget;
            page->setFixedSize(width, height);
            area.setWidget(page);
            area.resize(200, 200);
            area.show();
            (void)QTest::qWaitForWindowExposed(&area);
        }

        QAccessibleInterface& Accessible() { return *QAccessible::queryAccessibleInterface(&area); }

        QList<QObject*> Children() {
            QList<QObject*> children;
            for (int index = 0; index < Accessible().childCount(); ++index) {
                children.append(Accessible().child(index)->object());
            }
            return children;
        }

        QScrollArea area;
    };

private Q_SLOTS:
    void ItIsWhatTheToolkitsOwnIs_data() {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::addColumn<int>("children");
        QTest::newRow("fits") << 100 << 100 << 1;
        QTest::newRow("too wide") << 500 << 100 << 2;
        QTest::newRow("too high") << 100 << 500 << 2;
        QTest::newRow("too large") << 500 << 500 << 3;
    }
    void ItIsWhatTheToolkitsOwnIs() {
        QFETCH(const int, width);
        QFETCH(const int, height);
        QFETCH(const int, children);
        Area safe(width, height);
        Area toolkits(width, height, false);
        QCOMPARE(safe.Accessible().role(), toolkits.Accessible().role());
        QCOMPARE(safe.Accessible().childCount(), children);
        QCOMPARE(toolkits.Accessible().childCount(), children);
        for (int index = 0; index < children; ++index) {
            QAccessibleInterface* const own = safe.Accessible().child(index);
            QAccessibleInterface* const other = toolkits.Accessible().child(index);
            QCOMPARE(own->object()->objectName(), other->object()->objectName());
            QCOMPARE(own->role(), other->role());
            QCOMPARE(safe.Accessible().indexOfChild(own), index);
            const QPoint middle = own->rect().center();
            QVERIFY(safe.Accessible().childAt(middle.x(), middle.y()) == own);
        }
    }

    void WhatIsNotThereIsNone() {
        Area area(100, 100);
        for (const int index : {-1, 1, 2, 1000, 100'000'000}) {
            QVERIFY(area.Accessible().child(index) == nullptr);
        }
        QCOMPARE(area.Accessible().indexOfChild(nullptr), -1);
        QVERIFY(area.Accessible().childAt(-1000, -1000) == nullptr);
    }

    void AScrollBarThatGoesIsNoLongerTold() {
        Area area(500, 500);
        QCOMPARE(area.Children().size(), 3);
        area.area.resize(600, 600);
        QTRY_COMPARE(area.Children(), QList<QObject*>{area.area.viewport()});
        QVERIFY(area.Accessible().child(1) == nullptr);
    }
};

QTEST_MAIN(AccessibleScrollingTest)
#include "AccessibleScrollingTest.moc"
