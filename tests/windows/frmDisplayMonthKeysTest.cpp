// The month window by keyboard and screen reader.

#include <QAbstractItemView>

#include "tests/windows/September.h"

namespace calvoro {

class frmDisplayMonthKeysTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EscInTheOpenListOfMonthsClosesTheListOnly() {
        September month;
        month.Months().setFocus();
        month.Months().showPopup();
        QVERIFY(QTest::qWaitFor([&] { return month.Months().view()->isVisible(); }));
        QTest::keyClick(month.Months().view(), Qt::Key_Escape);
        QVERIFY(!month.Months().view()->isVisible());
        QVERIFY(month.window.isVisible());
        QCOMPARE(month.ControlsTell(), QStringLiteral("September 2024"));
        QTest::keyClick(&month.Months(), Qt::Key_Escape);
        QVERIFY(!month.window.isVisible());
    }

    void EscClosesTheWindowFromEveryControl() {
        for (const char* name :
             {"cboMonths", "txbYear", "cmdDisplay", "optCommonEra", "txbMonth", "chkWithYear", "cmdClose"}) {
            September month;
            month.Of<QWidget>(name).setFocus();
            QTest::keyClick(month.window.focusWidget(), Qt::Key_Escape);
            QVERIFY2(!month.window.isVisible(), name);
        }
    }

    void AKeyOnTheClosedListOfMonthsOpensIt_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("chosen");
        QTest::newRow("Down") << int{Qt::Key_Down} << QString() << QStringLiteral("October");
        QTest::newRow("Up") << int{Qt::Key_Up} << QString() << QStringLiteral("October");
        QTest::newRow("Home") << int{Qt::Key_Home} << QString() << QStringLiteral("October");
        QTest::newRow("letter") << int{Qt::Key_F} << QStringLiteral("f") << QStringLiteral("March");
    }
    void AKeyOnTheClosedListOfMonthsOpensIt() {
        QFETCH(const int, key);
        QFETCH(const QString, typed);
        QFETCH(const QString, chosen);
        September month;
        month.Months().setFocus();
        const std::string before = month.Grid();
        QTest::sendKeyEvent(QTest::Click, &month.Months(), static_cast<Qt::Key>(key), typed, Qt::NoModifier);
        QVERIFY(month.Months().view()->isVisible());
        QCOMPARE(month.Grid(), before);
        QCOMPARE(month.Months().currentText(), QStringLiteral("September"));
        // The choice, and with it the drawing and the focus on Close, comes with Enter.
        QTest::keyClick(month.Months().view(), Qt::Key_Down);
        QCOMPARE(month.Grid(), before);
        QTest::keyClick(month.Months().view(), Qt::Key_Return);
        QCOMPARE(month.Months().currentText(), chosen);
        QVERIFY(month.Grid() != before);
        QCOMPARE(month.window.focusWidget(), &month.Button("cmdClose"));
    }

    void AMonthThatComesUpIsAnnouncedOnceWithItsHeading() {
        MonthWindow month;
        auto& announcer = month.Of<QWidget>("announcer");
        QStringList announced;
        const auto take = [&] {
            announced.push_back(announcer.accessibleName());
            announcer.setAccessibleName(QString());
        };
        month.ShowMonth("2024", 9);
        // A reader tells first which window it is in.
        QTRY_VERIFY(!announcer.accessibleName().isEmpty());
        take();
        ClickOn(month.Button("cmdDisplayNextMonth0"));
        take();
        QTest::keyClick(&month.window, Qt::Key_PageUp);
        take();
        QTest::keyClick(&month.window, Qt::Key_PageDown, Qt::ControlModifier);
        take();
        month.Option("optJulian").click();
        take();
        // The same month with another first day of the week, drawn twice, is no other month.
        month.Option("optMonday").click();
        take();
        month.Year().setText(QStringLiteral("x"));
        ClickOn(month.Button("cmdDisplay"));
        take();
        const QStringList expected = {QStringLiteral("September 2024 (Common Era Calendar)"),
                                      QStringLiteral("October 2024 (Common Era Calendar)"),
                                      QStringLiteral("September 2024 (Common Era Calendar)"),
                                      QStringLiteral("September 2025 (Common Era Calendar)"),
                                      QStringLiteral("September 2025 (Julian Calendar)"),
                                      QString(),
                                      QString()};
        QCOMPARE(announced, expected);
        QCOMPARE(month.Of<QPlainTextEdit>("txbMonth").accessibleName(), expected[4]);
    }

    void TheGridIsWalkedLineByLine() {
        September month;
        auto& grid = month.Of<QPlainTextEdit>("txbMonth");
        grid.setFocus();
        QTest::keyClick(&grid, Qt::Key_Down);
        QCOMPARE(grid.textCursor().blockNumber(), 1);
        QTest::keyClick(&grid, Qt::Key_Down);
        QCOMPARE(grid.textCursor().blockNumber(), 2);
    }

    void IsUsableByKeyboardAndScreenReader() {
        September month;
        CheckAccessibleNames(month.window);
        QCOMPARE(month.Year().accessibleName(), QStringLiteral("Year"));
        QCOMPARE(month.Months().accessibleName(), QStringLiteral("Month"));
        const QStringList order =
            QStringLiteral(
                "cboMonths txbYear cmdDisplay optCommonEra optMonday txbMonth cmdDisplayNextMonth1 "
                "cmdDisplayNextMonth0 cmdCopyToClipboard cmdClose cmdShowHideISO chkWithYear txbISODates")
                .split(QLatin1Char(' '));
        month.ShowIso();
        QCOMPARE(TabOrderFrom(month.Months()), order);
        month.Button("cmdDisplayNextMonth0").setFocus();
        QTest::keyClick(&month.Button("cmdDisplayNextMonth0"), Qt::Key_Return);
        QCOMPARE(month.ControlsTell(), QStringLiteral("October 2024"));
    }
};

}  // namespace calvoro

QTEST_MAIN(calvoro::frmDisplayMonthKeysTest)
#include "frmDisplayMonthKeysTest.moc"
