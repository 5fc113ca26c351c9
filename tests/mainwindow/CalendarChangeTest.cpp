// Clicks on the calendar options: the text in the box goes over into the other calendar in place.

#include "tests/mainwindow/MainWindowFixture.h"

using namespace calvoro;

class CalendarChangeTest : public QObject {
    Q_OBJECT

private:
    struct Side {
        const char* box;
        QString (*option)(const OfferedCalendar&);
        const char* message;
    };
    static constexpr Side kFirst = {"txbFirstDate", FirstOption,
                                    "The first date is not valid in its calendar."};
    static constexpr Side kSecond = {"txbSecondDate", SecondOption,
                                     "The second date is not valid in its calendar."};

    static const Side& SideOf(bool first) { return first ? kFirst : kSecond; }
    static QString BoxOf(bool first) { return QLatin1String(SideOf(first).box); }

    static void BothSides() {
        QTest::addColumn<bool>("first");
        QTest::newRow("first date") << true;
        QTest::newRow("second date") << false;
    }

private Q_SLOTS:
    void ConvertsBetweenEveryPairOfCalendars_data() {
        QTest::addColumn<bool>("first");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        for (const bool first : {true, false}) {
            for (int from = 0; from < 7; ++from) {
                for (int to = 0; to < 7; ++to) {
                    if (from == to) continue;
                    QTest::addRow("%s %s to %s", first ? "first" : "second", Offered(from).tag,
                                  Offered(to).tag)
                        << first << from << to;
                }
            }
        }
    }
    void ConvertsBetweenEveryPairOfCalendars() {
        QFETCH(bool, first);
        QFETCH(int, from);
        QFETCH(int, to);
        const OfferedCalendar& source = Offered(from);
        const OfferedCalendar& target = Offered(to);
        MainWindowFixture main;
        main.Start();
        main.Click(SideOf(first).option(source));
        main.Get<QLineEdit>(BoxOf(first)).setText(QLatin1String(source.today));
        main.Get<QLineEdit>(u"txbDateDiff"_s).setText(u"77"_s);

        main.Click(SideOf(first).option(target));

        QCOMPARE(main.Text(BoxOf(first)), QLatin1String(target.today));
        QCOMPARE(main.window->GetCal(first ? 1 : 2), target.number);
        QCOMPARE(main.window->GetCal(first ? 2 : 1), CalendarNumber::CE);
        QCOMPARE(main.Focused(), u"txbDateDiff"_s);
        QCOMPARE(main.Selected(u"txbDateDiff"_s), u"77"_s);
        QVERIFY(main.Shown().empty());

        // The new calendar is remembered: the way back starts from it.
        main.Click(SideOf(first).option(source));
        QCOMPARE(main.Text(BoxOf(first)), QLatin1String(source.today));
    }

    void UsesTheFormsThatTheOptionsAskFor() {
        MainWindowFixture main;
        main.Start();
        main.Click(u"optThousSepIsDot"_s);
        main.Click(u"optDateFormatIsDMY"_s);
        main.Click(u"optSeparatorIsSlash"_s);
        main.Click(u"chkHyphen"_s);
        main.Fill(u"15/03/2024"_s, QString(), QString());
        main.Click(u"optFirstDateIsISO"_s);
        QCOMPARE(main.Text(u"txbFirstDate"_s), u"2024W115"_s);
        main.Click(u"optFirstDateIsORD"_s);
        QCOMPARE(main.Text(u"txbFirstDate"_s), u"2024075"_s);
        main.Click(u"optFirstDateIsJDN"_s);
        QCOMPARE(main.Text(u"txbFirstDate"_s), u"2.460.385"_s);
        main.Click(u"optFirstDateIsJC"_s);
        QCOMPARE(main.Text(u"txbFirstDate"_s), u"02/03/2024"_s);
    }

    void GroupsLongYearsOfConvertedDates() {
        MainWindowFixture main;
        main.Start();
        main.Click(u"optFirstDateIsJDN"_s);
        main.Fill(u"6000000"_s, QString(), QString());
        main.Click(u"optFirstDateIsCE"_s);
        QCOMPARE(main.Text(u"txbFirstDate"_s), u"11,715-05-05"_s);
    }

    void TrimsTheTextFirst_data() { BothSides(); }
    void TrimsTheTextFirst() {
        QFETCH(bool, first);
        MainWindowFixture main;
        main.Start();
        main.Get<QLineEdit>(BoxOf(first)).setText(u"  2024-03-15 "_s);
        main.Click(SideOf(first).option(kOffered[1]));
        QCOMPARE(main.Text(BoxOf(first)), u"2024-03-02"_s);
    }

    void AnEmptyBoxOnlyRemembersTheCalendar_data() { BothSides(); }
    void AnEmptyBoxOnlyRemembersTheCalendar() {
        QFETCH(bool, first);
        MainWindowFixture main;
        main.Start();
        main.Get<QLineEdit>(BoxOf(first)).setText(u"   "_s);
        main.Click(SideOf(first).option(kOffered[1]));
        QCOMPARE(main.Text(BoxOf(first)), QString());
        QCOMPARE(main.window->GetCal(first ? 1 : 2), CalendarNumber::JC);
        QCOMPARE(main.Focused(), u"txbFirstDate"_s);
        QVERIFY(main.Shown().empty());

        // The next date typed is read in that calendar.
        main.Get<QLineEdit>(BoxOf(first)).setText(u"2024-03-02"_s);
        main.Click(SideOf(first).option(kOffered[0]));
        QCOMPARE(main.Text(BoxOf(first)), u"2024-03-15"_s);
    }

    void ATextThatDoesNotReadGoesBackToItsCalendarWithAMessage_data() {
        QTest::addColumn<bool>("first");
        QTest::addColumn<int>("from");
        QTest::addColumn<QString>("text");
        for (const bool first : {true, false}) {
            const char* box = first ? "first" : "second";
            QTest::addRow("%s CE not a date", box) << first << 0 << u"2023-02-29"_s;
            QTest::addRow("%s CE out of range", box) << first << 0 << u"9000000-01-01"_s;
            QTest::addRow("%s ISO week 53", box) << first << 2 << u"2023-W53-1"_s;
            QTest::addRow("%s JDN word", box) << first << 3 << u"abc"_s;
            QTest::addRow("%s ORD other form", box) << first << 4 << u"2024075"_s;
            QTest::addRow("%s LPW weekday 8", box) << first << 6 << u"2024-11-8"_s;
        }
    }
    void ATextThatDoesNotReadGoesBackToItsCalendarWithAMessage() {
        QFETCH(bool, first);
        QFETCH(int, from);
        QFETCH(QString, text);
        const OfferedCalendar& source = Offered(from);
        MainWindowFixture main;
        main.Start();
        main.Click(SideOf(first).option(source));
        main.Get<QLineEdit>(BoxOf(first)).setText(text);

        main.Click(SideOf(first).option(kOffered[1]));

        QCOMPARE(main.Text(BoxOf(first)), text);
        QCOMPARE(main.window->GetCal(first ? 1 : 2), source.number);
        QVERIFY(main.Button(SideOf(first).option(source)).isChecked());
        QCOMPARE(main.Shown().size(), 1U);
        const ShownMessage expected{SideOf(first).message, "Cannot convert date", MessageIcon::NoIcon};
        QCOMPARE(main.Shown().front(), expected);
        QCOMPARE(main.Focused(), BoxOf(first));
        QCOMPARE(main.Selected(BoxOf(first)), text);

        // A click on the same option again is a new try.
        main.Click(SideOf(first).option(kOffered[1]));
        QCOMPARE(main.Shown().size(), 2U);
    }

    void ADeliberatelySilentReturnFromOrdinalDatesOutOfTheirYears_data() {
        QTest::addColumn<bool>("first");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("converts");
        for (const bool first : {true, false}) {
            const char* box = first ? "first" : "second";
            QTest::addRow("%s day before year 1", box) << first << u"0-12-31"_s << false;
            QTest::addRow("%s first day", box) << first << u"1-01-01"_s << true;
            QTest::addRow("%s last day", box) << first << u"9999-12-31"_s << true;
            QTest::addRow("%s day after year 9999", box) << first << u"10000-01-01"_s << false;
        }
    }
    void ADeliberatelySilentReturnFromOrdinalDatesOutOfTheirYears() {
        QFETCH(bool, first);
        QFETCH(QString, text);
        QFETCH(bool, converts);
        MainWindowFixture main;
        main.Start();
        main.Get<QLineEdit>(BoxOf(first)).setText(text);
        main.Click(SideOf(first).option(kOffered[4]));
        QCOMPARE(main.window->GetCal(first ? 1 : 2), converts ? CalendarNumber::ORD : CalendarNumber::CE);
        QCOMPARE(main.Text(BoxOf(first)) == text, !converts);
        QVERIFY(main.Shown().empty());
    }

    void RefreshesTheTodayLine() {
        MainWindowFixture main;
        main.Start();
        main.fake.clock.today = kOfferedDay;
        main.Fill(u"2024-03-15"_s, QString(), QString());
        main.Click(u"optFirstDateIsJC"_s);
        QCOMPARE(main.Get<QLabel>(u"lblTodaysDate"_s).text(), u"Today is Friday, 2024-03-15 CE"_s);
    }

    void AClickOnTheChosenCalendarDoesNothing() {
        MainWindowFixture main;
        main.Start();
        main.Fill(u" not a date"_s, u"5"_s, QString());
        main.Click(u"optFirstDateIsCE"_s);
        QCOMPARE(main.Text(u"txbFirstDate"_s), u" not a date"_s);
        QVERIFY(main.Shown().empty());
    }

    void ArrowKeysWalkThroughTheCalendarsAndConvert() {
        MainWindowFixture main;
        main.Start();
        main.Fill(u"2024-03-15"_s, QString(), QString());
        main.Focus(u"optFirstDateIsCE"_s);
        main.Press(Qt::Key_Down);
        QCOMPARE(main.Text(u"txbFirstDate"_s), u"2024-03-02"_s);
        QCOMPARE(main.Focused(), u"optFirstDateIsJC"_s);
        main.Press(Qt::Key_Down);
        QCOMPARE(main.Text(u"txbFirstDate"_s), u"2024-W11-5"_s);
        main.Press(Qt::Key_Up);
        QCOMPARE(main.Text(u"txbFirstDate"_s), u"2024-03-02"_s);
    }

    void AConversionByArrowKeyThatIsSentBackLeavesTheFocusOnTheChosenOption_data() {
        QTest::addColumn<bool>("first");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("option");  // that the key leaves
        QTest::addColumn<int>("messages");
        for (const bool first : {true, false}) {
            const char* box = first ? "first" : "second";
            QTest::addRow("%s abandoned", box) << first << u"2,100,000,000"_s << 3 << 0;
            QTest::addRow("%s not read", box) << first << u"abc"_s << 3 << 1;
        }
    }
    void AConversionByArrowKeyThatIsSentBackLeavesTheFocusOnTheChosenOption() {
        QFETCH(bool, first);
        QFETCH(QString, text);
        QFETCH(int, option);
        QFETCH(int, messages);
        const QString chosen = SideOf(first).option(Offered(option));
        MainWindowFixture main;
        main.Start();
        main.Click(chosen);
        main.Get<QLineEdit>(BoxOf(first)).setText(text);
        main.Focus(chosen);
        main.Press(Qt::Key_Down);  // to ordinal dates
        QVERIFY(main.Button(chosen).isChecked());
        QCOMPARE(main.Focused(), chosen);
        QCOMPARE(main.Text(BoxOf(first)), text);
        QCOMPARE(static_cast<int>(main.Shown().size()), messages);
    }

    void MessagesStayEnglishUntilTheMonthWindowIsOpened() {
        MainWindowFixture main;
        main.Start();
        main.Click(u"optLanguageIsGerman"_s);
        main.Fill(u"abc"_s, QString(), QString());
        main.Click(u"optFirstDateIsJC"_s);
        QCOMPARE(main.Shown().back().title, std::string("Cannot convert date"));
        main.Click(u"cmdDisplayMonth"_s);
        main.Click(u"optFirstDateIsJC"_s);
        QCOMPARE(main.Shown().back().title, std::string("Datum nicht konvertierbar"));
        QCOMPARE(main.Shown().back().prompt,
                 std::string("Das erste Datum ist in seinem Kalender nicht zulaessig."));
    }
};

QTEST_MAIN(CalendarChangeTest)
#include "CalendarChangeTest.moc"
