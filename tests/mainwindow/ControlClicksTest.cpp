// What each option, check box and link of the main window does when it is clicked, and where the focus goes.

#include <QRadioButton>

#include "tests/mainwindow/MainWindowFixture.h"

using namespace calvoro;

class ControlClicksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void SetTheFocusGoesToTheNextStep_data() {
        QTest::addColumn<QStringList>("boxes");
        QTest::addColumn<QString>("focus");
        QTest::newRow("none filled") << QStringList{"", "", ""} << "txbFirstDate";
        QTest::newRow("first") << QStringList{"a", "", ""} << "txbDateDiff";
        QTest::newRow("difference") << QStringList{"", "a", ""} << "txbFirstDate";
        QTest::newRow("second") << QStringList{"", "", "a"} << "txbFirstDate";
        QTest::newRow("first and difference") << QStringList{"a", "a", ""} << "cmdCompute";
        QTest::newRow("first and second") << QStringList{"a", "", "a"} << "cmdCompute";
        QTest::newRow("difference and second") << QStringList{"", "a", "a"} << "cmdCompute";
        QTest::newRow("all") << QStringList{"a", "a", "a"} << "cmdCompute";
    }
    void SetTheFocusGoesToTheNextStep() {
        QFETCH(QStringList, boxes);
        QFETCH(QString, focus);
        MainWindowFixture main;
        main.Start();
        main.Fill(boxes[0], boxes[1], boxes[2]);
        main.Focus(u"cmdHelp"_s);
        main.window->SetTheFocus();
        QCOMPARE(main.Focused(), focus);
    }

    // Were it shown as a whole when it gets the focus, it would move away before the button is let go.
    void AClickOnAnOptionThatIsPartlyInSightIsNotLost() {
        MainWindowFixture main;
        main.Start();
        QCoreApplication::processEvents();
        int clicked = 0;
        for (auto* option : main.window->findChildren<QRadioButton*>()) {
            const QPoint mark(9, option->height() / 2);
            const QRect seen = option->visibleRegion().boundingRect();
            if (option->isChecked() || !seen.contains(mark) || seen.width() == option->width()) continue;
            QTest::mouseClick(main.window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                              option->mapTo(main.window.get(), mark));
            QVERIFY2(option->isChecked(), qPrintable(option->objectName()));
            ++clicked;
            main.Focus(u"txbFirstDate"_s);
            QCoreApplication::processEvents();
        }
        QVERIFY(clicked > 0);
    }

    void ADateFormatShowsItsExamplesAndDeliberatelyEmptiesTheBoxes_data() {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QStringList>("captions");
        QTest::addColumn<QString>("today");
        QTest::addColumn<int>("number");
        QTest::newRow("YMD") << "optDateFormatIsYMD" << QStringList{"2012-12-31", "2012/12/31", "2012.12.31"}
                             << "Today is Friday, 2026-11-20 CE" << 2;
        QTest::newRow("DMY") << "optDateFormatIsDMY" << QStringList{"31-12-2012", "31/12/2012", "31.12.2012"}
                             << "Today is Friday, 20-11-2026 CE" << 1;
        QTest::newRow("MDY") << "optDateFormatIsMDY" << QStringList{"12-31-2012", "12/31/2012", "12.31.2012"}
                             << "Today is Friday, 11-20-2026 CE" << 0;
    }
    void ADateFormatShowsItsExamplesAndDeliberatelyEmptiesTheBoxes() {
        QFETCH(QString, option);
        QFETCH(QStringList, captions);
        QFETCH(QString, today);
        QFETCH(int, number);
        MainWindowFixture main;
        Settings settings;  // another format first, so that the click is a choice
        settings.dateFormat = number == 2 ? DateFormat::MDY : DateFormat::YMD;
        main.StartWith(settings);
        // Deliberate: valid dates go too; a date typed in the old format is never reinterpreted.
        main.Fill(u"2024-03-15"_s, u"10"_s, u"2024-03-25"_s);
        main.Focus(u"cmdHelp"_s);

        main.Click(option);

        QCOMPARE(main.Button(u"optSeparatorIsDash"_s).text(), captions[0]);
        QCOMPARE(main.Button(u"optSeparatorIsSlash"_s).text(), captions[1]);
        QCOMPARE(main.Button(u"optSeparatorIsDot"_s).text(), captions[2]);
        QCOMPARE(main.Boxes(), QStringList({"", "", ""}));
        QCOMPARE(main.Focused(), u"txbFirstDate"_s);
        QCOMPARE(main.Get<QLabel>(u"lblTodaysDate"_s).text(), today);
        QCOMPARE(static_cast<int>(main.window->UsersDateFormat()), number);
    }

    void ADateSeparatorDeliberatelyEmptiesTheBoxesAndIsUsed_data() {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("today");
        QTest::newRow("dash") << "optSeparatorIsDash"
                              << "Today is Friday, 2026-11-20 CE";
        QTest::newRow("slash") << "optSeparatorIsSlash"
                               << "Today is Friday, 2026/11/20 CE";
        QTest::newRow("dot") << "optSeparatorIsDot"
                             << "Today is Friday, 2026.11.20 CE";
    }
    void ADateSeparatorDeliberatelyEmptiesTheBoxesAndIsUsed() {
        QFETCH(QString, option);
        QFETCH(QString, today);
        MainWindowFixture main;
        Settings settings;
        settings.dateSeparator = option.endsWith("Dash"_L1) ? '.' : '-';
        main.StartWith(settings);
        main.Fill(u"2024-03-15"_s, u"10"_s, u"2024-03-25"_s);
        main.Focus(u"cmdHelp"_s);
        main.Click(option);
        QCOMPARE(main.Boxes(), QStringList({"", "", ""}));
        QCOMPARE(main.Focused(), u"txbFirstDate"_s);
        QCOMPARE(main.Get<QLabel>(u"lblTodaysDate"_s).text(), today);
    }

    void ADeliberatelyLazyThousandsSeparatorRewritesNothing_data() {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("computed");
        QTest::addColumn<QString>("today");
        QTest::newRow("comma") << "optThousSepIsComma"
                               << "2,460,385"
                               << "2,461,365";
        QTest::newRow("dot") << "optThousSepIsDot"
                             << "2.460.385"
                             << "2.461.365";
        QTest::newRow("none") << "optThousSepNone"
                              << "2460385"
                              << "2461365";
    }
    void ADeliberatelyLazyThousandsSeparatorRewritesNothing() {
        QFETCH(QString, option);
        QFETCH(QString, computed);
        QFETCH(QString, today);
        MainWindowFixture main;
        Settings settings;
        settings.thousandsSeparator = option.endsWith("Comma"_L1) ? '.' : ',';
        settings.todayCalendar = CalendarNumber::JDN;
        main.StartWith(settings);
        main.Fill(u"2460385"_s, u"1,000"_s, QString());
        main.Focus(u"cmdHelp"_s);
        main.Click(option);
        QCOMPARE(main.Boxes(), QStringList({"2460385", "1,000", ""}));
        QCOMPARE(main.Get<QLabel>(u"lblTodaysDate"_s).text(), u"Today is Friday, %1 JDN"_s.arg(today));
        QCOMPARE(main.Focused(), u"cmdCompute"_s);

        main.Fill(u"2024-03-15"_s, QString(), QString());
        main.Click(u"optFirstDateIsJDN"_s);
        QCOMPARE(main.Text(u"txbFirstDate"_s), computed);
    }

    void MonthsSwitchOffWhatOnlyDaysHave() {
        MainWindowFixture main;
        main.Start();
        main.Fill(u"2024-03-15"_s, u"10"_s, QString());
        main.Click(u"optMonths"_s);
        QVERIFY(!main.Button(u"chkIncludeFirstDate"_s).isEnabled());
        QVERIFY(!main.Button(u"chkIncludeWeekends"_s).isEnabled());
        QVERIFY(main.Button(u"chkIncludeFirstDate"_s).isVisible());
        QCOMPARE(main.Focused(), u"cmdCompute"_s);

        main.Fill(QString(), QString(), QString());
        main.Click(u"optDays"_s);
        QVERIFY(main.Button(u"chkIncludeFirstDate"_s).isEnabled());
        QVERIFY(main.Button(u"chkIncludeWeekends"_s).isEnabled());
        QCOMPARE(main.Focused(), u"txbFirstDate"_s);
    }

    void ACheckBoxOnlySetsTheFocus_data() {
        QTest::addColumn<QString>("name");
        for (const char* name :
             {"chkIncludeFirstDate", "chkIncludeWeekends", "chkVerbose", "chkSaveOutput"}) {
            QTest::newRow(name) << name;
        }
    }
    void ACheckBoxOnlySetsTheFocus() {
        QFETCH(QString, name);
        MainWindowFixture main;
        main.Start();
        main.Fill(u"2024-03-15"_s, QString(), u"2024-03-25"_s);
        const bool before = main.Button(name).isChecked();
        main.Click(name);
        QCOMPARE(main.Button(name).isChecked(), !before);
        QCOMPARE(main.Boxes(), QStringList({"2024-03-15", "", "2024-03-25"}));
        QCOMPARE(main.Focused(), u"cmdCompute"_s);
        QCOMPARE(main.Output(), QString());
    }

    void WithTwoBoxesFilledOptionClicksLeaveTheFocusOnCompute_data() {
        QTest::addColumn<QString>("name");
        for (const char* name : {"optThousSepIsDot", "optThousSepNone", "optMonths", "optLanguageIsGerman"}) {
            QTest::newRow(name) << name;
        }
    }
    void WithTwoBoxesFilledOptionClicksLeaveTheFocusOnCompute() {
        QFETCH(QString, name);
        MainWindowFixture main;
        main.Start();
        main.Fill(QString(), u"5"_s, u"2024-03-25"_s);
        main.Click(name);
        QCOMPARE(main.Focused(), u"cmdCompute"_s);
    }

    void AClickOnTheOptionChosenAlreadyDoesNothing_data() {
        QTest::addColumn<QString>("name");
        for (const char* name : {"optDateFormatIsYMD", "optSeparatorIsDash", "optThousSepIsComma", "optDays",
                                 "optLanguageIsEnglish", "optFirstDateIsCE", "optSecondDateIsCE"}) {
            QTest::newRow(name) << name;
        }
    }
    void AClickOnTheOptionChosenAlreadyDoesNothing() {
        QFETCH(QString, name);
        MainWindowFixture main;
        main.Start();
        main.Fill(u" x"_s, u" y"_s, u" z"_s);
        main.Click(name);
        QCOMPARE(main.Boxes(), QStringList({" x", " y", " z"}));
        QVERIFY(main.Button(name).isChecked());
        QCOMPARE(main.Focused(), name);
        main.Press(Qt::Key_Space);
        QCOMPARE(main.Boxes(), QStringList({" x", " y", " z"}));
    }

    void TheLanguageChangesEveryCaptionAndTheTodayLine() {
        MainWindowFixture main;
        main.Start();
        main.Fill(u"2024-03-15"_s, QString(), QString());
        main.Click(u"optLanguageIsGerman"_s);
        QCOMPARE(main.CaptionOf(u"cmdCompute"_s), u"Berechnen"_s);
        QCOMPARE(main.Get<QLabel>(u"lblTodaysDate"_s).text(), u"Heute ist Freitag, der 2026-11-20 CE"_s);
        QCOMPARE(main.Focused(), u"txbDateDiff"_s);
        QCOMPARE(main.Text(u"txbFirstDate"_s), u"2024-03-15"_s);
        main.Click(u"optLanguageIsEnglish"_s);
        QCOMPARE(main.CaptionOf(u"cmdCompute"_s), u"Compute"_s);
        QCOMPARE(main.Get<QLabel>(u"lblTodaysDate"_s).text(), u"Today is Friday, 2026-11-20 CE"_s);
    }

    void TheLinksOpenTheirPages_data() {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("address");
        const char* const english = "optLanguageIsEnglish";
        const char* const german = "optLanguageIsGerman";
        QTest::newRow("manual") << "lblOnlineDocumentation" << english << "https://manual.example/en";
        QTest::newRow("German manual") << "lblOnlineDocumentation" << german << "https://manual.example/de";
        QTest::newRow("home page") << "lblVantorelSystems" << english << "https://home.example/";
        QTest::newRow("home page in German") << "lblVantorelSystems" << german << "https://home.example/";
    }
    void TheLinksOpenTheirPages() {
        QFETCH(QString, label);
        QFETCH(QString, language);
        QFETCH(QString, address);
        MainWindowFixture main;
        main.Start();
        main.Click(language);
        main.fake.web.results = {33, 33, 33};
        main.Click(label);
        main.Focus(label);
        main.Press(Qt::Key_Return);
        main.Press(Qt::Key_Space);
        QCOMPARE(main.fake.web.opened.size(), 3U);
        for (const OpenedAddress& opened : main.fake.web.opened) {
            QCOMPARE(opened.address, address.toStdString());
        }
        QVERIFY(main.fake.Settled());
        QVERIFY(main.Shown().empty());
    }

    // While the online pages are at a reserved address, where nothing can be.
    void TheInstalledManualIsOpenedInTheLanguageOfTheInterface() {
        MainWindowFixture main;
        main.addresses.installedManualEnglish = "file:///manual/en/index.html";
        main.addresses.installedManualGerman = "file:///manual/de/index.html";
        main.Start();
        main.fake.web.results = {33, 33, 33};
        main.Click(u"lblOnlineDocumentation"_s);
        main.Click(u"optLanguageIsGerman"_s);
        main.Click(u"lblOnlineDocumentation"_s);
        main.Click(u"lblVantorelSystems"_s);
        QCOMPARE(main.fake.web.opened.size(), 3U);
        QCOMPARE(main.fake.web.opened[0].address, std::string("file:///manual/en/index.html"));
        QCOMPARE(main.fake.web.opened[1].address, std::string("file:///manual/de/index.html"));
        QCOMPARE(main.fake.web.opened[2].address, std::string("https://home.example/"));
        QVERIFY(main.fake.Settled());
    }

    void ABrowserThatDoesNotStartIsTold() {
        MainWindowFixture main;
        main.Start();
        main.fake.web.results = {2};
        main.Click(u"lblVantorelSystems"_s);
        QCOMPARE(main.Shown().size(), 1U);
        QCOMPARE(main.Shown().front().title, std::string("Cannot launch web browser"));
    }

    void TheHyphenReachesTheTodayLabelsAtOnceAndKeepsTheFocus() {
        MainWindowFixture main;
        Settings settings;
        settings.todayCalendar = CalendarNumber::ISO;
        main.StartWith(settings);
        main.Click(u"chkHyphen"_s);
        QCOMPARE(main.Get<QLabel>(u"lblTodaysDate"_s).text(), u"Today is Friday, 2026W475 ISO"_s);
        QCOMPARE(main.Get<QLabel>(u"lblWeekFromToday"_s).text(),
                 u"A week from today is Friday, 2026W485 ISO"_s);
        QCOMPARE(main.Focused(), u"chkHyphen"_s);
    }

    void AnOptionChosenByArrowKeyKeepsTheFocus_data() {
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::newRow("language") << "optLanguageIsEnglish"
                                  << "optLanguageIsGerman";
        QTest::newRow("first calendar") << "optFirstDateIsCE"
                                        << "optFirstDateIsJC";
        QTest::newRow("second calendar") << "optSecondDateIsCE"
                                         << "optSecondDateIsJC";
        QTest::newRow("format") << "optDateFormatIsYMD"
                                << "optDateFormatIsDMY";
        QTest::newRow("separator") << "optSeparatorIsDash"
                                   << "optSeparatorIsSlash";
        QTest::newRow("thousands") << "optThousSepIsComma"
                                   << "optThousSepIsDot";
        QTest::newRow("unit") << "optDays"
                              << "optMonths";
    }
    void AnOptionChosenByArrowKeyKeepsTheFocus() {
        QFETCH(QString, from);
        QFETCH(QString, to);
        MainWindowFixture main;
        main.Start();
        main.Fill(u"2024-03-15"_s, u"5"_s, u"2024-03-25"_s);
        main.Focus(from);
        main.Press(Qt::Key_Down);
        QVERIFY(main.Button(to).isChecked());
        QCOMPARE(main.Focused(), to);
        main.Press(Qt::Key_Up);
        QVERIFY(main.Button(from).isChecked());
        QCOMPARE(main.Focused(), from);
    }

    void SpaceOnAnOptionOrACheckBoxLeadsToTheNextStep() {
        MainWindowFixture main;
        main.Start();
        main.Fill(u"2024-03-15"_s, u"5"_s, QString());
        main.Focus(u"optMonths"_s);
        main.Press(Qt::Key_Space);
        QVERIFY(main.Button(u"optMonths"_s).isChecked());
        QCOMPARE(main.Focused(), u"cmdCompute"_s);
        main.Focus(u"chkVerbose"_s);
        main.Press(Qt::Key_Space);
        QCOMPARE(main.Focused(), u"cmdCompute"_s);
    }

    void ThePressOnTheSecondHalfOfTheHyphenCaptionIsAClick() {
        MainWindowFixture main;
        main.Start();
        main.Click(u"lblHyphen"_s);
        QVERIFY(!main.Button(u"chkHyphen"_s).isChecked());
        QCOMPARE(main.Button(u"optFirstDateIsORD"_s).text(), u"Ordinal date (yyyyddd)"_s);
    }
};

QTEST_MAIN(ControlClicksTest)
#include "ControlClicksTest.moc"
