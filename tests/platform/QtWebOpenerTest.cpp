#include "platform/qt/QtWebOpener.h"

#include <QDesktopServices>
#include <QList>
#include <QTest>
#include <QUrl>

namespace calvoro {

/// Takes the place of the desktop's own opener.
class Browser : public QObject {
    Q_OBJECT

public:
    QList<QUrl> opened;

public Q_SLOTS:
    void Open(const QUrl& url) { opened.append(url); }
};

class QtWebOpenerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void HandsTheAddressToTheDesktop() {
        Browser browser;
        QDesktopServices::setUrlHandler(QStringLiteral("https"), &browser, "Open");
        const int result = QtWebOpener().Open("https://vantorel.example/a%20b/\u00E4?q=1#f", "0", "0", 1);
        QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
        QVERIFY(result > 32);
        QCOMPARE(browser.opened.size(), 1);
        QCOMPARE(browser.opened.front().toEncoded(),
                 QByteArrayLiteral("https://vantorel.example/a%20b/%C3%A4?q=1#f"));
    }

    void ReportsThatNothingOpensIt_data() {
        QTest::addColumn<QString>("address");
        // The desktop under which this test runs opens nothing by itself.
        QTest::newRow("no browser") << QStringLiteral("https://vantorel.example/");
        QTest::newRow("no address") << QString();
        QTest::newRow("not an address") << QStringLiteral("https://[");
    }

    void ReportsThatNothingOpensIt() {
        QFETCH(const QString, address);
        QCOMPARE(QtWebOpener().Open(address.toStdString(), "0", "0", 1), 31);
    }
};

}  // namespace calvoro

QTEST_MAIN(calvoro::QtWebOpenerTest)
#include "QtWebOpenerTest.moc"
