// The two labels that tell today and a week from today.

#include "tests/mainwindow/MainWindowFixture.h"

using namespace calvoro;

class TodayLineTest : public QObject {
    Q_OBJECT

private:
    // Next calendar after next, from CE on.
    static QStringList EnglishLabels() {
        return {"Today is Friday, 2024-03-15 CE", "Today is Friday, 2024-W11-5 ISO",
                "Today is Friday, 2024-03-02 JC", "Today is Friday, 2024-075",
                "Today is Friday, 2024-03-19",    "Today is Friday, 2024-12-5",
                "Today is Friday, 2,460,385 JDN"};
    }
    static QString Label(const MainWindowFixture& main, const QString& name = u"lblTodaysDate"_s) {
        return main.Get<QLabel>(name).text();
    }
    static void StartOn2024(MainWindowFixture& main) {
        main.fake.clock.today = kOfferedDay;
        main.Start();
    }

private Q_SLOTS:
    void BothLabelsAreShownAtTheEndOfStartUp() {
        MainWindowFixture main;
        main.Start();
        QCOMPARE(Label(main), u"Today is Friday, 2026-11-20 CE"_s);
        QCOMPARE(Label(main, u"lblWeekFromToday"_s), u"A week from today is Friday, 2026-11-27 CE"_s);
    }

    void PressesCycleThroughTheCalendars_data() {
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::newRow("left") << Qt::LeftButton;
        QTest::newRow("middle") << Qt::MiddleButton;
    }
    void PressesCycleThroughTheCalendars() {
        QFETCH(Qt::MouseButton, button);
        MainWindowFixture main;
        StartOn2024(main);
        const QStringList labels = EnglishLabels();
        for (int press = 0; press < 7; ++press) {
            QCOMPARE(Label(main), labels[press]);
            main.Click(u"lblTodaysDate"_s, button);
        }
        QCOMPARE(Label(main), labels.first());
        QCOMPARE(Label(main, u"lblWeekFromToday"_s), u"A week from today is Friday, 2024-03-22 CE"_s);
    }

    void TheRightButtonGoesBack() {
        MainWindowFixture main;
        StartOn2024(main);
        const QStringList labels = EnglishLabels();
        for (int press = 6; press >= 0; --press) {
            main.Click(u"lblTodaysDate"_s, Qt::RightButton);
            QCOMPARE(Label(main), labels[press]);
        }
        main.Click(u"lblTodaysDate"_s, Qt::LeftButton);
        main.Click(u"lblTodaysDate"_s, Qt::RightButton);
        QCOMPARE(Label(main), labels.first());
    }

    void TheSecondPressOfADoubleClickCounts() {
        MainWindowFixture main;
        StartOn2024(main);
        main.Click(u"lblTodaysDate"_s);
        QTest::mouseDClick(&main.Get<QLabel>(u"lblTodaysDate"_s), Qt::LeftButton);
        QCOMPARE(Label(main), EnglishLabels()[2]);
    }

    void TheKeyboardCyclesToo_data() {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<bool>("shift");
        QTest::addColumn<int>("label");
        QTest::newRow("Space") << Qt::Key_Space << false << 1;
        QTest::newRow("Return") << Qt::Key_Return << false << 1;
        QTest::newRow("Enter") << Qt::Key_Enter << false << 1;
        QTest::newRow("Right") << Qt::Key_Right << false << 1;
        QTest::newRow("Shift+Space") << Qt::Key_Space << true << 6;
        QTest::newRow("Shift+Return") << Qt::Key_Return << true << 6;
        QTest::newRow("Left") << Qt::Key_Left << false << 6;
        QTest::newRow("another") << Qt::Key_A << false << 0;
    }
    void TheKeyboardCyclesToo() {
        QFETCH(Qt::Key, key);
        QFETCH(bool, shift);
        QFETCH(int, label);
        MainWindowFixture main;
        StartOn2024(main);
        main.Focus(u"lblTodaysDate"_s);
        main.Press(key, shift ? Qt::ShiftModifier : Qt::NoModifier);
        QCOMPARE(Label(main), EnglishLabels()[label]);
        QCOMPARE(main.Focused(), u"lblTodaysDate"_s);
    }

    void EachLabelHasACalendarOfItsOwn() {
        MainWindowFixture main;
        StartOn2024(main);
        main.Click(u"lblWeekFromToday"_s);
        QCOMPARE(Label(main), u"Today is Friday, 2024-03-15 CE"_s);
        QCOMPARE(Label(main, u"lblWeekFromToday"_s), u"A week from today is Friday, 2024-W12-5 ISO"_s);
    }

    void TheFirstLabelsCalendarIsSavedAndBothStartFromIt() {
        MainWindowFixture main;
        StartOn2024(main);
        main.Click(u"lblTodaysDate"_s);
        main.Click(u"lblTodaysDate"_s);
        main.Click(u"lblWeekFromToday"_s, Qt::RightButton);
        main.Quit();
        QCOMPARE(main.Saved().todayCalendar, CalendarNumber::JC);
        main.Start();
        QCOMPARE(Label(main), u"Today is Friday, 2024-03-02 JC"_s);
        QCOMPARE(Label(main, u"lblWeekFromToday"_s), u"A week from today is Friday, 2024-03-09 JC"_s);
    }

    void GermanPutsTheArticleBeforeDayMonthYearDatesOnly() {
        MainWindowFixture main;
        StartOn2024(main);
        main.Click(u"optLanguageIsGerman"_s);
        QCOMPARE(Label(main), u"Heute ist Freitag, der 2024-03-15 CE"_s);
        QCOMPARE(Label(main, u"lblWeekFromToday"_s), u"Eine Woche weiter ist Freitag, der 2024-03-22 CE"_s);
        main.Click(u"lblTodaysDate"_s);
        QCOMPARE(Label(main), u"Heute ist Freitag, 2024-W11-5 ISO"_s);
        main.Click(u"lblTodaysDate"_s);
        QCOMPARE(Label(main), u"Heute ist Freitag, der 2024-03-02 JC"_s);
        main.Click(u"lblTodaysDate"_s);
        QCOMPARE(Label(main), u"Heute ist Freitag, 2024-075"_s);
    }

    void ADayNumberFollowsTheThousandsSeparator_data() {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("label");
        QTest::newRow("dot") << "optThousSepIsDot"
                             << "Today is Friday, 2.460.385 JDN";
        QTest::newRow("none") << "optThousSepNone"
                              << "Today is Friday, 2460385 JDN";
    }
    void ADayNumberFollowsTheThousandsSeparator() {
        QFETCH(QString, option);
        QFETCH(QString, label);
        MainWindowFixture main;
        StartOn2024(main);
        main.Click(option);
        main.Click(u"lblTodaysDate"_s, Qt::RightButton);
        QCOMPARE(Label(main), label);
    }

    void ADeliberatelyLazyClockDoesNotRefreshTheLabels() {
        MainWindowFixture main;
        StartOn2024(main);
        main.fake.clock.today = {2024, 3, 16};
        auto& clock = main.Get<QTimer>(u"Clock"_s);
        QSignalSpy ticks(&clock, &QTimer::timeout);
        QVERIFY(ticks.wait(3000));
        QCOMPARE(Label(main), u"Today is Friday, 2024-03-15 CE"_s);
        main.Click(u"lblTodaysDate"_s);
        QCOMPARE(Label(main), u"Today is Saturday, 2024-W11-6 ISO"_s);
    }
};

QTEST_MAIN(TodayLineTest)
#include "TodayLineTest.moc"
