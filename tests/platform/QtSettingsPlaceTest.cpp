#include "platform/qt/QtSettingsPlace.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <pwd.h>
#include <unistd.h>

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

    void IsInTheHomeOfTheUserDatabaseWhereTheEnvironmentNamesNone_data() {
        QTest::addColumn<QByteArray>("home");
        QTest::newRow("not set") << QByteArray();
        QTest::newRow("empty") << QByteArray("");
        QTest::newRow("not absolute") << QByteArray("home");
    }

    void IsInTheHomeOfTheUserDatabaseWhereTheEnvironmentNamesNone() {
        QFETCH(const QByteArray, home);
        const passwd* const account = ::getpwuid(::geteuid());
        QVERIFY(account != nullptr);
        const QString wanted = QFile::decodeName(account->pw_dir) + QStringLiteral("/.config");
        if (!QFileInfo(wanted).isDir()) QSKIP("the folder would be made in the tester's own home");
        if (home.isNull()) {
            qunsetenv("HOME");
        } else {
            qputenv("HOME", home);
        }
        QCOMPARE(QString::fromStdString(QtSettingsPlace().BaseFolder()), wanted);
        QVERIFY(!QFileInfo::exists(QStringLiteral("home")));
    }

    void IsForTheUserAloneWhenItIsMade() {
        const QString wanted = Path(QStringLiteral("private/configuration"));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(wanted));
        QVERIFY(!QtSettingsPlace().BaseFolder().empty());
        const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                          QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
        QVERIFY(!(QFile::permissions(wanted) & others));
        QVERIFY(!(QFile::permissions(Path(QStringLiteral("private"))) & others));
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
