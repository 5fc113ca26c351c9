#include "platform/qt/QtClipboard.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QTest>

namespace calvoro {

class QtClipboardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void HoldsPlainTextWithThePlatformsLineBreaks() {
        QtClipboard().SetText("one\r\ntwo \u00E4\nthree\r\n");
#ifdef Q_OS_WIN
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("one\r\ntwo \u00E4\r\nthree\r\n"));
#else
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("one\ntwo \u00E4\nthree\n"));
#endif
        QVERIFY(QApplication::clipboard()->mimeData()->hasText());
        QVERIFY(!QApplication::clipboard()->mimeData()->hasHtml());
    }

    void TakesMarkupAsItStands() {
        QtClipboard().SetText("<b>1</b>");
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("<b>1</b>"));
    }

    void IsEmptyAfterClear() {
        QtClipboard clipboard;
        clipboard.SetText("text");
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("text"));
        clipboard.Clear();
        QCOMPARE(QApplication::clipboard()->text(), QString());
    }
};

}  // namespace calvoro

QTEST_MAIN(calvoro::QtClipboardTest)
#include "QtClipboardTest.moc"
