#include "windows/frmDisplayMonth.h"

#include <QAbstractItemView>
#include <QIcon>
#include <QPixmap>
#include <QScreen>
#include <QSignalSpy>
#include <utility>

#include "tests/windows/MonthWindow.h"
#include "windows/Twips.h"

namespace calvoro {

const ShownMessage kPleaseSpecifyYear{"Please specify year", "Invalid input", MessageIcon::NoIcon};

class frmDisplayMonthTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void StartsShortWithTheFactoryOptions() {
        MonthWindow month;
        QCOMPARE(month.Months().count(), 12);
        QCOMPARE(month.Months().currentText(), QStringLiteral("January"));
        QCOMPARE(month.Months().itemText(11), QStringLiteral("December"));
        QVERIFY(month.Of<QCheckBox>("chkWithYear").isChecked());
        QVERIFY(!month.IsoBoxShown());
        QCOMPARE(month.IsoCaption(), QStringLiteral("Display ISO Week dates"));
        QVERIFY(month.window.GetWeekStart() == WeekStart::Sunday);
        QVERIFY(month.window.GetCalendar() == CalendarNumber::CE);
        QVERIFY(!month.window.testAttribute(Qt::WA_QuitOnClose));
        QVERIFY(!month.window.isVisible());
    }

    void TakesTheMainWindowsIcon() {
        FakePlatform fake;
        Texts texts;
        QWidget mainWindow;
        QPixmap picture(16, 16);
        picture.fill(Qt::red);
        mainWindow.setWindowIcon(QIcon(picture));
        const frmDisplayMonth window(fake.platform, texts, mainWindow, [] { return true; });
        QCOMPARE(window.windowIcon().cacheKey(), mainWindow.windowIcon().cacheKey());
    }

    void DrawsNothingWhileItIsHidden() {
        MonthWindow month;
        month.Year().setText(QStringLiteral("2024"));
        month.window.DisplayMonth();
        month.window.SetWeekStart(WeekStart::Monday);
        month.Option("optJulian").click();
        QCOMPARE(month.Grid(), std::string());
        QVERIFY(month.fake.boxes.shown.empty());
    }

    void ShowMonthSetsTheControlsAndDrawsOnce() {
        MonthWindow month;
        const QSignalSpy drawings(&month.Of<QPlainTextEdit>("txbMonth"), &QPlainTextEdit::textChanged);
        month.ShowMonth("1900", 2, CalendarNumber::JC);
        QCOMPARE(drawings.count(), 1);
        QCOMPARE(month.ControlsTell(), QStringLiteral("February 1900"));
        QVERIFY(month.window.GetCalendar() == CalendarNumber::JC);
        QCOMPARE(month.window.focusWidget(), &month.Button("cmdClose"));
    }

    void StandsBesideTheMainWindowWhenItWasHidden() {
        MonthWindow month;
        const QPoint corner = month.mainWindow.frameGeometry().topLeft();
        const QPoint beside = corner + QPoint(TwipsToPixels(4000), TwipsToPixels(1710));
        month.ShowMonth("2024", 9);
        QCOMPARE(month.window.pos(), beside);

        month.window.move(5, 6);
        month.ShowMonth("2024", 10);
        QCOMPARE(month.window.pos(), QPoint(5, 6));

        month.window.close();
        month.ShowMonth("2024", 11);
        QCOMPARE(month.window.pos(), beside);
    }

    void StaysOnTheScreen() {
        MonthWindow month;
        const QRect screen = month.window.screen()->availableGeometry();
        month.mainWindow.move(screen.bottomRight() - QPoint(30, 30));
        month.ShowMonth("2024", 9);
        QVERIFY(screen.contains(month.window.frameGeometry()));
    }

    void ComesBackWhenItWasMinimised() {
        MonthWindow month;
        month.ShowMonth("2024", 9);
        month.window.showMinimized();
        month.window.ShowMonth("2024", 10, CalendarNumber::CE);
        QVERIFY(!month.window.isMinimized());
        QCOMPARE(month.ControlsTell(), QStringLiteral("October 2024"));
    }

    void AsksForTheYear_data() {
        QTest::addColumn<QString>("year");
        QTest::newRow("empty") << QString();
        QTest::newRow("blanks") << QStringLiteral("   ");
        QTest::newRow("letters") << QStringLiteral("year");
        QTest::newRow("fraction") << QStringLiteral("2024.5");
        QTest::newRow("thousands") << QStringLiteral("2,024");
        QTest::newRow("beyond 32 bits") << QStringLiteral("99999999999");
        QTest::newRow("beyond what can be shown") << QStringLiteral("6000000");
        QTest::newRow("before what can be shown") << QStringLiteral("-6000000");
    }

    void AsksForTheYear() {
        QFETCH(const QString, year);
        MonthWindow month;
        month.ShowMonth("2024", 9);
        const std::string before = month.Grid();
        month.Year().setText(year);
        ClickOn(month.Button("cmdDisplay"));
        QCOMPARE(month.fake.boxes.shown.size(), std::size_t{1});
        QVERIFY(month.fake.boxes.shown[0] == kPleaseSpecifyYear);
        QCOMPARE(month.Grid(), before);
        QCOMPARE(month.Year().text(), year);
    }

    void AsksForTheYearInGerman() {
        MonthWindow month;
        month.texts.InterfaceLanguage = LanguageGerman;
        month.ShowMonth("", 9);
        const ShownMessage expected{"Spezifizieren Sie bitte das Jahr", "Ungueltige Eingabe",
                                    MessageIcon::NoIcon};
        QCOMPARE(month.fake.boxes.shown.size(), std::size_t{1});
        QVERIFY(month.fake.boxes.shown[0] == expected);
        QCOMPARE(month.Grid(), std::string());
    }

    void EveryControlThatChangesWhatIsShownDraws() {
        MonthWindow month;
        month.ShowMonth("2024", 9);
        const QSignalSpy drawings(&month.Of<QPlainTextEdit>("txbMonth"), &QPlainTextEdit::textChanged);
        auto drawn = [&drawings, seen = 0]() mutable {
            return static_cast<int>(drawings.count()) -
                   std::exchange(seen, static_cast<int>(drawings.count()));
        };

        month.Year().setText(QStringLiteral("2023"));
        QCOMPARE(drawn(), 0);
        ClickOn(month.Button("cmdDisplay"));
        QCOMPARE(drawn(), 1);
        QTest::keyClick(&month.Year(), Qt::Key_Return);
        QCOMPARE(drawn(), 1);
        QTest::keyClick(&month.Year(), Qt::Key_Enter);
        QCOMPARE(drawn(), 1);
        QTest::keyClick(&month.Months(), Qt::Key_Down);
        QTest::keyClick(month.Months().view(), Qt::Key_Down);
        QCOMPARE(drawn(), 0);
        QTest::keyClick(month.Months().view(), Qt::Key_Return);
        QCOMPARE(drawn(), 1);
        QCOMPARE(month.ControlsTell(), QStringLiteral("October 2023"));
        ClickOnMark(month.Option("optJulian"));
        QCOMPARE(drawn(), 1);
        ClickOnMark(month.Option("optCommonEra"));
        QCOMPARE(drawn(), 1);
        ClickOn(month.Button("cmdDisplayNextMonth0"));
        QCOMPARE(drawn(), 1);
        ClickOn(month.Button("cmdDisplayNextMonth1"));
        QCOMPARE(drawn(), 1);
        ClickOnMark(month.Of<QCheckBox>("chkWithYear"));
        QCOMPARE(drawn(), 0);
        ClickOn(month.Button("cmdCopyToClipboard"));
        QCOMPARE(drawn(), 0);
        QCOMPARE(month.window.focusWidget(), &month.Button("cmdClose"));
    }

    void DeliberatelyDrawsTwiceForMonday() {
        MonthWindow month;
        month.ShowMonth("2024", 9);
        const QSignalSpy drawings(&month.Of<QPlainTextEdit>("txbMonth"), &QPlainTextEdit::textChanged);
        ClickOnMark(month.Option("optMonday"));
        QCOMPARE(drawings.count(), 2);
        ClickOnMark(month.Option("optSunday"));
        QCOMPARE(drawings.count(), 3);
    }

    void AClickOnTheOptionThatIsChosenDoesNothing() {
        MonthWindow month;
        month.ShowMonth("2024", 9);
        const QSignalSpy drawings(&month.Of<QPlainTextEdit>("txbMonth"), &QPlainTextEdit::textChanged);
        ClickOnMark(month.Option("optSunday"));
        ClickOnMark(month.Option("optCommonEra"));
        QCOMPARE(drawings.count(), 0);
    }

    void SettersRunNoHandlerButKeepTheGridInStep() {
        MonthWindow month;
        month.ShowMonth("2024", 9);
        month.Year().setFocus();
        const QSignalSpy drawings(&month.Of<QPlainTextEdit>("txbMonth"), &QPlainTextEdit::textChanged);
        month.window.SetWeekStart(WeekStart::Monday);
        QCOMPARE(drawings.count(), 1);
        QVERIFY(month.window.GetWeekStart() == WeekStart::Monday);
        QCOMPARE(month.Grid().substr(0, 5), std::string(" Mon "));
        month.window.SetCalendar(CalendarNumber::JC);
        QVERIFY(month.window.GetCalendar() == CalendarNumber::JC);
        QCOMPARE(month.window.focusWidget(), &month.Year());

        // A year that cannot be read is not complained of: nobody asked for the month.
        month.Year().setText(QStringLiteral("x"));
        month.window.SetCalendar(CalendarNumber::CE);
        QVERIFY(month.fake.boxes.shown.empty());
    }

    void StepsToTheNextAndThePreviousMonth_data() {
        QTest::addColumn<QString>("year");
        QTest::addColumn<int>("month");
        QTest::addColumn<QString>("next");
        QTest::addColumn<QString>("previous");
        const auto row = [](const char* year, int month, const char* next, const char* previous) {
            QTest::newRow(next) << QString::fromLatin1(year) << month << QString::fromLatin1(next)
                                << QString::fromLatin1(previous);
        };
        row("2024", 6, "July 2024", "May 2024");
        row("2024", 1, "February 2024", "December 2023");
        row("2024", 12, "January 2025", "November 2024");
        row("1", 1, "February 1", "December 0");
        row("-1", 12, "January 0", "November -1");
        row("0", 1, "February 0", "December -1");
    }

    void StepsToTheNextAndThePreviousMonth() {
        QFETCH(const QString, year);
        QFETCH(const int, month);
        QFETCH(const QString, next);
        QFETCH(const QString, previous);
        MonthWindow shown;
        shown.ShowMonth(year.toStdString(), month);
        const std::string grid = shown.Grid();
        ClickOn(shown.Button("cmdDisplayNextMonth0"));
        QCOMPARE(shown.ControlsTell(), next);
        QVERIFY(shown.Grid() != grid);
        ClickOn(shown.Button("cmdDisplayNextMonth1"));
        QCOMPARE(shown.Grid(), grid);
        ClickOn(shown.Button("cmdDisplayNextMonth1"));
        QCOMPARE(shown.ControlsTell(), previous);
        QVERIFY(shown.Grid() != grid);
    }

    void SteppingTrimsTheYear() {
        MonthWindow month;
        month.ShowMonth("2024", 9);
        month.Year().setText(QStringLiteral("  2024 "));
        ClickOn(month.Button("cmdDisplayNextMonth0"));
        QCOMPARE(month.ControlsTell(), QStringLiteral("October 2024"));
    }

    void SteppingWithAnEmptyYearDoesNothing() {
        MonthWindow month;
        month.ShowMonth("2024", 9);
        const std::string grid = month.Grid();
        for (const char* blanks : {"", "  "}) {
            month.Year().setText(QLatin1String(blanks));
            ClickOn(month.Button("cmdDisplayNextMonth0"));
            ClickOn(month.Button("cmdDisplayNextMonth1"));
            QCOMPARE(month.ControlsTell(), QStringLiteral("September "));
        }
        QCOMPARE(month.Grid(), grid);
        QVERIFY(month.fake.boxes.shown.empty());
    }

    void SteppingToAYearThatCannotBeReadAsksForIt() {
        MonthWindow month;
        month.ShowMonth("2024", 1);
        month.Year().setText(QStringLiteral("x"));
        ClickOn(month.Button("cmdDisplayNextMonth1"));
        QCOMPARE(month.fake.boxes.shown.size(), std::size_t{1});
        QVERIFY(month.fake.boxes.shown[0] == kPleaseSpecifyYear);
        QCOMPARE(month.ControlsTell(), QStringLiteral("January x"));

        month.Year().setText(QStringLiteral("-2147483648"));
        ClickOn(month.Button("cmdDisplayNextMonth1"));
        QCOMPARE(month.fake.boxes.shown.size(), std::size_t{2});
        QCOMPARE(month.ControlsTell(), QStringLiteral("January -2147483648"));
    }

    void PageKeysStepMonthsAndYearsFromEveryControl_data() {
        QTest::addColumn<QString>("control");
        for (const char* name : {"cboMonths", "txbYear", "cmdDisplay", "txbMonth", "optCommonEra",
                                 "chkWithYear", "cmdClose", "cmdDisplayNextMonth0"}) {
            QTest::newRow(name) << QString::fromLatin1(name);
        }
    }

    void PageKeysStepMonthsAndYearsFromEveryControl() {
        QFETCH(const QString, control);
        MonthWindow month;
        month.ready = false;  // leaves every control enabled
        month.ShowMonth("2024", 1);
        const auto press = [&](int key, Qt::KeyboardModifiers modifiers) {
            auto& focused = month.Of<QWidget>(control.toLatin1().constData());
            focused.setFocus();
            QTest::keyClick(&focused, static_cast<Qt::Key>(key), modifiers);
            return month.ControlsTell();
        };
        QCOMPARE(press(Qt::Key_PageUp, Qt::NoModifier), QStringLiteral("December 2023"));
        QCOMPARE(press(Qt::Key_PageDown, Qt::NoModifier), QStringLiteral("January 2024"));
        QCOMPARE(press(Qt::Key_PageUp, Qt::ControlModifier), QStringLiteral("January 2023"));
        QCOMPARE(press(Qt::Key_PageDown, Qt::ControlModifier), QStringLiteral("January 2024"));
        month.Year().clear();
        QCOMPARE(press(Qt::Key_PageUp, Qt::ControlModifier), QStringLiteral("January "));
        QVERIFY(month.fake.boxes.shown.empty());
    }

    void OtherKeysAreTypedIntoTheYear() {
        MonthWindow month;
        month.ShowMonth("2024", 9);
        month.Year().setFocus();
        month.Year().selectAll();
        QTest::keyClicks(&month.Year(), QStringLiteral("-1x "));
        QCOMPARE(month.Year().text(), QStringLiteral("-1x "));
    }
};

}  // namespace calvoro

QTEST_MAIN(calvoro::frmDisplayMonthTest)
#include "frmDisplayMonthTest.moc"
