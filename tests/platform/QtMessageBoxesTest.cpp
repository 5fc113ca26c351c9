#include "platform/qt/QtMessageBoxes.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>

namespace calvoro {

class QtMessageBoxesTest : public QObject {
    Q_OBJECT

private:
    bool sawBox_ = false;

    /// Does something with the next box once it is open. The box is closed in any case: a test that failed
    /// must not wait for ever.
    void WhenOpen(const std::function<void(QMessageBox&)>& act) {
        sawBox_ = false;
        QTimer::singleShot(0, this, [this, act] {
            const QPointer<QMessageBox> box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr) return;
            sawBox_ = true;
            act(*box);
            if (box != nullptr && box->isVisible()) box->done(QMessageBox::NoButton);
        });
    }

private Q_SLOTS:
    void ShowsPlainTextWithIconAndOk_data() {
        QTest::addColumn<int>("icon");
        QTest::addColumn<int>("shown");
        const auto row = [](const char* name, MessageIcon icon, QMessageBox::Icon shown) {
            QTest::newRow(name) << static_cast<int>(icon) << static_cast<int>(shown);
        };
        row("none", MessageIcon::NoIcon, QMessageBox::NoIcon);
        row("exclamation", MessageIcon::Exclamation, QMessageBox::Warning);
        row("critical", MessageIcon::Critical, QMessageBox::Critical);
    }

    void ShowsPlainTextWithIconAndOk() {
        QFETCH(const int, icon);
        QFETCH(const int, shown);
        WhenOpen([shown](QMessageBox& box) {
            QCOMPARE(box.text(), QStringLiteral("<b>1</b> & \u00E4\nsecond line"));
            QCOMPARE(box.textFormat(), Qt::PlainText);
            QCOMPARE(box.windowTitle(), QStringLiteral("Title"));
            QCOMPARE(static_cast<int>(box.icon()), shown);
            QCOMPARE(box.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
            QVERIFY(box.isModal());
            QTest::keyClick(&box, Qt::Key_Return);
            QVERIFY(!box.isVisible());
        });
        QtMessageBoxes().Show("<b>1</b> & \u00E4\r\nsecond line", "Title", static_cast<MessageIcon>(icon));
        QVERIFY(sawBox_);
    }

    void ShowsAnEmptyTitle() {
        WhenOpen([](QMessageBox& box) { QCOMPARE(box.windowTitle(), QString()); });
        QtMessageBoxes().Show("text", "", MessageIcon::Critical);
        QVERIFY(sawBox_);
    }

    void BelongsToTheWindowInUse() {
        QWidget window;
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        WhenOpen([&window](QMessageBox& box) { QCOMPARE(box.parentWidget(), &window); });
        QtMessageBoxes().Show("text", "title", MessageIcon::NoIcon);
        QVERIFY(sawBox_);
    }

    void AsksWithNoAsDefault() {
        WhenOpen([](QMessageBox& box) {
            QCOMPARE(box.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Yes | QMessageBox::No));
            QCOMPARE(box.icon(), QMessageBox::NoIcon);
            QCOMPARE(box.textFormat(), Qt::PlainText);
            QCOMPARE(box.text(), QStringLiteral("one\ntwo"));
            QCOMPARE(box.windowTitle(), QStringLiteral("Reset"));
            QTest::keyClick(&box, Qt::Key_Return);
        });
        QVERIFY(!QtMessageBoxes().AskYesNo("one\ntwo", "Reset"));
        QVERIFY(sawBox_);
    }

    void AnswersYesOnlyWhenYesIsPressed_data() {
        QTest::addColumn<int>("how");
        QTest::addColumn<bool>("answer");
        QTest::newRow("yes") << 0 << true;
        QTest::newRow("no") << 1 << false;
        QTest::newRow("Esc") << 2 << false;
        QTest::newRow("closed from its frame") << 3 << false;
        QTest::newRow("program ends") << 4 << false;
    }

    void AnswersYesOnlyWhenYesIsPressed() {
        QFETCH(const int, how);
        QFETCH(const bool, answer);
        WhenOpen([how](QMessageBox& box) {
            switch (how) {
                case 0: return QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
                case 1: return QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
                case 2: return QTest::keyClick(&box, Qt::Key_Escape);
                case 3: box.close(); return;
                default: QCoreApplication::exit(0);
            }
        });
        QCOMPARE(QtMessageBoxes().AskYesNo("question", "title"), answer);
        QVERIFY(sawBox_);
    }
};

}  // namespace calvoro

QTEST_MAIN(calvoro::QtMessageBoxesTest)
#include "QtMessageBoxesTest.moc"
