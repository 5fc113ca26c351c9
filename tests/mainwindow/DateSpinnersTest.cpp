// The arrows beside the date boxes, and Up and Down inside them.

#include <QToolButton>

#include "mainwindow/SpinArrows.h"
#include "tests/mainwindow/MainWindowFixture.h"

using namespace calvoro;

class DateSpinnersTest : public QObject {
    Q_OBJECT

private:
    static void PressArrow(MainWindowFixture& main, int index, bool up) {
        auto& arrows = main.Get<SpinArrows>(u"VScroll%1"_s.arg(index));
        QTest::mouseClick(arrows.findChild<QToolButton*>(up ? u"up"_s : u"down"_s), Qt::LeftButton);
    }

private Q_SLOTS:
    void AnArrowStepsTheDateByOneDay_data() {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("calendar");
        QTest::addColumn<QString>("next");
        QTest::addColumn<QString>("previous");
        const std::array<std::array<const char*, 2>, 7> kNeighbours = {{{"2024-03-16", "2024-03-14"},
                                                                        {"2024-03-03", "2024-03-01"},
                                                                        {"2024-W11-6", "2024-W11-4"},
                                                                        {"2,460,386", "2,460,384"},
                                                                        {"2024-076", "2024-074"},
                                                                        {"2024-03-20", "2024-03-18"},
                                                                        {"2024-12-6", "2024-12-4"}}};
        for (const int index : {0, 1}) {
            for (int i = 0; i < 7; ++i) {
                const auto& row = kNeighbours.at(static_cast<std::size_t>(i));
                QTest::addRow("%s in box %d", Offered(i).tag, index) << index << i << row[0] << row[1];
            }
        }
    }
    void AnArrowStepsTheDateByOneDay() {
        QFETCH(int, index);
        QFETCH(int, calendar);
        QFETCH(QString, next);
        QFETCH(QString, previous);
        const QString box = index == 0 ? u"txbFirstDate"_s : u"txbSecondDate"_s;
        const QString today = QLatin1String(Offered(calendar).today);
        MainWindowFixture main;
        main.Start();
        main.Click(index == 0 ? FirstOption(Offered(calendar)) : SecondOption(Offered(calendar)));
        main.Fill(u"other"_s, u"10"_s, u"other"_s);
        main.Get<QLineEdit>(box).setText(today);

        PressArrow(main, index, true);
        QCOMPARE(main.Text(box), next);
        QCOMPARE(main.Focused(), box);
        QCOMPARE(main.Selected(box), next);
        QCOMPARE(main.Text(index == 0 ? u"txbSecondDate"_s : u"txbFirstDate"_s), u"other"_s);

        PressArrow(main, index, false);
        PressArrow(main, index, false);
        QCOMPARE(main.Text(box), previous);

        main.Focus(box);
        main.Press(Qt::Key_Up);
        QCOMPARE(main.Text(box), today);
        main.Press(Qt::Key_Down);
        QCOMPARE(main.Text(box), previous);
        QVERIFY(main.Shown().empty());
    }

    void SpinningDeliberatelyEmptiesTheDifference() {
        MainWindowFixture main;
        main.Start();
        for (const QString& date : {u"2024-03-15"_s, u"not a date"_s}) {
            main.Fill(date, u"10"_s, QString());
            PressArrow(main, 0, true);
            QCOMPARE(main.Text(u"txbDateDiff"_s), QString());
        }
    }

    void StepsAreCalendarDaysUnderEveryOption() {
        MainWindowFixture main;
        main.Start();
        main.Click(u"chkIncludeWeekends"_s);
        main.Click(u"optMonths"_s);
        main.Fill(u"2024-03-15"_s, QString(), QString());
        PressArrow(main, 0, true);
        QCOMPARE(main.Text(u"txbFirstDate"_s), u"2024-03-16"_s);
    }

    void ASpinOnAnEmptyBoxOnlyMovesTheFocus_data() {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("focus");
        QTest::newRow("first") << 0 << "txbFirstDate";
        QTest::newRow("second") << 1 << "txbFirstDate";
    }
    void ASpinOnAnEmptyBoxOnlyMovesTheFocus() {
        QFETCH(int, index);
        QFETCH(QString, focus);
        MainWindowFixture main;
        main.Start();
        main.Fill(QString(), u"10"_s, QString());
        PressArrow(main, index, true);
        QCOMPARE(main.Boxes(), QStringList({"", "10", ""}));
        QCOMPARE(main.Focused(), focus);
        QVERIFY(main.Shown().empty());
    }

    void ADateThatCannotBeSteppedStaysAndIsTold_data() {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("tag");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("up");
        QTest::addColumn<QString>("message");
        const QString first = u"First date is not valid in specified calendar using specified date format."_s;
        const QString second =
            u"Second date is not valid in specified calendar using specified date format."_s;
        const QString result = u"Result is out of range."_s;
        QTest::newRow("first not valid") << 0 << "CE"
                                         << "2023-02-29" << true << first;
        QTest::newRow("second not valid") << 1 << "CE"
                                          << "2023-02-29" << true << second;
        QTest::newRow("first blank") << 0 << "CE"
                                     << " " << true << first;
        QTest::newRow("first ISO") << 0 << "ISO"
                                   << "2024" << true
                                   << "First date is not valid in the ISO 8601 Week Calendar.";
        QTest::newRow("second ISO") << 1 << "ISO"
                                    << "2024" << false
                                    << "Second date is not valid in the ISO 8601 Week Calendar.";
        QTest::newRow("first out of range") << 0 << "JDN"
                                            << "2100000001" << true << "First date is out of range.";
        QTest::newRow("second out of range")
            << 1 << "CE" << QString(100, u'9') + "-01-01" << true << "Second date is out of range.";
        QTest::newRow("beyond the last day") << 0 << "JDN"
                                             << "2100000000" << true << result;
        QTest::newRow("before the first day") << 1 << "JDN"
                                              << "-2100000000" << false << result;
        QTest::newRow("beyond the last ordinal date") << 0 << "ORD"
                                                      << "9999-365" << true << result;
        QTest::newRow("before the first ordinal date") << 0 << "ORD"
                                                       << "0001-001" << false << result;
    }
    void ADateThatCannotBeSteppedStaysAndIsTold() {
        QFETCH(int, index);
        QFETCH(QString, tag);
        QFETCH(QString, text);
        QFETCH(bool, up);
        QFETCH(QString, message);
        const QString box = index == 0 ? u"txbFirstDate"_s : u"txbSecondDate"_s;
        MainWindowFixture main;
        main.Start();
        main.Click((index == 0 ? u"optFirstDateIs"_s : u"optSecondDateIs"_s) + tag);
        main.Get<QLineEdit>(box).setText(text);
        main.Get<QLineEdit>(u"txbDateDiff"_s).setText(u"10"_s);
        PressArrow(main, index, up);
        QCOMPARE(main.Text(box), text);
        QCOMPARE(main.Shown().size(), 1U);
        const ShownMessage expected{message.toStdString(), "Error!", MessageIcon::NoIcon};
        QCOMPARE(main.Shown().front(), expected);
        QCOMPARE(main.Text(u"txbDateDiff"_s), QString());
        QCOMPARE(main.Focused(), box);
        QCOMPARE(main.Selected(box), text);
    }

    void AHeldArrowRepeats() {
        MainWindowFixture main;
        main.Start();
        main.Fill(u"2024-01-01"_s, QString(), QString());
        auto* up = main.Get<SpinArrows>(u"VScroll0"_s).findChild<QToolButton*>(u"up"_s);
        QTest::mousePress(up, Qt::LeftButton);
        QTRY_VERIFY(main.Text(u"txbFirstDate"_s) >= u"2024-01-04"_s);
        QTest::mouseRelease(up, Qt::LeftButton);
    }

    void AHeldArrowBringsItsMessageOnce() {
        MainWindowFixture main;
        main.Start();
        main.Fill(u"2023-02-29"_s, QString(), QString());
        auto* up = main.Get<SpinArrows>(u"VScroll0"_s).findChild<QToolButton*>(u"up"_s);
        // While the message is up the arrow is still held, long enough to repeat.
        main.fake.boxes.whileOpen = [] { QTest::qWait(1000); };
        QTest::mousePress(up, Qt::LeftButton);
        QTRY_COMPARE(main.Shown().size(), 1U);
        QTest::qWait(500);
        QTest::mouseRelease(up, Qt::LeftButton);
        QCOMPARE(main.Shown().size(), 1U);
    }

    void TheWheelTurnsTheArrows() {
        MainWindowFixture main;
        main.Start();
        main.Fill(u"2024-03-15"_s, QString(), QString());
        auto& arrows = main.Get<SpinArrows>(u"VScroll0"_s);
        for (const int turn : {120, 120, -120}) {
            QWheelEvent event({5, 5}, arrows.mapToGlobal(QPointF(5, 5)), {}, {0, turn}, Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&arrows, &event);
        }
        QCOMPARE(main.Text(u"txbFirstDate"_s), u"2024-03-16"_s);
    }
};

QTEST_MAIN(DateSpinnersTest)
#include "DateSpinnersTest.moc"
