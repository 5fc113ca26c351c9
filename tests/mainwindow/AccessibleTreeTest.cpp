// What assistive tools meet in the main window: the role, the name and the description of every control, and
// what is told while the focus is elsewhere.

#include <QAccessible>
#include <QToolButton>

#include "tests/mainwindow/MainWindowFixture.h"
#include "tests/windows/list/ListJobs.h"
#include "windows/frmDisplayMonth.h"
#include "windows/frmHelp.h"
#include "windows/frmLargeDisplay.h"
#include "windows/frmList.h"

using namespace calvoro;

class AccessibleTreeTest : public QObject {
    Q_OBJECT

private:
    static QAccessibleInterface& Of(QWidget& widget) {
        return *QAccessible::queryAccessibleInterface(&widget);
    }
    static QAccessibleInterface& Of(const MainWindowFixture& main, const QString& name) {
        return Of(main.Get<QWidget>(name));
    }

private Q_SLOTS:
    void EveryControlHasItsRole_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("role");
        const auto rows = [](QAccessible::Role role, const QStringList& names) {
            for (const QString& name : names) QTest::newRow(qPrintable(name)) << name << int{role};
        };
        rows(QAccessible::Grouping, {"Frame3", "Frame4", "Frame5", "Frame6", "frmDateFormat",
                                     "frmDateSeparator", "frmLanguage", "VScroll0", "VScroll1"});
        rows(QAccessible::EditableText, {"txbFirstDate", "txbDateDiff", "txbSecondDate", "txbOutput"});
        rows(QAccessible::RadioButton,
             {"optFirstDateIsCE", "optSecondDateIsLPW", "optDays", "optLanguageIsGerman", "optThousSepNone",
              "optDateFormatIsYMD", "optSeparatorIsDot"});
        rows(QAccessible::CheckBox,
             {"chkIncludeFirstDate", "chkIncludeWeekends", "chkVerbose", "chkHyphen", "chkSaveOutput"});
        rows(QAccessible::Button,
             {"cmdCompute", "cmdToday0", "cmdClearDateDiff", "cmdMoveSecondDateToFirst", "cmdReset",
              "cmdQuit", "cmdHelp", "cmdDisplayMonth", "cmdEnlarge", "lblTodaysDate", "lblWeekFromToday"});
        rows(QAccessible::Link, {"lblOnlineDocumentation", "lblVantorelSystems"});
        rows(QAccessible::StaticText, {"lblFirstDate", "lblReading", "lblThisIsA0", "lblHyphen", "lblOr"});
        rows(QAccessible::Notification, {"announcer"});
    }
    void EveryControlHasItsRole() {
        QFETCH(QString, name);
        QFETCH(int, role);
        MainWindowFixture main;
        main.Start();
        QCOMPARE(int{Of(main, name).role()}, role);
    }

    void NothingInsideAWindowLooksLikeAWindow() {
        MainWindowFixture main;
        main.Start();
        int separators = 0;
        for (QWidget* control : main.window->findChildren<QWidget*>()) {
            const QAccessible::Role role = Of(*control).role();
            QVERIFY2(role != QAccessible::Border && role != QAccessible::Window,
                     qPrintable(control->objectName()));
            if (role == QAccessible::Separator) ++separators;
        }
        QCOMPARE(separators, 2);
    }

    void EveryWindowIsOneWithItsTitle() {
        MainWindowFixture main;
        Settings settings;
        settings.output = std::string(200, 'x');
        main.StartWith(settings);
        main.Button(u"cmdEnlarge"_s).setEnabled(true);
        main.Click(u"cmdEnlarge"_s);
        main.Click(u"cmdHelp"_s);
        main.Click(u"cmdDisplayMonth"_s);
        main.Activate();
        main.Press(Qt::Key_L, Qt::ControlModifier);
        const auto check = [](QWidget& window, const QString& title) {
            QCOMPARE(Of(window).role(), QAccessible::Window);
            QCOMPARE(Of(window).text(QAccessible::Name), title);
        };
        check(*main.window, main.window->windowTitle());
        check(*OpenedWindow<frmDisplayMonth>(), u"Display month"_s);
        check(*OpenedWindow<frmHelp>(), u"Calvoro Help"_s);
        check(*OpenedWindow<frmLargeDisplay>(), u"Output window"_s);
        check(*OpenedWindow<frmList>(), u"Calvoro List"_s);
    }

    void TheListIsATableWithItsHeads() {
        MainWindowFixture main;
        main.Start();
        main.Press(Qt::Key_L, Qt::ControlModifier);
        auto* list = OpenedWindow<frmList>();
        list->Show({u"2024-02-29\nx\n"_s, QString()}, ListSide::FirstDates);
        WaitForJobs(*list);
        QAccessibleInterface& table = Of(*list->findChild<QWidget*>(u"tblList"_s));
        QCOMPARE(table.role(), QAccessible::Table);
        QCOMPARE(table.text(QAccessible::Name), u"List"_s);
        QVERIFY(!table.text(QAccessible::Description).isEmpty());
        QAccessibleTableInterface* cells = table.tableInterface();
        QVERIFY(cells != nullptr);
        QCOMPARE(cells->rowCount(), 2);
        QCOMPARE(cells->columnDescription(1), u"Read as"_s);
        QCOMPARE(cells->cellAt(0, 3)->text(QAccessible::Name), u"Thursday"_s);
        const QAccessibleInterface& group = *Of(*list->findChild<QWidget*>(u"optLinesAreFirst"_s)).parent();
        QCOMPARE(group.role(), QAccessible::Grouping);
        QCOMPARE(group.text(QAccessible::Name), u"The lines are"_s);
    }

    void EveryGroupHasAName_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("english");
        QTest::addColumn<QString>("german");
        const auto row = [](const char* name, const char* english, const char* german) {
            QTest::newRow(name) << name << english << german;
        };
        row("Frame3", "First date: Calendar", "Erstes Datum: Kalender");
        row("Frame4", "Second date: Calendar", "Zweites Datum: Kalender");
        row("Frame5", "Thousands separator", "Tausendertrennzeichen");
        row("Frame6", "Date difference", "Datumsdifferenz");
        row("frmDateFormat", "CE/JC date format", "CE/JC-Datumsformat");
        row("frmDateSeparator", "CE/JC date separator", "CE/JC-Datumstrennzeichen");
        row("frmLanguage", "Language", "Sprache");
    }
    void EveryGroupHasAName() {
        QFETCH(QString, name);
        QFETCH(QString, english);
        QFETCH(QString, german);
        MainWindowFixture main;
        main.Start();
        QCOMPARE(Of(main, name).text(QAccessible::Name), english);
        main.Click(u"optLanguageIsGerman"_s);
        QCOMPARE(Of(main, name).text(QAccessible::Name), german);
    }

    void ButtonsWhoseCaptionSaysTooLittleAreDescribed_data() {
        QTest::addColumn<QString>("language");
        QTest::newRow("English") << "optLanguageIsEnglish";
        QTest::newRow("German") << "optLanguageIsGerman";
    }
    void ButtonsWhoseCaptionSaysTooLittleAreDescribed() {
        QFETCH(QString, language);
        MainWindowFixture main;
        main.Start();
        main.Click(language);
        QStringList descriptions;
        for (const char* name : {"cmdToday0", "cmdMoveSecondDateToFirst", "cmdCompute", "cmdEnlarge",
                                 "cmdDisplayMonth", "cmdReset", "lblTodaysDate"}) {
            descriptions.push_back(Of(main, name).text(QAccessible::Description));
            QVERIFY2(!descriptions.back().isEmpty(), name);
        }
        QCOMPARE(descriptions.removeDuplicates(), 0);
    }

    void EveryControlThatTakesTheFocusCanBeGivenItByATool() {
        MainWindowFixture main;
        main.Start();
        for (const char* name : {"cmdClearOutputWindow", "cmdCopyToClipboard", "cmdEnlarge"}) {
            main.Button(name).setEnabled(true);
        }
        main.Get<QTimer>(u"Clock"_s).stop();
        int given = 0;
        for (QWidget* control : main.window->findChildren<QWidget*>()) {
            if (control->focusPolicy() == Qt::NoFocus || control->focusProxy() != nullptr) continue;
            if (control->objectName().startsWith("qt_"_L1)) continue;
            QAccessibleActionInterface* actions = Of(*control).actionInterface();
            QVERIFY2(actions != nullptr, qPrintable(control->objectName()));
            QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::setFocusAction()));
            actions->doAction(QAccessibleActionInterface::setFocusAction());
            QCOMPARE(main.Focused(), control->objectName());
            ++given;
        }
        QCOMPARE(given, 54);
    }

    void ATextIsSetAsIfItHadBeenThere() {
        MainWindowFixture main;
        main.Start();
        Of(main, u"txbFirstDate"_s).setText(QAccessible::Value, u"2024-02-29"_s);
        Of(main, u"txbDateDiff"_s).setText(QAccessible::Value, u"1"_s);
        QCOMPARE(main.Boxes(), QStringList({"2024-02-29", "1", ""}));
        QCOMPARE(Of(main, u"txbFirstDate"_s).text(QAccessible::Description),
                 u"First date: Thursday, 29 February 2024 CE, day number 2460370"_s);
    }

    void TheArrowsAreTwoNamedButtonsThatStep() {
        MainWindowFixture main;
        main.Start();
        main.Fill(u"2024-02-29"_s, QString(), u"2024-02-29"_s);
        const auto press = [&](const QString& spinner, const QString& arrow, const QString& name) {
            auto* button = main.Get<QWidget>(spinner).findChild<QToolButton*>(arrow);
            QCOMPARE(Of(*button).role(), QAccessible::Button);
            QCOMPARE(Of(*button).text(QAccessible::Name), name);
            Of(*button).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        };
        press(u"VScroll0"_s, u"up"_s, u"First date: +1 Day"_s);
        QTRY_COMPARE(main.Text(u"txbFirstDate"_s), u"2024-03-01"_s);
        press(u"VScroll1"_s, u"down"_s, u"Second date: -1 Day"_s);
        QTRY_COMPARE(main.Text(u"txbSecondDate"_s), u"2024-02-28"_s);
    }

    void ACalendarsKeyLeadsToTheCalendarThatIsChosen_data() {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("chosen");
        QTest::newRow("first") << "lblThisIsA0"
                               << "optFirstDateIsISO";
        QTest::newRow("second") << "lblThisIsA1"
                                << "optSecondDateIsORD";
    }
    void ACalendarsKeyLeadsToTheCalendarThatIsChosen() {
        QFETCH(QString, label);
        QFETCH(QString, chosen);
        MainWindowFixture main;
        Settings settings;
        settings.firstCalendar = CalendarNumber::ISO;
        settings.secondCalendar = CalendarNumber::ORD;
        main.StartWith(settings);
        const QString caption = main.Get<QLabel>(label).text();
        const qsizetype mark = caption.indexOf(u'&');
        QVERIFY(mark >= 0);
        QTest::keyClick(main.window.get(), caption.at(mark + 1).toLatin1(), Qt::AltModifier);
        QTRY_COMPARE(main.Focused(), chosen);
        QCOMPARE(main.Boxes(), QStringList({"", "", ""}));
    }
};

QTEST_MAIN(AccessibleTreeTest)
#include "AccessibleTreeTest.moc"
