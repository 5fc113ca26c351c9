// Pasting what is selected elsewhere, as the X Window System does it. Run on a display of that system: others
// have no such selection.

#include <QApplication>
#include <QClipboard>
#include <QTest>

#include "mainwindow/InputTextBox.h"

namespace calvoro {

class PrimarySelectionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void LosesLineEndsTabsAndBlanksAtItsEnds_data() {
        QTest::addColumn<QString>("selected");
        QTest::addColumn<QString>("pasted");
        QTest::newRow("as it is") << "2024-03-15"
                                  << "2024-03-15";
        QTest::newRow("LF behind it") << "2024-03-15\n"
                                      << "2024-03-15";
        QTest::newRow("all around it") << "\r\n\t 2024-03-15 \t\r\n"
                                       << "2024-03-15";
        QTest::newRow("blank within") << " 2024-03-15 CE\n"
                                      << "2024-03-15 CE";
        QTest::newRow("nothing else") << " \n"
                                      << "";
    }

    void LosesLineEndsTabsAndBlanksAtItsEnds() {
        QFETCH(const QString, selected);
        QFETCH(const QString, pasted);
        QClipboard& clipboard = *QGuiApplication::clipboard();
        QVERIFY(clipboard.supportsSelection());
        InputTextBox box(nullptr);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        clipboard.setText(selected, QClipboard::Selection);
        QTest::mouseClick(&box, Qt::MiddleButton);
        QCOMPARE(box.text(), pasted);
        box.clear();
        QTest::keyClick(&box, Qt::Key_Insert, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(box.text(), pasted);
    }

    void ReplacesNothing() {
        InputTextBox box(nullptr);
        box.setText(QStringLiteral("03-15"));
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        box.selectAll();
        QGuiApplication::clipboard()->setText(QStringLiteral("2024-\n"), QClipboard::Selection);
        QTest::mouseClick(&box, Qt::MiddleButton, Qt::NoModifier, {2, box.height() / 2});
        QCOMPARE(box.text(), QStringLiteral("2024-03-15"));
    }
};

}  // namespace calvoro

QTEST_MAIN(calvoro::PrimarySelectionTest)
#include "PrimarySelectionTest.moc"
