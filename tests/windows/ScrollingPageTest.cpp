// What has the focus stays in sight on a page that does not fit its window, and a page that is scrolled
// elsewhere stays there.

#include "windows/ScrollingPage.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QtTest>

using namespace calvoro;

namespace {

// Words above, a button in the middle, words below: three times what the window has room for.
struct LowWindow {
    LowWindow() {
        window.layout()->setSizeConstraint(QLayout::SetNoConstraint);
        auto* rows = new QVBoxLayout(&page.Page());
        for (QWidget* part :
             {static_cast<QWidget*>(&above), static_cast<QWidget*>(&button), static_cast<QWidget*>(&below)}) {
            rows->addWidget(part);
        }
        above.setText(Lines(20));
        below.setText(Lines(20));
        window.resize(300, 200);
        window.show();
        window.activateWindow();
    }

    static QString Lines(int count) { return QStringLiteral("words\n").repeated(count); }

    bool ButtonIsInSight() const { return button.visibleRegion().boundingRect() == button.rect(); }

    QWidget window;
    ScrollingPage page{window};
    QLabel above;
    QPushButton button;
    QLabel below;
};

}  // namespace

class ScrollingPageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void WhatGetsTheFocusIsShown() {
        LowWindow low;
        QVERIFY(QTest::qWaitForWindowActive(&low.window));
        low.page.verticalScrollBar()->setValue(0);
        QVERIFY(!low.ButtonIsInSight());
        low.button.clearFocus();
        low.button.setFocus();
        QVERIFY(low.ButtonIsInSight());
    }

    void WhatGetsTheFocusByAClickElsewhereIsShown() {
        LowWindow low;
        QVERIFY(QTest::qWaitForWindowActive(&low.window));
        low.below.setFocusPolicy(Qt::ClickFocus);
        low.below.setFocusProxy(&low.button);
        low.button.clearFocus();
        low.button.setAttribute(Qt::WA_UnderMouse);  // as when it was scrolled away under a mouse at rest
        QScrollBar& bar = *low.page.verticalScrollBar();
        bar.setValue(bar.maximum());
        QVERIFY(!low.ButtonIsInSight());
        const QPoint place = low.below.mapTo(&low.window, low.below.visibleRegion().boundingRect().center());
        QTest::mouseClick(low.window.windowHandle(), Qt::LeftButton, {}, place);
        QVERIFY(low.button.hasFocus());
        QVERIFY(low.ButtonIsInSight());
    }

    void WhatHasTheFocusIsFollowedWhenOtherWordsMoveIt() {
        LowWindow low;
        QVERIFY(QTest::qWaitForWindowActive(&low.window));
        low.button.setFocus();
        low.page.ensureWidgetVisible(&low.button);
        QVERIFY(low.ButtonIsInSight());
        for (const int lines : {40, 2, 60}) {
            low.above.setText(LowWindow::Lines(lines));
            QTRY_VERIFY(low.page.Page().height() >= low.page.Page().sizeHint().height());
            QTRY_VERIFY(low.ButtonIsInSight());
        }
    }

    void WhatWasScrolledOutOfSightIsNotBroughtBack() {
        LowWindow low;
        QVERIFY(QTest::qWaitForWindowActive(&low.window));
        low.button.setFocus();
        QScrollBar& bar = *low.page.verticalScrollBar();
        bar.setValue(bar.maximum());
        QVERIFY(!low.ButtonIsInSight());
        low.below.setText(LowWindow::Lines(60));
        QTRY_VERIFY(low.page.Page().height() >= low.page.Page().sizeHint().height());
        QVERIFY(!low.ButtonIsInSight());
    }
};

QTEST_MAIN(ScrollingPageTest)
#include "ScrollingPageTest.moc"
