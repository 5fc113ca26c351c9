#include "windows/WindowActivation.h"

#include <QComboBox>
#include <QDialog>
#include <QGuiApplication>
#include <QTest>
#include <QTimer>
#include <QWindow>

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

    // A window manager may hand the focus on without a moment in which no window of the program has it.
    void DoesNotComeWhenFocusReturnsAtOnceFromAPassingWindow_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("modal");
        QTest::newRow("message box") << static_cast<int>(Qt::Dialog) << true;
        QTest::newRow("list") << static_cast<int>(Qt::Popup) << false;
        QTest::newRow("tool tip") << static_cast<int>(Qt::ToolTip) << false;
    }

    void DoesNotComeWhenFocusReturnsAtOnceFromAPassingWindow() {
        QFETCH(const int, type);
        QFETCH(const bool, modal);
        TwoWindows two;
        two.ShowWindow();
        QWindow passing;
        passing.setFlags(static_cast<Qt::WindowType>(type));
        passing.setModality(modal ? Qt::ApplicationModal : Qt::NonModal);
        Q_EMIT qGuiApp->focusWindowChanged(&passing);
        Q_EMIT qGuiApp->focusWindowChanged(two.window.windowHandle());
        QCOMPARE(two.activations, 1);

        QWindow lasting;
        Q_EMIT qGuiApp->focusWindowChanged(&lasting);
        Q_EMIT qGuiApp->focusWindowChanged(two.window.windowHandle());
        QCOMPARE(two.activations, 2);
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
