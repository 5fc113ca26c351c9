#include "platform/qt/QtSettingsPlace.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

namespace calvoro {

class QtSettingsPlaceTest : public QObject {
    Q_OBJECT

private:
    QTemporaryDir folder_;
    QString Path(const QString& name) const { return folder_.filePath(name); }

private Q_SLOTS:
    void init() {
        QVERIFY(folder_.isValid());
        qunsetenv("XDG_CONFIG_HOME");
        qputenv("HOME", QFile::encodeName(Path(QStringLiteral("home"))));
    }

    void IsTheConfigurationFolder() {
        const QString wanted = Path(QStringLiteral("deep/configuration"));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(wanted));
        QVERIFY(!QFileInfo::exists(wanted));
        QCOMPARE(QString::fromStdString(QtSettingsPlace().BaseFolder()), wanted);
        QVERIFY2(QFileInfo(wanted).isDir(), "it is created when it is missing");
        QCOMPARE(QString::fromStdString(QtSettingsPlace().BaseFolder()), wanted);
    }

    void HasNoClosingSeparator() {
        const QString wanted = Path(QStringLiteral("closed"));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(wanted) + "//");
        QCOMPARE(QString::fromStdString(QtSettingsPlace().BaseFolder()), wanted);
    }

    void IsInTheHomeFolderOtherwise_data() {
        QTest::addColumn<QByteArray>("configured");
        QTest::newRow("not set") << QByteArray();
        QTest::newRow("empty") << QByteArray("");
        QTest::newRow("not absolute") << QByteArray("configuration");
    }

    void IsInTheHomeFolderOtherwise() {
        QFETCH(const QByteArray, configured);
        if (!configured.isNull()) qputenv("XDG_CONFIG_HOME", configured);
        const QString wanted = Path(QStringLiteral("home/.config"));
        QCOMPARE(QString::fromStdString(QtSettingsPlace().BaseFolder()), wanted);
        QVERIFY(QFileInfo(wanted).isDir());
    }

    void KeepsBytesThatAreNoText() {
        const QByteArray wanted = QFile::encodeName(folder_.path()) + "/\xFF\xFE";
        qputenv("XDG_CONFIG_HOME", wanted);
        QCOMPARE(QByteArray::fromStdString(QtSettingsPlace().BaseFolder()), wanted);
    }

    void IsNowhereWhenItCannotBeMade() {
        QFile file(Path(QStringLiteral("file")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(Path(QStringLiteral("file/below"))));
        QCOMPARE(QString::fromStdString(QtSettingsPlace().BaseFolder()), QString());
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(Path(QStringLiteral("file"))));
        QCOMPARE(QString::fromStdString(QtSettingsPlace().BaseFolder()), QString());
    }
};

}  // namespace calvoro

QTEST_MAIN(calvoro::QtSettingsPlaceTest)
#include "QtSettingsPlaceTest.moc"
