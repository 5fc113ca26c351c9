// The windows that the main window opens: the month of the first date, the help.

#include <QComboBox>

#include "tests/mainwindow/MainWindowFixture.h"
#include "windows/Placement.h"
#include "windows/frmDisplayMonth.h"
#include "windows/frmHelp.h"
#include "windows/frmLargeDisplay.h"

using namespace calvoro;

class SecondaryWindowsTest : public QObject {
    Q_OBJECT

private:
    // "year/month/calendar" of the month window.
    static QString ShownMonth() {
        const auto* month = OpenedWindow<frmDisplayMonth>();
        if (month == nullptr) return u"no window"_s;
        return u"%1/%2/%3"_s.arg(month->findChild<QLineEdit*>(u"txbYear"_s)->text())
            .arg(month->findChild<QComboBox*>(u"cboMonths"_s)->currentIndex() + 1)
            .arg(month->GetCalendar() == CalendarNumber::JC ? "JC" : "CE");
    }

    static QString MonthGrid() {
        return OpenedWindow<frmDisplayMonth>()->findChild<QPlainTextEdit*>(u"txbMonth"_s)->toPlainText();
    }

private Q_SLOTS:
    void TheMonthWindowOpensOnTheFirstDatesMonth_data() {
        QTest::addColumn<QStringList>("clicks");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("month");
        const QString today = u"2026/11/CE"_s;
        QTest::newRow("empty box") << QStringList{} << "" << today;
        QTest::newRow("Common Era date") << QStringList{} << "2024-09-01"
                                         << "2024/9/CE";
        QTest::newRow("Julian date") << QStringList{"optFirstDateIsJC"} << "2024-09-01"
                                     << "2024/9/JC";
        QTest::newRow("day number") << QStringList{"optFirstDateIsJDN"} << "2,460,385"
                                    << "2024/3/CE";
        QTest::newRow("negative year") << QStringList{} << "-44-03-15"
                                       << "-44/3/CE";
        QTest::newRow("long year as plain digits") << QStringList{} << "12345-03-15"
                                                   << "12345/3/CE";
        QTest::newRow("other format")
            << QStringList{"optDateFormatIsDMY", "optSeparatorIsDot"} << "01.09.2024"
            << "2024/9/CE";
        QTest::newRow("week date") << QStringList{"optFirstDateIsISO"} << "2024-W11-5" << today;
        QTest::newRow("ordinal date") << QStringList{"optFirstDateIsORD"} << "2024-075" << today;
        QTest::newRow("leap week month date") << QStringList{"optFirstDateIsLPM"} << "2024-03-19" << today;
        QTest::newRow("leap week week date") << QStringList{"optFirstDateIsLPW"} << "2024-12-5" << today;
        QTest::newRow("not a date") << QStringList{} << "2023-02-29" << today;
        QTest::newRow("out of range") << QStringList{} << "5800001-01-01" << today;
        QTest::newRow("day number out of 32 bits")
            << QStringList{"optFirstDateIsJDN"} << "9999999999" << today;
    }
    void TheMonthWindowOpensOnTheFirstDatesMonth() {
        QFETCH(QStringList, clicks);
        QFETCH(QString, text);
        QFETCH(QString, month);
        MainWindowFixture main;
        main.Start();
        for (const QString& name : clicks) main.Click(name);
        main.Get<QLineEdit>(u"txbFirstDate"_s).setText(text);
        main.Click(u"cmdDisplayMonth"_s);
        QCOMPARE(ShownMonth(), month);
        QVERIFY(OpenedWindow<frmDisplayMonth>()->isVisible());
        QVERIFY(!OpenedWindow<frmDisplayMonth>()
                     ->findChild<QPlainTextEdit*>(u"txbMonth"_s)
                     ->toPlainText()
                     .isEmpty());
        QCOMPARE(main.Text(u"txbFirstDate"_s), text);
        QVERIFY(main.Shown().empty());
    }

    void TheMonthWindowIsPlacedWhileItIsHidden() {
        MainWindowFixture main;
        main.Start();
        main.window->move(20, 10);
        main.Click(u"cmdDisplayMonth"_s);
        auto* month = OpenedWindow<frmDisplayMonth>();
        // 4000 and 1710 twips, kept on the screen.
        QCOMPARE(month->pos(),
                 KeptOnScreen(main.window->pos() + QPoint(266, 114), month->frameGeometry().size(),
                              month->screen()->availableGeometry()));
        month->move(3, 4);
        main.Activate();
        main.Click(u"cmdDisplayMonth"_s);
        QCOMPARE(month->pos(), QPoint(3, 4));
        QCOMPARE(OpenedWindow<frmDisplayMonth>(), month);
    }

    void TheMonthWindowStartsWithTheSavedWeekStartAndKeepsTheUsers() {
        MainWindowFixture main;
        Settings settings;
        settings.monthWeekStart = WeekStart::Monday;
        settings.monthCalendar = CalendarNumber::JC;
        main.StartWith(settings);
        // Never opened: what was saved is saved again.
        main.Quit();
        QVERIFY(main.Saved() == settings);

        main.Start();
        main.Click(u"cmdDisplayMonth"_s);
        QCOMPARE(OpenedWindow<frmDisplayMonth>()->GetWeekStart(), WeekStart::Monday);
        OpenedWindow<frmDisplayMonth>()->findChild<QAbstractButton*>(u"optSunday"_s)->click();
        main.Quit();
        QCOMPARE(main.Saved().monthWeekStart, WeekStart::Sunday);
        // Opened on today's month, which is a Common Era one.
        QCOMPARE(main.Saved().monthCalendar, CalendarNumber::CE);
    }

    void ResetReachesTheMonthWindow() {
        MainWindowFixture main;
        Settings settings;
        settings.monthWeekStart = WeekStart::Monday;
        settings.firstCalendar = CalendarNumber::JC;
        settings.firstDate = "2024-09-01";
        main.StartWith(settings);
        main.Click(u"cmdDisplayMonth"_s);
        QCOMPARE(ShownMonth(), u"2024/9/JC"_s);
        main.Activate();
        main.fake.boxes.answers = {true};
        main.Click(u"cmdReset"_s);
        QCOMPARE(OpenedWindow<frmDisplayMonth>()->GetWeekStart(), WeekStart::Sunday);
        QCOMPARE(OpenedWindow<frmDisplayMonth>()->GetCalendar(), CalendarNumber::CE);
    }

    void TheLanguageReachesTheMonthWindow() {
        MainWindowFixture main;
        main.Start();
        main.Click(u"cmdDisplayMonth"_s);
        main.Activate();
        main.Click(u"optLanguageIsGerman"_s);
        QVERIFY(MonthGrid().startsWith(u" Son  Mon  Die "_s));
        QCOMPARE(main.Focused(), u"txbFirstDate"_s);
        const auto* next = OpenedWindow<frmDisplayMonth>()->findChild<QWidget*>(u"cmdDisplayNextMonth0"_s);
        QCOMPARE(Caption(*next), u"Folgender Monat zeigen"_s);
    }

    void TheGermanMonthWindowIsGermanFromItsFirstOpening() {
        MainWindowFixture main;
        Settings settings;
        settings.interfaceLanguage = LanguageGerman;
        settings.monthWeekStart = WeekStart::Monday;
        main.StartWith(settings);
        main.Click(u"cmdDisplayMonth"_s);
        const auto* iso = OpenedWindow<frmDisplayMonth>()->findChild<QWidget*>(u"cmdShowHideISO"_s);
        QCOMPARE(Caption(*iso), u"ISO-Woche-Daten zeigen"_s);
    }

    void NumberedTextsDeliberatelyLagUntilTheMonthWindowIsActivated() {
        MainWindowFixture main;
        main.Start();
        main.Click(u"optLanguageIsGerman"_s);
        main.fake.boxes.answers = {false, false, false};
        main.Click(u"cmdReset"_s);
        main.Click(u"cmdDisplayMonth"_s);
        main.Activate();
        main.Click(u"cmdReset"_s);
        // Back to English: the texts follow when the month window is activated the next time.
        main.Click(u"optLanguageIsEnglish"_s);
        main.Click(u"cmdReset"_s);
        const auto& asked = main.fake.boxes.asked;
        QVERIFY(asked[0].prompt.starts_with("This deletes the settings file"));
        QVERIFY(asked[1].prompt.starts_with("Die Einstellungsdatei wird geloescht"));
        QVERIFY(asked[2].prompt.starts_with("Die Einstellungsdatei wird geloescht"));
        QCOMPARE(asked[2].title, std::string("Reset"));
    }

    void CtrlMShowsTheMonth() {
        MainWindowFixture main;
        main.Start();
        main.Fill(u"2024-02-29"_s, QString(), QString());
        main.Press(Qt::Key_M, Qt::ControlModifier);
        QCOMPARE(ShownMonth(), u"2024/2/CE"_s);
        QVERIFY(OpenedWindow<frmDisplayMonth>()->isVisible());
    }

    void HelpIsShownByClickAndByKey_data() {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("click") << false;
        QTest::newRow("F1") << true;
    }
    void HelpIsShownByClickAndByKey() {
        QFETCH(bool, byKey);
        MainWindowFixture main;
        main.Start();
        if (byKey) {
            main.Press(Qt::Key_F1);
        } else {
            main.Click(u"cmdHelp"_s);
        }
        auto* help = OpenedWindow<frmHelp>();
        QVERIFY(help != nullptr);
        QVERIFY(help->isVisible());
        QVERIFY(!help->isModal());
        const QString text = help->findChild<QPlainTextEdit*>(u"txbMsg"_s)->toPlainText();
        for (const char* address : {"https://manual.example/en", "https://calendars.example/",
                                    "https://isoweek.example/", "https://leapweek.example/"}) {
            QVERIFY2(text.contains(address), address);
        }
        help->showMinimized();
        main.Activate();
        main.Click(u"cmdHelp"_s);
        QVERIFY(!help->isMinimized());
    }

    void OpenWindowsFollowTheLanguageAtOnce() {
        MainWindowFixture main;
        main.Start();
        main.Get<QPlainTextEdit>(u"txbOutput"_s).setPlainText(u"line\n"_s.repeated(40));
        QTRY_VERIFY(main.Button(u"cmdEnlarge"_s).isEnabled());
        for (const char* opener : {"cmdHelp", "cmdEnlarge", "cmdDisplayMonth"}) {
            main.Activate();
            main.Button(opener).click();
        }
        const QWidget& help = *OpenedWindow<frmHelp>();
        const QWidget& large = *OpenedWindow<frmLargeDisplay>();
        const QWidget& month = *OpenedWindow<frmDisplayMonth>();
        const auto texts = [&]() -> QStringList {
            const auto caption = [](const QWidget& window, const char* name) {
                return Caption(*window.findChild<QWidget*>(QLatin1String(name)));
            };
            return {help.windowTitle(),
                    help.findChild<QPlainTextEdit*>(u"txbMsg"_s)->toPlainText().section(u' ', 0, 1),
                    help.findChild<QPlainTextEdit*>(u"txbMsg"_s)->accessibleName(),
                    caption(help, "cmdClose"),
                    large.windowTitle(),
                    large.findChild<QPlainTextEdit*>(u"txbOutput"_s)->accessibleName(),
                    caption(large, "cmdCopyToClipboard"),
                    caption(large, "cmdClose"),
                    caption(month, "cmdClose"),
                    caption(month, "optSunday")};
        };
        const QStringList english = {"Calvoro Help",  "The complete",      "Help",  "Close", "Output window",
                                     "Output window", "Copy to clipboard", "Close", "Close", "Sunday"};
        // The captions of the enlarged window are its state, in English.
        const QStringList german = {
            "Calvoro Hilfe",  "Das Benutzerhandbuch", "Hilfe", "Schliessen", "Ausgabefenster",
            "Ausgabefenster", "Copy to clipboard",    "Close", "Schliessen", "Sonntag"};
        QCOMPARE(texts(), english);
        main.Activate();
        main.Button(u"optLanguageIsGerman"_s).click();
        QCOMPARE(QApplication::activeWindow(), main.window.get());
        QCOMPARE(texts(), german);
        main.Button(u"optLanguageIsEnglish"_s).click();
        QCOMPARE(texts(), english);
    }

    void TheToolkitsWordsFollowTheLanguage() {
        MainWindowFixture main;
        const auto undo = [] { return QCoreApplication::translate("QLineEdit", "&Undo"); };
        main.Start();
        QCOMPARE(undo(), u"&Undo"_s);
        main.Click(u"optLanguageIsGerman"_s);
        QCOMPARE(undo(), u"&Rückgängig"_s);
        main.Quit();
        main.Start();
        QCOMPARE(undo(), u"&Rückgängig"_s);
        main.fake.boxes.answers.push_back(true);
        main.Click(u"cmdReset"_s);
        QCOMPARE(undo(), u"&Undo"_s);
    }
};

QTEST_MAIN(SecondaryWindowsTest)
#include "SecondaryWindowsTest.moc"
