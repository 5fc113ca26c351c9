// The commands beside the input boxes: Today, Clear, Second -> First and the hyphens.

#include "tests/mainwindow/MainWindowFixture.h"

using namespace calvoro;

class InputBoxesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TodayFillsTheBoxInItsCalendar_data() {
        QTest::addColumn<bool>("first");
        QTest::addColumn<int>("calendar");
        for (const bool first : {true, false}) {
            for (int i = 0; i < 7; ++i) {
                QTest::addRow("%s %s", first ? "first" : "second", Offered(i).tag) << first << i;
            }
        }
    }
    void TodayFillsTheBoxInItsCalendar() {
        QFETCH(bool, first);
        QFETCH(int, calendar);
        MainWindowFixture main;
        main.fake.clock.today = kOfferedDay;
        main.Start();
        main.Fill(QString(), u"10"_s, QString());
        main.Click(first ? FirstOption(Offered(calendar)) : SecondOption(Offered(calendar)));
        main.Click(first ? u"cmdToday0"_s : u"cmdToday1"_s);
        const QString today = QLatin1String(Offered(calendar).today);
        QCOMPARE(main.Boxes(), first ? QStringList({today, "10", ""}) : QStringList({"", "10", today}));
        QCOMPARE(main.Focused(), u"cmdCompute"_s);
    }

    void TodayFollowsFormatSeparatorsAndHyphen_data() {
        QTest::addColumn<QStringList>("clicks");
        QTest::addColumn<QString>("text");
        QTest::newRow("DMY with dots")
            << QStringList{"optDateFormatIsDMY", "optSeparatorIsDot"} << "15.03.2024";
        QTest::newRow("MDY with slashes")
            << QStringList{"optDateFormatIsMDY", "optSeparatorIsSlash"} << "03/15/2024";
        QTest::newRow("Julian DMY") << QStringList{"optDateFormatIsDMY", "optFirstDateIsJC"} << "02-03-2024";
        QTest::newRow("compact week date") << QStringList{"chkHyphen", "optFirstDateIsISO"} << "2024W115";
        QTest::newRow("compact ordinal date") << QStringList{"chkHyphen", "optFirstDateIsORD"} << "2024075";
        QTest::newRow("bare day number") << QStringList{"optThousSepNone", "optFirstDateIsJDN"} << "2460385";
        QTest::newRow("dotted day number")
            << QStringList{"optThousSepIsDot", "optFirstDateIsJDN"} << "2.460.385";
        // Deliberate: the leap-week notations keep their "-" under every separator.
        QTest::newRow("leap week date")
            << QStringList{"optSeparatorIsSlash", "optFirstDateIsLPW"} << "2024-12-5";
    }
    void TodayFollowsFormatSeparatorsAndHyphen() {
        QFETCH(QStringList, clicks);
        QFETCH(QString, text);
        MainWindowFixture main;
        main.fake.clock.today = kOfferedDay;
        main.Start();
        for (const QString& name : clicks) main.Click(name);
        main.Click(u"cmdToday0"_s);
        QCOMPARE(main.Text(u"txbFirstDate"_s), text);
    }

    void AClearButtonEmptiesItsBox_data() {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QStringList>("boxes");
        QTest::addColumn<QString>("focus");
        QTest::newRow("first") << "cmdClearFirstDate" << QStringList{"", "b", "c"} << "cmdCompute";
        QTest::newRow("difference") << "cmdClearDateDiff" << QStringList{"a", "", "c"} << "cmdCompute";
        QTest::newRow("second") << "cmdClearSecondDate" << QStringList{"a", "b", ""} << "cmdCompute";
    }
    void AClearButtonEmptiesItsBox() {
        QFETCH(QString, button);
        QFETCH(QStringList, boxes);
        QFETCH(QString, focus);
        MainWindowFixture main;
        main.Start();
        main.Fill(u"a"_s, u"b"_s, u"c"_s);
        main.Click(button);
        QCOMPARE(main.Boxes(), boxes);
        QCOMPARE(main.Focused(), focus);
        // Clearing an empty box is harmless.
        main.Click(button);
        QCOMPARE(main.Boxes(), boxes);
    }

    void MovingAnEmptySecondDateOnlyMovesTheFocus() {
        MainWindowFixture main;
        main.Start();
        main.Fill(u"2024-03-15"_s, QString(), QString());
        main.Click(u"cmdMoveSecondDateToFirst"_s);
        QCOMPARE(main.Boxes(), QStringList({"2024-03-15", "", ""}));
        QCOMPARE(main.Focused(), u"txbDateDiff"_s);
        QVERIFY(main.Shown().empty());
    }

    void MovesTheSecondDateIntoTheFirstBoxInItsCalendar_data() {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        for (int from = 0; from < 7; ++from) {
            for (int to = 0; to < 7; ++to) {
                QTest::addRow("%s to %s", Offered(from).tag, Offered(to).tag) << from << to;
            }
        }
    }
    void MovesTheSecondDateIntoTheFirstBoxInItsCalendar() {
        QFETCH(int, from);
        QFETCH(int, to);
        MainWindowFixture main;
        main.Start();
        main.Click(FirstOption(Offered(to)));
        main.Click(SecondOption(Offered(from)));
        main.Fill(u"before"_s, u"12"_s, QLatin1String(Offered(from).today));
        main.Click(u"cmdMoveSecondDateToFirst"_s);
        QCOMPARE(main.Boxes(), QStringList({QLatin1String(Offered(to).today), "12", ""}));
        QCOMPARE(main.Focused(), u"txbDateDiff"_s);
        QCOMPARE(main.Selected(u"txbDateDiff"_s), u"12"_s);
        QCOMPARE(main.window->GetCal(2), Offered(from).number);
    }

    void ASecondDateThatDoesNotReadStays_data() {
        QTest::addColumn<QString>("firstOption");
        QTest::addColumn<QString>("secondOption");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("message");
        const QString notValid =
            u"Second date is not valid in specified calendar using specified date format."_s;
        const QString outOfRange = u"Out of Range"_s;
        const QString ce = u"optFirstDateIsCE"_s;
        const QString ce2 = u"optSecondDateIsCE"_s;
        QTest::newRow("not a date") << ce << ce2 << "2023-02-29" << notValid;
        QTest::newRow("week date") << ce << "optSecondDateIsISO"
                                   << "2023-W53-1" << notValid;
        QTest::newRow("leap week date") << ce << "optSecondDateIsLPM"
                                        << "2024-13-1" << notValid;
        QTest::newRow("year out of range") << ce << ce2 << "5800001-01-01" << outOfRange;
        QTest::newRow("day number out of range") << ce << "optSecondDateIsJDN"
                                                 << "2100000001" << outOfRange;
        QTest::newRow("endless year") << ce << ce2 << QString(5000, u'9') + "-01-01" << outOfRange;
        QTest::newRow("ordinal first box") << "optFirstDateIsORD" << ce2 << "10000-01-01" << outOfRange;
    }
    void ASecondDateThatDoesNotReadStays() {
        QFETCH(QString, firstOption);
        QFETCH(QString, secondOption);
        QFETCH(QString, text);
        QFETCH(QString, message);
        MainWindowFixture main;
        main.Start();
        main.Click(firstOption);
        main.Click(secondOption);
        main.Fill(u"before"_s, u"12"_s, text);
        main.Click(u"cmdMoveSecondDateToFirst"_s);
        QCOMPARE(main.Boxes(), QStringList({"before", "12", text}));
        QCOMPARE(main.Shown().size(), 1U);
        const ShownMessage expected{message.toStdString(), "Error!", MessageIcon::NoIcon};
        QCOMPARE(main.Shown().front(), expected);
        QCOMPARE(main.Focused(), u"txbSecondDate"_s);
        QCOMPARE(main.Selected(u"txbSecondDate"_s), text);
    }

    void TheMovesMessagesComeInTheLanguageOfTheInterface() {
        MainWindowFixture main;
        main.Start();
        main.Click(u"optLanguageIsGerman"_s);
        main.Fill(QString(), QString(), u"x"_s);
        main.Click(u"cmdMoveSecondDateToFirst"_s);
        main.Fill(QString(), QString(), u"5800001-01-01"_s);
        main.Click(u"cmdMoveSecondDateToFirst"_s);
        QCOMPARE(
            main.Shown()[0].prompt,
            std::string("Zweites Datum ist in dem angegebenen Kalender (und Datumsformat) nicht zulaessig."));
        QCOMPARE(main.Shown()[0].title, std::string("Fehler!"));
        QCOMPARE(main.Shown()[1].prompt, std::string("Ausserhalb des erlaubten Bereichs"));
    }

    void TheHyphenRewritesADateIntoTheOtherForm_data() {
        QTest::addColumn<int>("calendar");
        QTest::addColumn<QString>("hyphenated");
        QTest::addColumn<QString>("compact");
        QTest::newRow("week date") << 2 << "2024-W11-5"
                                   << "2024W115";
        QTest::newRow("negative year") << 2 << "-0044-W11-5"
                                       << "-0044W115";
        QTest::newRow("ordinal date") << 4 << "2024-075"
                                      << "2024075";
    }
    void TheHyphenRewritesADateIntoTheOtherForm() {
        QFETCH(int, calendar);
        QFETCH(QString, hyphenated);
        QFETCH(QString, compact);
        MainWindowFixture main;
        main.Start();
        main.Click(FirstOption(Offered(calendar)));
        main.Click(SecondOption(Offered(calendar)));
        main.Fill(hyphenated, u"1-2"_s, hyphenated);
        main.Click(u"chkHyphen"_s);
        QCOMPARE(main.Boxes(), QStringList({compact, "1-2", compact}));
        QCOMPARE(main.Button(u"optSecondDateIsORD"_s).text(), u"Ordinal date (yyyyddd)"_s);
        main.Click(u"chkHyphen"_s);
        QCOMPARE(main.Boxes(), QStringList({hyphenated, "1-2", hyphenated}));
        QCOMPARE(main.Button(u"optFirstDateIsORD"_s).text(), u"Ordinal date (yyyy-ddd)"_s);
    }

    void TheHyphenFindsADateBetweenBlanksAndBeforeItsTag_data() {
        QTest::addColumn<int>("calendar");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("compact");
        QTest::newRow("ordinal date with tag") << 4 << "2024-075 ORD"
                                               << "2024075";
        QTest::newRow("ordinal date and a blank") << 4 << "2024-075 "
                                                  << "2024075";
        QTest::newRow("week date with tag") << 2 << "  2024-W11-5 ISO "
                                            << "2024W115";
        QTest::newRow("another's tag") << 4 << "2024-075 ISO"
                                       << "2024-075 ISO";
        QTest::newRow("compact already") << 4 << " 2024075 ORD"
                                         << " 2024075 ORD";
    }
    void TheHyphenFindsADateBetweenBlanksAndBeforeItsTag() {
        QFETCH(int, calendar);
        QFETCH(QString, text);
        QFETCH(QString, compact);
        MainWindowFixture main;
        main.Start();
        main.Click(FirstOption(Offered(calendar)));
        main.Fill(text, QString(), QString());
        main.Click(u"chkHyphen"_s);
        QCOMPARE(main.Text(u"txbFirstDate"_s), compact);
    }

    void TheHyphenLeavesOtherTextsAlone_data() {
        QTest::addColumn<int>("calendar");
        QTest::addColumn<QString>("text");
        QTest::newRow("day number that looks ordinal") << 3 << "2460385";
        QTest::newRow("Common Era date") << 0 << "2024-03-15";
        QTest::newRow("leap week date") << 6 << "2024-12-5";
        QTest::newRow("compact already") << 2 << "2024W115";
        QTest::newRow("no week date") << 2 << "2024-075";
        QTest::newRow("no ordinal date") << 4 << "2024-W11-5";
        QTest::newRow("rubbish") << 4 << "--------";
        QTest::newRow("W alone") << 2 << "W";
    }
    void TheHyphenLeavesOtherTextsAlone() {
        QFETCH(int, calendar);
        QFETCH(QString, text);
        MainWindowFixture main;
        main.Start();
        main.Click(FirstOption(Offered(calendar)));
        main.Fill(text, QString(), QString());
        main.Click(u"chkHyphen"_s);
        QCOMPARE(main.Text(u"txbFirstDate"_s), text);
    }
};

QTEST_MAIN(InputBoxesTest)
#include "InputBoxesTest.moc"
