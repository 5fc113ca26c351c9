// What the main window looks like and sounds like: captions, names, tab order, and room for every word.

#include <QAccessible>
#include <QCheckBox>
#include <QStyleOptionButton>
#include <QToolButton>

#include "tests/mainwindow/MainWindowFixture.h"
#include "windows/ScrollingPage.h"

using namespace calvoro;

class CaptionsTest : public QObject {
    Q_OBJECT

private:
    QFont systemFont_;

    static void BothLanguages() {
        QTest::addColumn<QString>("language");
        QTest::newRow("English") << "optLanguageIsEnglish";
        QTest::newRow("German") << "optLanguageIsGerman";
    }

    static QStringList WalkWithTab(MainWindowFixture& main) {
        QStringList names;
        main.Focus(u"lblTodaysDate"_s);
        do {
            names.push_back(main.Focused());
            main.Press(Qt::Key_Tab);
        } while (main.Focused() != u"lblTodaysDate"_s && names.size() < 100);
        return names;
    }

private Q_SLOTS:
    void initTestCase() { systemFont_ = QApplication::font(); }
    void cleanup() { QApplication::setFont(systemFont_); }

    void EveryCaption_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("english");
        QTest::addColumn<QString>("german");
        const auto row = [](const char* name, const char* english, const char* german) {
            QTest::newRow(name) << name << english << german;
        };
        row("lblFirstDate", "First date", "Erstes Datum");
        row("lblDateDifference", "Date difference", "Datumsdifferenz");
        row("lblSecondDate", "Second date", "Zweites Datum");
        row("lblOr", "or", "oder");
        row("lblThisIsA0", "This is a", "Dies ist ein");
        row("lblThisIsA1", "This is a", "Dies ist ein");
        row("lblDateFormat", "CE/JC date format", "CE/JC-Datumsformat");
        row("lblDateSeparator", "CE/JC date separator", "CE/JC-Datumstrennzeichen");
        row("lblThousandsSeparator", "Thousands separator", "Tausendertrennzeichen");
        row("lblHyphen", "in ISO Week dates", "in ISO-Woche Daten");
        row("lblOnlineDocumentation", "Online documentation", "Online-Dokumentation");
        row("lblVantorelSystems", "Vantorel Systems", "Vantorel Systems");
        for (const char* box : {"First", "Second"}) {
            const auto option = [&](const char* tag, const char* english, const char* german) {
                QTest::addRow("%s %s", box, tag)
                    << u"opt%1DateIs%2"_s.arg(QLatin1String(box), QLatin1String(tag)) << english << german;
            };
            option("CE", "Common Era date", "Common Era Datum");
            option("JC", "Julian Calendar date", "Julianisches Kalenderdatum");
            option("ISO", "ISO Week date", "ISO-Woche-Datum");
            option("JDN", "Julian day number", "Julianische Tageszahl");
            option("ORD", "Ordinal date (yyyy-ddd)", "Ordinaldatum (JJJJ-TTT)");
            option("LPM", "Vantorel Leap Week month date", "Vantorel Leap Week Monatdatum");
            option("LPW", "Vantorel Leap Week week date", "Vantorel Leap Week Wochendatum");
        }
        row("optDateFormatIsYMD", "yyyy-mm-dd", "JJJJ-MM-TT");
        row("optDateFormatIsDMY", "dd-mm-yyyy", "TT-MM-JJJJ");
        row("optDateFormatIsMDY", "mm-dd-yyyy", "MM-TT-JJJJ");
        row("optSeparatorIsDash", "2012-12-31", "2012-12-31");
        row("optSeparatorIsSlash", "2012/12/31", "2012/12/31");
        row("optSeparatorIsDot", "2012.12.31", "2012.12.31");
        row("optThousSepIsComma", ",", ",");
        row("optThousSepIsDot", ".", ".");
        row("optThousSepNone", "None", "Keine");
        row("optDays", "Days", "Tage");
        row("optMonths", "Months", "Monate");
        row("optLanguageIsEnglish", "English", "English");
        row("optLanguageIsGerman", "Deutsch", "Deutsch");
        // Deliberate: "beween" is how the caption is written.
        row("chkIncludeFirstDate", "Include first date in days-beween-dates", "Erstes Datum einschliessen");
        row("chkIncludeWeekends", "Count weekend days in days-between-dates", "Wochenendtage zaehlen");
        row("chkVerbose", "Verbose", "Zusatzinfo");
        row("chkHyphen", "Hyphen in ordinal and", "Divis in Ordinal und");
        row("chkSaveOutput", "Save results on quit", "Ergebnisse beim Beenden sichern");
        row("cmdCompute", "Compute", "Berechnen");
        row("cmdToday0", "Today", "Heute");
        row("cmdToday1", "Today", "Heute");
        row("cmdMoveSecondDateToFirst", "Second -> First", "Zweites -> Erstes");
        row("cmdClearFirstDate", "Clear", "Loeschen");
        row("cmdClearDateDiff", "Clear", "Loeschen");
        row("cmdClearSecondDate", "Clear", "Loeschen");
        row("cmdClearOutputWindow", "Clear", "Loeschen");
        row("cmdCopyToClipboard", "Copy to clipboard", "Kopieren in Zwischenablage");
        row("cmdEnlarge", "Enlarge", "Vergroessern");
        row("cmdDisplayMonth", "Display month", "Monat zeigen");
        row("cmdHelp", "Help", "Hilfe");
        row("cmdReset", "Reset", "Rueckstellen");
        row("cmdQuit", "Quit", "Beenden");
    }
    void EveryCaption() {
        QFETCH(QString, name);
        QFETCH(QString, english);
        QFETCH(QString, german);
        MainWindowFixture main;
        main.Start();
        QCOMPARE(main.CaptionOf(name), english);
        main.Click(u"optLanguageIsGerman"_s);
        QCOMPARE(main.CaptionOf(name), german);
        main.Click(u"optLanguageIsEnglish"_s);
        QCOMPARE(main.CaptionOf(name), english);
    }

    void TheTodayLabelsTellHowToChangeThem() {
        MainWindowFixture main;
        main.Start();
        for (const char* name : {"lblTodaysDate", "lblWeekFromToday"}) {
            QCOMPARE(main.Get<QLabel>(name).toolTip(), u"Click to change calendar"_s);
        }
        main.Click(u"optLanguageIsGerman"_s);
        QCOMPARE(main.Get<QLabel>(u"lblTodaysDate"_s).toolTip(), u"Anklicken um Kalender zu veraendern"_s);
    }

    void TabFollowsTheOrderOfReading() {
        MainWindowFixture main;
        main.Start();
        for (const char* name : {"cmdClearOutputWindow", "cmdCopyToClipboard", "cmdEnlarge"}) {
            main.Button(name).setEnabled(true);
        }
        main.Get<QTimer>(u"Clock"_s).stop();
        const QStringList expected = {"lblTodaysDate",
                                      "lblWeekFromToday",
                                      "optLanguageIsEnglish",
                                      "txbFirstDate",
                                      "txbDateDiff",
                                      "txbSecondDate",
                                      "cmdToday0",
                                      "cmdClearFirstDate",
                                      "cmdClearDateDiff",
                                      "cmdToday1",
                                      "cmdClearSecondDate",
                                      "cmdMoveSecondDateToFirst",
                                      "optFirstDateIsCE",
                                      "optDays",
                                      "chkIncludeFirstDate",
                                      "chkIncludeWeekends",
                                      "cmdCompute",
                                      "optSecondDateIsCE",
                                      "optDateFormatIsYMD",
                                      "optThousSepIsComma",
                                      "optSeparatorIsDash",
                                      "chkHyphen",
                                      "txbOutput",
                                      "cmdClearOutputWindow",
                                      "cmdCopyToClipboard",
                                      "cmdEnlarge",
                                      "chkVerbose",
                                      "chkSaveOutput",
                                      "cmdDisplayMonth",
                                      "cmdHelp",
                                      "cmdReset",
                                      "cmdQuit",
                                      "lblOnlineDocumentation",
                                      "lblVantorelSystems"};
        QCOMPARE(WalkWithTab(main), expected);
    }

    void TheOrderOfTabIsTheOrderOnTheWindow() {
        // Row by row: no step of the walk goes to a place above the row that was left, but into the columns
        // of the three inputs, which are read down.
        MainWindowFixture main;
        main.Start();
        const QStringList walk = WalkWithTab(main);
        QPoint last(-1, -1);
        int stepsUp = 0;
        for (const QString& name : walk) {
            const QWidget& control = main.Get<QWidget>(name);
            const QPoint place = control.mapTo(main.window.get(), control.rect().center());
            if (place.y() < last.y() - control.height()) ++stepsUp;
            last = place;
        }
        // To the units, and to the second date's calendars; compute stands at the foot of its column.
        QVERIFY2(stepsUp <= 2, qPrintable(QString::number(stepsUp)));
    }

    void EveryControlHasAnAccessibleName_data() { BothLanguages(); }
    void EveryControlHasAnAccessibleName() {
        QFETCH(QString, language);
        MainWindowFixture main;
        main.Start();
        main.Click(language);
        int checked = 0;
        QStringList buttonNames;
        for (QWidget* control : main.window->findChildren<QWidget*>()) {
            const bool isButton = qobject_cast<QAbstractButton*>(control) != nullptr;
            if (control->focusPolicy() == Qt::NoFocus && !isButton) continue;
            if (control->objectName().startsWith("qt_"_L1)) continue;
            ++checked;
            const QString name = QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name);
            QVERIFY2(!name.isEmpty(), qPrintable(control->objectName()));
            QVERIFY2(!name.contains(u'&'), qPrintable(name));
            if (qobject_cast<QPushButton*>(control) != nullptr) buttonNames.push_back(name);
        }
        QVERIFY(checked > 55);
        // Buttons with the same caption are told apart.
        buttonNames.sort();
        QCOMPARE(buttonNames.removeDuplicates(), 0);
    }

    void TheNamesOfControlsBesideABoxTellTheBox_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("english");
        QTest::addColumn<QString>("german");
        const auto row = [](const char* name, const char* english, const char* german) {
            QTest::newRow(name) << name << english << german;
        };
        row("txbFirstDate", "First date", "Erstes Datum");
        row("txbDateDiff", "Date difference", "Datumsdifferenz");
        row("txbSecondDate", "Second date", "Zweites Datum");
        row("txbOutput", "Output window", "Ausgabefenster");
        row("cmdToday0", "First date: Today", "Erstes Datum: Heute");
        row("cmdToday1", "Second date: Today", "Zweites Datum: Heute");
        row("cmdClearFirstDate", "First date: Clear", "Erstes Datum: Loeschen");
        row("cmdClearDateDiff", "Date difference: Clear", "Datumsdifferenz: Loeschen");
        row("cmdClearSecondDate", "Second date: Clear", "Zweites Datum: Loeschen");
        row("cmdClearOutputWindow", "Output window: Clear", "Ausgabefenster: Loeschen");
        row("VScroll0", "First date: +/- 1 Day", "Erstes Datum: +/- 1 Tag");
        row("VScroll1", "Second date: +/- 1 Day", "Zweites Datum: +/- 1 Tag");
        row("Frame3", "First date: Calendar", "Erstes Datum: Kalender");
        row("Frame4", "Second date: Calendar", "Zweites Datum: Kalender");
        row("optThousSepIsComma", "Thousands separator: ,", "Tausendertrennzeichen: ,");
        row("chkHyphen", "Hyphen in ordinal and in ISO Week dates",
            "Divis in Ordinal und in ISO-Woche Daten");
        row("lblTodaysDate", "Today is Friday, 2026-11-20 CE", "Heute ist Freitag, der 2026-11-20 CE");
    }
    void TheNamesOfControlsBesideABoxTellTheBox() {
        QFETCH(QString, name);
        QFETCH(QString, english);
        QFETCH(QString, german);
        MainWindowFixture main;
        main.Start();
        const auto accessibleName = [&] {
            return QAccessible::queryAccessibleInterface(&main.Get<QWidget>(name))->text(QAccessible::Name);
        };
        QCOMPARE(accessibleName(), english);
        main.Click(u"optLanguageIsGerman"_s);
        QCOMPARE(accessibleName(), german);
    }

    void LabelsThatArePressedAreButtonsAndLinksToAScreenReader() {
        MainWindowFixture main;
        main.Start();
        const auto interface = [&main](const char* name) {
            return QAccessible::queryAccessibleInterface(&main.Get<QLabel>(name));
        };
        QCOMPARE(interface("lblTodaysDate")->role(), QAccessible::Button);
        QCOMPARE(interface("lblOnlineDocumentation")->role(), QAccessible::Link);
        QCOMPARE(interface("lblHyphen")->role(), QAccessible::StaticText);
        QAccessibleActionInterface* actions = interface("lblTodaysDate")->actionInterface();
        QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
        actions->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(main.Get<QLabel>(u"lblTodaysDate"_s).text(), u"Today is Friday, 2026-W47-5 ISO"_s);
    }

    void NoWordIsClipped_data() {
        QTest::addColumn<QString>("language");
        QTest::addColumn<double>("points");
        for (const double points : {9.0, 10.0, 13.5, 18.0}) {
            QTest::addRow("English %g pt", points) << "optLanguageIsEnglish" << points;
            QTest::addRow("German %g pt", points) << "optLanguageIsGerman" << points;
        }
    }
    void NoWordIsClipped() {
        QFETCH(QString, language);
        QFETCH(double, points);
        QFont font = QApplication::font();
        font.setPointSizeF(points);
        QApplication::setFont(font);
        MainWindowFixture main;
        main.Start();
        main.Click(language);
        // As small as it goes, on a Thursday, the longest name of a day in German.
        main.fake.clock.today = {2026, 11, 19};
        main.Click(u"lblTodaysDate"_s);
        main.Click(u"lblTodaysDate"_s, Qt::RightButton);
        QCoreApplication::processEvents();
        main.window->resize(main.window->minimumSizeHint());
        QCoreApplication::processEvents();
        const QWidget& page = main.Get<ScrollingPage>(u"scrollingPage"_s).Page();
        int checked = 0;
        for (QWidget* control : main.window->findChildren<QWidget*>()) {
            const bool hasWords = qobject_cast<QAbstractButton*>(control) || qobject_cast<QLabel*>(control);
            if (!hasWords || qobject_cast<QToolButton*>(control)) continue;
            ++checked;
            const QSize needed = control->minimumSizeHint();
            QVERIFY2(control->width() >= needed.width() && control->height() >= needed.height(),
                     qPrintable(control->objectName()));
            const QString words = Caption(*control);
            QVERIFY2(control->width() >= control->fontMetrics().size(0, words).width(), qPrintable(words));
            QVERIFY2(page.rect().contains(QRect(control->mapTo(&page, QPoint()), control->size())),
                     qPrintable(control->objectName()));
        }
        QVERIFY(checked > 55);
    }

    void FitsASmallScreen_data() { BothLanguages(); }
    void FitsASmallScreen() {
        QFETCH(QString, language);
        MainWindowFixture main;
        main.Start();
        main.Click(language);
        const QSize least = main.Get<ScrollingPage>(u"scrollingPage"_s).Page().minimumSizeHint();
        QVERIFY2(least.width() <= 1000 && least.height() <= 560,
                 qPrintable(u"%1 x %2"_s.arg(least.width()).arg(least.height())));
    }

    void TheOutputTakesTheRoomOfALargerWindow() {
        MainWindowFixture main;
        main.Start();
        main.window->resize(1000, 600);
        const QRect before = main.Get<QWidget>(u"txbOutput"_s).geometry();
        const QSize boxBefore = main.Get<QWidget>(u"txbFirstDate"_s).size();
        main.window->resize(1000, 750);
        const QRect after = main.Get<QWidget>(u"txbOutput"_s).geometry();
        QCOMPARE(after.topLeft(), before.topLeft());
        QCOMPARE(after.height(), before.height() + 150);
        QCOMPARE(main.Get<QWidget>(u"txbFirstDate"_s).size(), boxBefore);
    }
};

QTEST_MAIN(CaptionsTest)
#include "CaptionsTest.moc"
