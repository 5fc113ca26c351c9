// The Compute click on the real window: which task the boxes ask for, what is rewritten, told and
// announced, and where the focus goes.

#include <QAccessible>

#include "tests/mainwindow/MainWindowFixture.h"

using namespace calvoro;

class MainComputeWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AWholeWalkByKeyboard() {
        MainWindowFixture main;
        main.Start();
        main.Type(u"2021-03-04"_s);
        main.Press(Qt::Key_Tab);
        QCOMPARE(main.Focused(), u"txbDateDiff"_s);
        main.Type(u"10"_s);
        for (int tabs = 0; tabs < 40 && main.Focused() != u"optSecondDateIsCE"_s; ++tabs)
            main.Press(Qt::Key_Tab);
        main.Press(Qt::Key_Down);
        QVERIFY(main.Button(u"optSecondDateIsJC"_s).isChecked());
        main.Press(Qt::Key_Return);
        QCOMPARE(main.Output(),
                 u"2021-03-04 CE plus 10 days = 2021-03-01 JC, Sunday, excluding 1st date\n"_s);
        QCOMPARE(main.Focused(), u"cmdCompute"_s);
    }

    void TheSameWalkByMouse() {
        MainWindowFixture main;
        main.Start();
        main.Type(u"2021-03-04"_s);
        main.Press(Qt::Key_Tab);
        main.Type(u"10"_s);
        main.Click(u"optSecondDateIsJC"_s);
        QCOMPARE(main.Focused(), u"cmdCompute"_s);
        main.Press(Qt::Key_Return);
        QCOMPARE(main.Output(),
                 u"2021-03-04 CE plus 10 days = 2021-03-01 JC, Sunday, excluding 1st date\n"_s);
    }

    void TheBoxesChooseTheTask_data() {
        QTest::addColumn<QStringList>("clicks");
        QTest::addColumn<QStringList>("boxes");
        QTest::addColumn<QString>("output");
        QTest::addColumn<QStringList>("boxesAfter");
        QTest::addColumn<QString>("focus");
        const QStringList terse = {"chkVerbose"};
        QTest::newRow("none: today") << terse << QStringList{"", "", ""} << "2026-11-20 CE = 2026-11-20 CE\n"
                                     << QStringList{"2026-11-20", "", ""} << "txbDateDiff";
        QTest::newRow("difference alone")
            << terse << QStringList{"", "10", ""} << "" << QStringList{"", "10", ""} << "txbFirstDate";
        QTest::newRow("first date alone")
            << QStringList{"chkVerbose", "optSecondDateIsISO"} << QStringList{" 2024-3-15 ", "", ""}
            << "2024-03-15 CE = 2024-W11-5 ISO\n"
            << QStringList{"2024-03-15", "", ""} << "txbDateDiff";
        QTest::newRow("second date alone")
            << QStringList{"chkVerbose", "optFirstDateIsJDN"} << QStringList{"", "", "2024-03-15"}
            << "2024-03-15 CE = 2,460,385 JDN\n"
            << QStringList{"", "", "2024-03-15"} << "txbFirstDate";
        QTest::newRow("two dates") << terse << QStringList{"2024-03-15", "", "2024-03-25"}
                                   << "2024-03-15 CE to 2024-03-25 CE = 10 days\n"
                                   << QStringList{"2024-03-15", "", "2024-03-25"} << "cmdCompute";
        QTest::newRow("plus") << terse << QStringList{"2024-03-15", "1234", ""}
                              << "2024-03-15 CE plus 1,234 days = 2027-08-01 CE\n"
                              << QStringList{"2024-03-15", "1,234", ""} << "cmdCompute";
        QTest::newRow("minus") << terse << QStringList{"", "10", "2024-03-25"}
                               << "2024-03-25 CE minus 10 days = 2024-03-15 CE\n"
                               << QStringList{"", "10", "2024-03-25"} << "cmdCompute";
        QTest::newRow("months") << QStringList{"chkVerbose", "optMonths"}
                                << QStringList{"2024-01-31", "1", ""}
                                << "2024-01-31 CE plus 1 month = 2024-02-29 CE\n"
                                << QStringList{"2024-01-31", "1", ""} << "cmdCompute";
        QTest::newRow("months chosen, one date")
            << QStringList{"chkVerbose", "optMonths", "optSecondDateIsJC"}
            << QStringList{"2024-03-15", "", ""} << "2024-03-15 CE = 2024-03-02 JC\n"
            << QStringList{"2024-03-15", "", ""} << "txbDateDiff";
        QTest::newRow("blanks are nothing")
            << terse << QStringList{"  ", "10", "  "} << "" << QStringList{"", "10", ""} << "txbFirstDate";
        QTest::newRow("weekdays with the first date")
            << QStringList{"chkVerbose", "chkIncludeFirstDate", "chkIncludeWeekends"}
            << QStringList{"2024-03-15", "2", ""} << "2024-03-15 CE plus 2 days = 2024-03-18 CE\n"
            << QStringList{"2024-03-15", "2", ""} << "cmdCompute";
    }
    void TheBoxesChooseTheTask() {
        QFETCH(QStringList, clicks);
        QFETCH(QStringList, boxes);
        QFETCH(QString, output);
        QFETCH(QStringList, boxesAfter);
        QFETCH(QString, focus);
        MainWindowFixture main;
        main.Start();
        for (const QString& name : clicks) main.Click(name);
        main.Fill(boxes[0], boxes[1], boxes[2]);
        main.Click(u"cmdCompute"_s);
        QCOMPARE(main.Output(), output);
        QCOMPARE(main.Boxes(), boxesAfter);
        QCOMPARE(main.Focused(), focus);
        QVERIFY(main.Shown().empty());
    }

    void ARefusedInputIsTold_data() {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QStringList>("boxes");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("title");
        const QString english = u"optLanguageIsEnglish"_s;
        const QString german = u"optLanguageIsGerman"_s;
        QTest::newRow("first") << english << QStringList{"2023-02-29", "", ""}
                               << "First date is not valid in specified calendar using specified date format."
                               << "Error!";
        QTest::newRow("both: the second")
            << english << QStringList{"x", "", "y"}
            << "Second date is not valid in specified calendar using specified date format."
            << "Error!";
        QTest::newRow("difference") << english << QStringList{"2024-03-15", "x", ""}
                                    << "Date difference is not valid."
                                    << "Error!";
        QTest::newRow("difference in German") << german << QStringList{"2024-03-15", "9999999999", ""}
                                              << "Datumsdifferenz ist ausserhalb des erlaubten Bereichs."
                                              << "Fehler!";
        QTest::newRow("result") << english << QStringList{"2024-03-15", "2099999999", ""}
                                << "Result is out of range."
                                << "Error!";
        QTest::newRow("endless date")
            << english << QStringList{QString(100000, u'9'), "", ""}
            << "First date is not valid in specified calendar using specified date format."
            << "Error!";
    }
    void ARefusedInputIsTold() {
        QFETCH(QString, language);
        QFETCH(QStringList, boxes);
        QFETCH(QString, message);
        QFETCH(QString, title);
        MainWindowFixture main;
        main.Start();
        main.Click(language);
        main.Fill(boxes[0], boxes[1], boxes[2]);
        main.Click(u"cmdCompute"_s);
        QCOMPARE(main.Shown().size(), 1U);
        const ShownMessage expected{message.toStdString(), title.toStdString(), MessageIcon::NoIcon};
        QCOMPARE(main.Shown().front(), expected);
    }

    void MonthsBetweenTwoDatesSwitchToDays() {
        MainWindowFixture main;
        main.Start();
        main.Click(u"optMonths"_s);
        main.Fill(u"2024-03-15"_s, QString(), u"2024-04-15"_s);
        main.Click(u"cmdCompute"_s);
        QCOMPARE(main.Shown().size(), 1U);
        QCOMPARE(main.Shown().front().prompt,
                 std::string("The number of months between two dates is not available.\r\n"
                             "The difference is now counted in days: please click again."));
        QCOMPARE(main.Shown().front().title, std::string("Compute"));
        QVERIFY(main.Button(u"optDays"_s).isChecked());
        QVERIFY(main.Button(u"chkIncludeWeekends"_s).isEnabled());
        QCOMPARE(main.Output(), QString());
        // Days are chosen now, so that a click on them does nothing and one on months acts again.
        main.Click(u"optMonths"_s);
        QVERIFY(!main.Button(u"chkIncludeWeekends"_s).isEnabled());
    }

    void TheEchoIsADeliberatelyBareOrdinalDate() {
        MainWindowFixture main;
        main.Start();
        main.Click(u"chkVerbose"_s);
        main.Click(u"optFirstDateIsORD"_s);
        main.Fill(u"2024-075"_s, QString(), QString());
        main.Click(u"cmdCompute"_s);
        QCOMPARE(main.Output(), u"2024-075 = 2024-03-15 CE\n"_s);
    }

    void AResultIsWhatAScreenReaderIsNotifiedOfAndARefusalIsNot() {
        MainWindowFixture main;
        main.Start();
        const QAccessibleInterface& notification =
            *QAccessible::queryAccessibleInterface(&main.Get<QWidget>(u"announcer"_s));
        QCOMPARE(notification.role(), QAccessible::Notification);
        const auto announced = [&notification] { return notification.text(QAccessible::Name); };

        main.Click(u"chkVerbose"_s);
        main.Fill(u"2024-03-15"_s, u"10"_s, QString());
        main.Click(u"cmdCompute"_s);
        const QString result = u"2024-03-15 CE plus 10 days = 2024-03-25 CE"_s;
        QCOMPARE(announced(), result);

        main.Fill(u"x"_s, QString(), QString());
        main.Click(u"cmdCompute"_s);
        main.Fill(QString(), u"10"_s, QString());
        main.Click(u"cmdCompute"_s);
        QCOMPARE(announced(), result);

        // A failed computation has written a line break, which is no part of the next announcement.
        main.Fill(u"2024-03-15"_s, u"2099999999"_s, QString());
        main.Click(u"cmdCompute"_s);
        main.Fill(u"2024-03-15"_s, u"1"_s, QString());
        main.Click(u"cmdCompute"_s);
        QCOMPARE(announced(), u"2024-03-15 CE plus 1 day = 2024-03-16 CE"_s);
    }
};

QTEST_MAIN(MainComputeWindowTest)
#include "MainComputeWindowTest.moc"
