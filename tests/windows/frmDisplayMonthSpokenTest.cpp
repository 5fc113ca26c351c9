// What a screen reader meets in the month window beyond what is seen.

#include <QAccessible>

#include "tests/windows/GroupTesting.h"
#include "tests/windows/MonthWindow.h"
#include "windows/frmDisplayMonth.h"

namespace calvoro {

class frmDisplayMonthSpokenTest : public QObject {
    Q_OBJECT

private:
    static QAccessibleInterface& Of(QWidget& widget) {
        return *QAccessible::queryAccessibleInterface(&widget);
    }

private Q_SLOTS:
    void AnOptionsGroupIsToldOnce_data() {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("group");
        QTest::newRow("Common Era") << "optCommonEra"
                                    << "Calendar";
        QTest::newRow("Julian") << "optJulian"
                                << "Calendar";
        QTest::newRow("Sunday") << "optSunday"
                                << "First day of week";
        QTest::newRow("Monday") << "optMonday"
                                << "First day of week";
    }
    void AnOptionsGroupIsToldOnce() {
        QFETCH(const QString, option);
        QFETCH(const QString, group);
        MonthWindow month;
        month.ShowMonth("2024", 2);
        CheckGroupIsToldOnce(month.Option(qPrintable(option)), group);
    }

    // A reader takes the label of the list for its name, and has the month that is chosen from nowhere else.
    void TheListTellsTheChosenMonth() {
        MonthWindow month;
        month.ShowMonth("2024", 2);
        const auto described = [&month] { return Of(month.Months()).text(QAccessible::Description); };
        QCOMPARE(described(), QStringLiteral("February; an arrow key opens the list"));
        month.Months().setCurrentIndex(11);
        QCOMPARE(described(), QStringLiteral("December; an arrow key opens the list"));
        month.Button("cmdDisplayNextMonth0").click();
        QCOMPARE(described(), QStringLiteral("January; an arrow key opens the list"));
        month.Year().setText(QStringLiteral("no year"));
        month.Months().setCurrentIndex(2);
        QCOMPARE(described(), QStringLiteral("March; an arrow key opens the list"));
        QCOMPARE(month.fake.boxes.shown.size(), std::size_t{1});
        month.texts.InterfaceLanguage = LanguageGerman;
        month.window.SetLanguageDependentText();
        QCOMPARE(described(), QStringLiteral("Maerz; eine Pfeiltaste oeffnet die Liste"));
    }
};

}  // namespace calvoro

QTEST_MAIN(calvoro::frmDisplayMonthSpokenTest)
#include "frmDisplayMonthSpokenTest.moc"
