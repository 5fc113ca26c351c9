#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QScopeGuard>
#include <QScreen>
#include <QScrollBar>
#include <QTimer>

#include "tests/windows/September.h"

namespace calvoro {
namespace {

// clang-format off
const std::string kIsoDates = Lines({
    "       M        T        W        T        F        S        S",
    "4-W35-1  4-W35-2  4-W35-3  4-W35-4  4-W35-5  4-W35-6  4-W35-7",
    "4-W36-1  4-W36-2  4-W36-3  4-W36-4  4-W36-5  4-W36-6  4-W36-7",
    "4-W37-1  4-W37-2  4-W37-3  4-W37-4  4-W37-5  4-W37-6  4-W37-7",
    "4-W38-1  4-W38-2  4-W38-3  4-W38-4  4-W38-5  4-W38-6  4-W38-7",
    "4-W39-1  4-W39-2  4-W39-3  4-W39-4  4-W39-5  4-W39-6  4-W39-7",
    "4-W40-1  4-W40-2  4-W40-3  4-W40-4  4-W40-5  4-W40-6  4-W40-7"});
const std::string kIsoDatesWithoutYear = Lines({
    " Mon    Tue    Wed    Thu    Fri    Sat    Sun   ",
    "W35-1  W35-2  W35-3  W35-4  W35-5  W35-6  W35-7",
    "W36-1  W36-2  W36-3  W36-4  W36-5  W36-6  W36-7",
    "W37-1  W37-2  W37-3  W37-4  W37-5  W37-6  W37-7",
    "W38-1  W38-2  W38-3  W38-4  W38-5  W38-6  W38-7",
    "W39-1  W39-2  W39-3  W39-4  W39-5  W39-6  W39-7",
    "W40-1  W40-2  W40-3  W40-4  W40-5  W40-6  W40-7"});
// clang-format on

}  // namespace

class frmDisplayMonthIsoTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ShowsAndHidesTheColumn() {
        September month;
        const int height = month.window.height();
        const int width = month.window.width();
        month.ShowIso();
        QVERIFY(month.IsoBoxShown());
        QCOMPARE(month.IsoCaption(), QStringLiteral("Hide ISO Week dates"));
        QCOMPARE(month.IsoDates(), kIsoDates);
        QVERIFY(month.window.height() > height);
        QCOMPARE(month.window.width(), width);

        month.ShowIso();
        QVERIFY(!month.IsoBoxShown());
        QCOMPARE(month.IsoCaption(), QStringLiteral("Display ISO Week dates"));
        QCOMPARE(month.window.height(), height);
    }

    void ShowsEverythingWithoutScrollBars_data() {
        QTest::addColumn<int>("pointSize");
        QTest::addColumn<int>("language");
        for (const int pointSize : {9, 12, 18}) {
            QTest::addRow("English %d", pointSize) << pointSize << int{LanguageEnglish};
            QTest::addRow("German %d", pointSize) << pointSize << int{LanguageGerman};
        }
    }

    void ShowsEverythingWithoutScrollBars() {
        QFETCH(const int, pointSize);
        QFETCH(const int, language);
        const auto restore = qScopeGuard([font = QApplication::font()] { QApplication::setFont(font); });
        QFont sized = QApplication::font();
        sized.setPointSize(pointSize);
        QApplication::setFont(sized);

        MonthWindow month;
        month.texts.InterfaceLanguage = static_cast<LanguageNumber>(language);
        month.window.SetLanguageDependentText();
        month.window.SetWeekStart(WeekStart::Monday);
        month.ShowMonth("2024", 9);
        ClickOn(month.Button("cmdShowHideISO"));
        QCoreApplication::processEvents();
        for (const char* name : {"txbMonth", "txbISODates"}) {
            const auto& box = month.Of<QPlainTextEdit>(name);
            QVERIFY2(!box.horizontalScrollBar()->isVisible(), name);
            QVERIFY2(!box.verticalScrollBar()->isVisible(), name);
        }
        for (const QAbstractButton* button : month.window.findChildren<QAbstractButton*>()) {
            QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(button->text()));
        }
        const QSize least = month.window.minimumSizeHint();
        QVERIFY(least.width() <= 1024 && least.height() <= 600);
    }

    void TheWindowWithTheColumnStaysOnTheScreen() {
        September month;
        const QRect screen = month.window.screen()->availableGeometry();
        month.window.move(screen.left(), screen.bottom() - month.window.height());
        month.ShowIso();
        QVERIFY(screen.contains(month.window.frameGeometry()));
    }

    void WeekFiveOf2024ReadsWithTheFinalDigitOfItsYear() {
        MonthWindow month;
        month.window.SetWeekStart(WeekStart::Monday);
        month.ShowMonth("2024", 1);
        ClickOn(month.Button("cmdShowHideISO"));
        const std::string line = "4-W05-1  4-W05-2  4-W05-3  4-W05-4  4-W05-5  4-W05-6  4-W05-7";
        QVERIFY(month.IsoDates().find("\r\n" + line) != std::string::npos);
        ClickOnMark(month.Of<QCheckBox>("chkWithYear"));
        const std::string shortLine = "W05-1  W05-2  W05-3  W05-4  W05-5  W05-6  W05-7";
        QVERIFY(month.IsoDates().find("\r\n" + shortLine) != std::string::npos);
    }

    void TheYearsDigitIsTakenAwayAndPutBack() {
        September month;
        month.ShowIso();
        ClickOnMark(month.Of<QCheckBox>("chkWithYear"));
        QCOMPARE(month.IsoDates(), kIsoDatesWithoutYear);
        ClickOnMark(month.Of<QCheckBox>("chkWithYear"));
        QCOMPARE(month.IsoDates(), kIsoDates);
    }

    void TheYearsDigitWaitsForTheColumn() {
        September month;
        ClickOnMark(month.Of<QCheckBox>("chkWithYear"));
        QCOMPARE(month.IsoDates(), std::string());
        month.ShowIso();
        QCOMPARE(month.IsoDates(), kIsoDatesWithoutYear);
    }

    void DrawingAMonthDrawsTheColumnToo() {
        September month;
        month.ShowIso();
        ClickOn(month.Button("cmdDisplayNextMonth0"));
        QVERIFY(month.IsoDates().find("4-W44-7") != std::string::npos);
        ClickOn(month.Button("cmdDisplayNextMonth1"));
        QCOMPARE(month.IsoDates(), kIsoDates);
    }

    void OptionsHideTheColumnThatTheyMakeImpossible_data() {
        QTest::addColumn<QString>("option");
        QTest::newRow("Julian") << QStringLiteral("optJulian");
        QTest::newRow("Sunday") << QStringLiteral("optSunday");
    }

    void OptionsHideTheColumnThatTheyMakeImpossible() {
        QFETCH(const QString, option);
        September month;
        month.ShowIso();
        ClickOnMark(month.Option(option.toLatin1().constData()));
        QVERIFY(!month.IsoBoxShown());
        QCOMPARE(month.IsoCaption(), QStringLiteral("Display ISO Week dates"));
        QVERIFY(!month.Button("cmdShowHideISO").isEnabled());
        QVERIFY(!month.Of<QCheckBox>("chkWithYear").isEnabled());
    }

    void TheColumnIsOfferedForTheCommonEraWithMondayOnly() {
        MonthWindow month;
        month.ShowMonth("2024", 9);
        const auto offered = [&month] {
            const bool button = month.Button("cmdShowHideISO").isEnabled();
            return button && month.Of<QCheckBox>("chkWithYear").isEnabled();
        };
        QVERIFY(!offered());
        ClickOnMark(month.Option("optMonday"));
        QVERIFY(offered());
        ClickOnMark(month.Option("optJulian"));
        QVERIFY(!offered());
        ClickOnMark(month.Option("optSunday"));
        QVERIFY(!offered());
        ClickOnMark(month.Option("optCommonEra"));
        QVERIFY(!offered());
        ClickOnMark(month.Option("optMonday"));
        QVERIFY(offered());
        month.ShowMonth("1900", 1, CalendarNumber::JC);
        QVERIFY(!offered());
    }

    void TheControlsAreLeftAloneUntilTheMainWindowIsReady() {
        MonthWindow month;
        month.ready = false;
        month.ShowMonth("2024", 9);
        QVERIFY(month.Button("cmdShowHideISO").isEnabled());
        month.window.SetCalendar(CalendarNumber::JC);
        QVERIFY(month.Button("cmdShowHideISO").isEnabled());
        month.ready = true;
        month.window.SetCalendar(CalendarNumber::CE);
        QVERIFY(!month.Button("cmdShowHideISO").isEnabled());
    }

    void OptionsHideAColumnThatWasShownTooEarly_data() {
        QTest::addColumn<QString>("option");
        QTest::newRow("Common Era with Sunday") << QStringLiteral("optCommonEra");
        QTest::newRow("Monday with Julian") << QStringLiteral("optMonday");
    }

    void OptionsHideAColumnThatWasShownTooEarly() {
        QFETCH(const QString, option);
        MonthWindow month;
        month.ready = false;  // the button is enabled whatever is chosen
        month.ShowMonth("1900", 1, CalendarNumber::JC);
        ClickOn(month.Button("cmdShowHideISO"));
        QVERIFY(month.IsoBoxShown());
        ClickOnMark(month.Option(option.toLatin1().constData()));
        QVERIFY(!month.IsoBoxShown());
    }

    void OptionsThatAreSetHideTheColumnToo() {
        September month;
        month.ShowIso();
        month.window.SetWeekStart(WeekStart::Sunday);
        QVERIFY(!month.IsoBoxShown());
        month.window.SetWeekStart(WeekStart::Monday);
        month.ShowIso();
        month.ShowMonth("1900", 1, CalendarNumber::JC);
        QVERIFY(!month.IsoBoxShown());
    }

    void CopiesHeadingGridAndColumn() {
        September month;
        month.ShowIso();
        ClickOn(month.Button("cmdCopyToClipboard"));
        QCOMPARE(month.Clipboard(), "September 2024 (Common Era Calendar)\r\n\r\n" + kSeptember2024 +
                                        "\r\n\r\nISO 8601 Week dates:\r\n\r\n" + kIsoDates);
        QCOMPARE(month.fake.clipboard.calls.size(), std::size_t{2});
        QCOMPARE(month.fake.clipboard.calls[0], std::string("Clear"));
        QCOMPARE(month.window.focusWidget(), &month.Button("cmdClose"));
    }

    void CopiesHeadingAndGridWithoutTheColumn() {
        September month;
        ClickOn(month.Button("cmdCopyToClipboard"));
        QCOMPARE(month.Clipboard(), "September 2024 (Common Era Calendar)\r\n\r\n" + kSeptember2024);
    }

    void CopiesTheYearAsItStands() {
        September month;
        month.Year().setText(QStringLiteral(" 2024 "));
        month.Option("optJulian").click();
        ClickOn(month.Button("cmdCopyToClipboard"));
        QVERIFY(month.Clipboard().starts_with("September  2024  (Julian Calendar)\r\n\r\n Mon "));
    }

    void ClosingHidesTheColumnAndGivesTheFocusBack_data() {
        QTest::addColumn<QString>("way");
        for (const char* way : {"button", "frame", "Esc"}) QTest::newRow(way) << QString::fromLatin1(way);
    }

    void ClosingHidesTheColumnAndGivesTheFocusBack() {
        QFETCH(const QString, way);
        September month;
        month.ShowIso();
        if (way == QStringLiteral("button")) ClickOn(month.Button("cmdClose"));
        if (way == QStringLiteral("frame")) month.window.close();
        if (way == QStringLiteral("Esc")) QTest::keyClick(&month.Year(), Qt::Key_Escape);
        QVERIFY(!month.window.isVisible());
        QVERIFY(!month.IsoBoxShown());
        QCOMPARE(month.IsoCaption(), QStringLiteral("Display ISO Week dates"));
        QVERIFY(QTest::qWaitForWindowActive(&month.mainWindow));
        // Hidden, not gone: what was drawn is still there.
        QCOMPARE(month.Grid(), kSeptember2024);
    }

    void DeliberatelyActivationHidesTheColumnButLeavesItsTextAndTheCaption() {
        September month;
        const int height = month.window.height();
        month.ShowIso();
        month.ActivateAgain();
        QVERIFY(!month.IsoBoxShown());
        QCOMPARE(month.window.height(), height);
        QCOMPARE(month.IsoCaption(), QStringLiteral("Hide ISO Week dates"));
        QCOMPARE(month.IsoDates(), kIsoDates);
        month.ShowIso();
        QVERIFY(month.IsoBoxShown());
    }

    void AMessageBoxOfItsOwnIsNoActivation() {
        September month;
        month.ShowIso();
        month.fake.boxes.whileOpen = [] {
            QDialog box;
            QTimer::singleShot(0, &box, &QDialog::reject);
            box.exec();
        };
        month.Year().clear();
        ClickOn(month.Button("cmdDisplay"));
        QCOMPARE(month.fake.boxes.shown.size(), std::size_t{1});
        month.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&month.window));
        QVERIFY(month.IsoBoxShown());
    }
};

}  // namespace calvoro

QTEST_MAIN(calvoro::frmDisplayMonthIsoTest)
#include "frmDisplayMonthIsoTest.moc"
