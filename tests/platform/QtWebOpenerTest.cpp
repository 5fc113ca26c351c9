#include "platform/qt/QtWebOpener.h"

#include <QDesktopServices>
#include <QElapsedTimer>
#include <QFile>
#include <QList>
#include <QTemporaryDir>
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

private:
    QTemporaryDir folder_;
    QByteArray path_;
    QList<int> failures_;

    int Open(const QByteArray& address) {
        return QtWebOpener().Open(address.toStdString(), "0", "0", 1,
                                  [this](int code) { failures_.append(code); });
    }

    // What stands first in the path of commands.
    void MakeOpener(const QByteArray& commands) {
        QFile opener(folder_.filePath(QStringLiteral("xdg-open")));
        QVERIFY(opener.open(QIODevice::WriteOnly));
        opener.write("#!/bin/sh\n" + commands + "\n");
        opener.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    QByteArray Content(const char* name) const {
        QFile file(folder_.filePath(QLatin1String(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private Q_SLOTS:
    void initTestCase() {
        path_ = qgetenv("PATH");
        QVERIFY(folder_.isValid());
    }
    void init() {
        failures_.clear();
        QFile::remove(folder_.filePath(QStringLiteral("xdg-open")));
        QFile::remove(folder_.filePath(QStringLiteral("opened")));
        qputenv("PATH", QFile::encodeName(folder_.path()));
    }
    void cleanup() { qputenv("PATH", path_); }

    void HandsTheAddressToTheDesktop() {
        Browser browser;
        QDesktopServices::setUrlHandler(QStringLiteral("https"), &browser, "Open");
        const int result = Open("https://vantorel.example/a%20b/\u00E4?q=1#f");
        QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
        QVERIFY(result > 32);
        QCOMPARE(browser.opened.size(), 1);
        QCOMPARE(browser.opened.front().toEncoded(),
                 QByteArrayLiteral("https://vantorel.example/a%20b/%C3%A4?q=1#f"));
    }

    void HandsTheAddressToTheOpener() {
        MakeOpener("echo \"$@\" >" + QFile::encodeName(folder_.filePath(QStringLiteral("opened"))));
        QVERIFY(Open("https://vantorel.example/a%20b/\u00E4?q=1#f") > 32);
        QTRY_COMPARE(Content("opened"), QByteArrayLiteral("https://vantorel.example/a%20b/%C3%A4?q=1#f\n"));
        QTest::qWait(50);
        QVERIFY(failures_.isEmpty());
    }

    void ReportsThatNothingOpensIt_data() {
        QTest::addColumn<QByteArray>("address");
        // The desktop under which this test runs opens nothing by itself.
        QTest::newRow("no browser") << QByteArray("https://vantorel.example/");
        QTest::newRow("no address") << QByteArray();
        QTest::newRow("not an address") << QByteArray("https://[");
        QTest::newRow("no scheme") << QByteArray("vantorel.example");
    }

    void ReportsThatNothingOpensIt() {
        QFETCH(const QByteArray, address);
        QCOMPARE(Open(address), 31);
        QVERIFY(failures_.isEmpty());
    }

    void ReportsLaterThatTheOpenerFailed_data() {
        QTest::addColumn<QByteArray>("commands");
        QTest::newRow("finds no browser") << QByteArray("exit 3");
        QTest::newRow("browser failed") << QByteArray("exit 4");
        QTest::newRow("killed") << QByteArray("kill -9 $$");
    }

    void ReportsLaterThatTheOpenerFailed() {
        QFETCH(const QByteArray, commands);
        MakeOpener(commands);
        QVERIFY(Open("https://vantorel.example/") > 32);
        QVERIFY2(failures_.isEmpty(), "it is not waited for");
        QTRY_COMPARE(failures_, QList<int>{31});
    }

    void ReportsLaterThatTheOpenerCannotRun() {
        QFile opener(folder_.filePath(QStringLiteral("xdg-open")));
        QVERIFY(opener.open(QIODevice::WriteOnly));
        opener.write("#!/nowhere/at/all\n");
        opener.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        opener.close();
        QVERIFY(Open("https://vantorel.example/") > 32);
        QTRY_COMPARE(failures_, QList<int>{31});
    }

    void DoesNotWaitForTheOpener() {
        MakeOpener("exec /bin/sleep 1");
        QElapsedTimer elapsed;
        elapsed.start();
        QVERIFY(Open("https://vantorel.example/") > 32);
        QVERIFY(elapsed.elapsed() < 900);
        QTest::qWait(1500);  // to its end, which is a good one
        QVERIFY(failures_.isEmpty());
    }
};

}  // namespace calvoro

QTEST_MAIN(calvoro::QtWebOpenerTest)
#include "QtWebOpenerTest.moc"
