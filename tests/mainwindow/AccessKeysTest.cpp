// The keys that captions name: each control its own, and the natural ones first.

#include <QCheckBox>

#include "tests/mainwindow/MainWindowFixture.h"

using namespace calvoro;

class AccessKeysTest : public QObject {
    Q_OBJECT

private:
    // The letter after the mark, in lower case; empty when there is none.
    static QString KeyOf(const QString& caption) {
        const qsizetype mark = caption.indexOf(u'&');
        return mark < 0 ? QString() : caption.mid(mark + 1, 1).toLower();
    }

private Q_SLOTS:
    void NoTwoControlsShareAKey_data() {
        QTest::addColumn<QString>("language");
        QTest::newRow("English") << "optLanguageIsEnglish";
        QTest::newRow("German") << "optLanguageIsGerman";
    }
    void NoTwoControlsShareAKey() {
        QFETCH(QString, language);
        MainWindowFixture main;
        main.Start();
        main.Click(language);
        QMap<QString, QString> owners;
        QStringList without;
        int controls = 0;
        for (const QWidget* control : main.window->findChildren<QWidget*>()) {
            const auto* label = qobject_cast<const QLabel*>(control);
            const bool hasKey = qobject_cast<const QPushButton*>(control) != nullptr ||
                                qobject_cast<const QCheckBox*>(control) != nullptr ||
                                (label != nullptr && label->buddy() != nullptr);
            if (!hasKey) continue;
            ++controls;
            const QString key = KeyOf(control->property("text").toString());
            if (key.isEmpty()) {
                without.push_back(control->objectName());
                continue;
            }
            QVERIFY2(!owners.contains(key),
                     qPrintable(control->objectName() + u" and "_s + owners.value(key) + u" share "_s + key));
            owners.insert(key, control->objectName());
        }
        QCOMPARE(controls, 24);
        // The letters of "Clear" are not enough for four buttons.
        for (const QString& name : without) QVERIFY2(name.startsWith(u"cmdClear"_s), qPrintable(name));
        QVERIFY2(without.size() <= 3, qPrintable(without.join(u' ')));
    }

    void TheEverydayControlsHaveTheirNaturalKeys_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("english");
        QTest::addColumn<QString>("german");
        const auto row = [](const char* name, const char* english, const char* german) {
            QTest::newRow(name) << name << english << german;
        };
        row("cmdCompute", "c", "b");
        row("cmdHelp", "h", "h");
        row("cmdQuit", "q", "n");
        row("cmdDisplayMonth", "m", "m");
        row("cmdReset", "r", "r");
        row("lblFirstDate", "f", "e");
        row("lblDateDifference", "d", "d");
        row("lblSecondDate", "s", "z");
    }
    void TheEverydayControlsHaveTheirNaturalKeys() {
        QFETCH(QString, name);
        QFETCH(QString, english);
        QFETCH(QString, german);
        MainWindowFixture main;
        main.Start();
        const auto key = [&] { return KeyOf(main.Get<QWidget>(name).property("text").toString()); };
        QCOMPARE(key(), english);
        main.Click(u"optLanguageIsGerman"_s);
        QCOMPARE(key(), german);
    }

    void TheKeysWork() {
        MainWindowFixture main;
        main.Start();
        const auto pressKeyOf = [&main](const QString& name) {
            const QString key = KeyOf(main.Get<QWidget>(name).property("text").toString());
            QTest::keyClick(main.window.get(), key.at(0).toLatin1(), Qt::AltModifier);
        };
        // A key presses its button for a moment, so that it is seen to be pressed.
        pressKeyOf(u"cmdToday1"_s);
        QTRY_COMPARE(main.Boxes(), QStringList({"", "", "2026-11-20"}));
        pressKeyOf(u"lblDateDifference"_s);
        QTRY_COMPARE(main.Focused(), u"txbDateDiff"_s);
        pressKeyOf(u"cmdMoveSecondDateToFirst"_s);
        QTRY_COMPARE(main.Boxes(), QStringList({"2026-11-20", "", ""}));
        pressKeyOf(u"chkVerbose"_s);
        QTRY_VERIFY(!main.Button(u"chkVerbose"_s).isChecked());
        pressKeyOf(u"cmdCompute"_s);
        QTRY_VERIFY(main.Output().startsWith(u"2026-11-20 CE"_s));
    }
};

QTEST_MAIN(AccessKeysTest)
#include "AccessKeysTest.moc"
