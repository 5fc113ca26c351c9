#include "windows/WindowActivation.h"

#include <QComboBox>
#include <QDialog>
#include <QGuiApplication>
#include <QTest>
#include <QTimer>

namespace calvoro {
namespace {

void Activate(QWidget& window) {
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

// A window under watch, and another one of the program.
struct TwoWindows {
    QWidget other;
    QWidget window;
    int activations = 0;

    TwoWindows() {
        new WindowActivation(window, [this] { ++activations; });
        other.show();
        Activate(other);
    }

    void ShowWindow() {
        window.show();
        Activate(window);
    }
};

}  // namespace

class WindowActivationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ComesOnceWhenTheWindowIsShown() {
        TwoWindows two;
        QCOMPARE(two.activations, 0);
        two.window.show();
        QCOMPARE(two.activations, 1);
        Activate(two.window);
        QCOMPARE(two.activations, 1);
    }

    void ComesAgainWhenTheWindowIsHiddenAndShown() {
        TwoWindows two;
        two.ShowWindow();
        two.window.hide();
        two.ShowWindow();
        QCOMPARE(two.activations, 2);
    }

    void ComesWithTheFocusFromAnotherWindowOfTheProgram() {
        TwoWindows two;
        two.ShowWindow();
        Activate(two.other);
        QCOMPARE(two.activations, 1);
        Activate(two.window);
        QCOMPARE(two.activations, 2);
        Activate(two.window);
        QCOMPARE(two.activations, 2);
    }

    void DoesNotComeWhenTheProgramIsReturnedTo() {
        TwoWindows two;
        two.ShowWindow();
        // The user worked in the other window, then in another program, and comes back to this window.
        Activate(two.other);
        Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
        Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
        Activate(two.window);
        QCOMPARE(two.activations, 1);
        // From then on it is as before.
        Activate(two.other);
        Activate(two.window);
        QCOMPARE(two.activations, 2);
    }

    void DoesNotComeWhenAMessageBoxOfItsOwnCloses() {
        TwoWindows two;
        two.ShowWindow();
        QDialog box(&two.window);
        QTimer::singleShot(0, &box, [&box] {
            Activate(box);
            box.reject();
        });
        box.exec();
        Activate(two.window);
        QCOMPARE(two.activations, 1);
    }

    void DoesNotComeWhenAListOfItsOwnCloses() {
        TwoWindows two;
        QComboBox list(&two.window);
        list.addItems({QStringLiteral("one"), QStringLiteral("two")});
        two.ShowWindow();
        list.showPopup();
        QTest::qWait(10);
        list.hidePopup();
        Activate(two.window);
        QCOMPARE(two.activations, 1);
    }

    void ComesAfterAMessageBoxOfTheOtherWindow() {
        TwoWindows two;
        two.ShowWindow();
        Activate(two.other);
        QDialog box(&two.other);
        QTimer::singleShot(0, &box, &QDialog::reject);
        box.exec();
        Activate(two.window);
        QCOMPARE(two.activations, 2);
    }
};

}  // namespace calvoro

QTEST_MAIN(calvoro::WindowActivationTest)
#include "WindowActivationTest.moc"
