#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QScopeGuard>
#include <QScreen>
#include <QScrollBar>
#include <QTimer>

#include "tests/windows/MonthWindow.h"

namespace calvoro {
namespace {

// clang-format off
const std::string kSeptember2024 = Lines({
    " Mon  Tue  Wed  Thu  Fri  Sat  Sun ",
    "  26   27   28   29   30   31    1  ",
    "   2    3    4    5    6    7    8  ",
    "   9   10   11   12   13   14   15  ",
    "  16   17   18   19   20   21   22  ",
    "  23   24   25   26   27   28   29  ",
    "  30    1    2    3    4    5    6  "});
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

// September 2024, Monday first.
struct September : MonthWindow {
    September() {
        window.SetWeekStart(WeekStart::Monday);
        ShowMonth("2024", 9);
    }

    void ShowIso() { ClickOn(Button("cmdShowHideISO")); }
};

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

    void InAGermanInterfaceTheButtonForIsoDatesIsGermanFromTheStart() {
        MonthWindow english;
        QCOMPARE(english.IsoCaption(), QStringLiteral("Display ISO Week dates"));
        FakePlatform fake;
        Texts texts;
        texts.InterfaceLanguage = LanguageGerman;
        QWidget mainWindow;
        const frmDisplayMonth german(fake.platform, texts, mainWindow, [] { return true; });
        QCOMPARE(CaptionOf(german, "cmdShowHideISO"), QStringLiteral("ISO-Woche-Daten zeigen"));
        QCOMPARE(texts.TextLanguage, LanguageEnglish);
    }

    void ALanguageSwitchRedrawsWhatIsShownWithoutMovingTheFocus() {
        September month;
        month.ShowIso();
        month.Year().setFocus();
        month.texts.InterfaceLanguage = LanguageGerman;
        month.window.SetLanguageDependentText();
        QCOMPARE(month.Grid(), std::string(" Mon  Die  Mit  Don  Fre  Sam  Son ") +
                                   kSeptember2024.substr(kSeptember2024.find("\r\n")));
        QVERIFY(month.IsoDates().starts_with("       M        D        M "));
        QCOMPARE(month.Months().currentText(), QStringLiteral("September"));
        QCOMPARE(month.Months().itemText(2), QStringLiteral("Maerz"));
        QCOMPARE(month.window.windowTitle(), QStringLiteral("Monat zeigen"));
        QCOMPARE(month.window.focusWidget(), &month.Year());
        // Deliberate: the caption of a column that is shown is a numbered text, which lags.
        QCOMPARE(month.IsoCaption(), QStringLiteral("Hide ISO Week dates"));
        QCOMPARE(month.texts.TextLanguage, LanguageEnglish);
    }

    void ALanguageSwitchWithABadYearHasNoMessage() {
        September month;
        month.Year().setText(QStringLiteral("x"));
        month.texts.InterfaceLanguage = LanguageGerman;
        month.window.SetLanguageDependentText();
        QVERIFY(month.fake.boxes.shown.empty());
        QCOMPARE(month.Grid(), kSeptember2024);
    }

    void CopiesInGerman() {
        September month;
        month.texts.InterfaceLanguage = LanguageGerman;
        month.window.SetLanguageDependentText();
        month.ActivateAgain();
        ClickOn(month.Button("cmdDisplay"));
        month.ShowIso();
        ClickOn(month.Button("cmdCopyToClipboard"));
        QVERIFY(month.Clipboard().starts_with(
            "September 2024 (Common Era Kalender)\r\n\r\n Mon  Die  Mit  Don "));
        QVERIFY(month.Clipboard().find("\r\n\r\nISO-8601-Woche-Daten:\r\n\r\n       M        D        M ") !=
                std::string::npos);
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

    void ActivationFollowsTheLanguageAndKeepsTheMonth() {
        MonthWindow month;
        month.texts.InterfaceLanguage = LanguageGerman;
        month.window.SetLanguageDependentText();
        QCOMPARE(month.texts.TextLanguage, LanguageEnglish);
        month.ShowMonth("2024", 3);
        QCOMPARE(month.texts.TextLanguage, LanguageGerman);
        QCOMPARE(month.window.windowTitle(), QStringLiteral("Monat zeigen"));
        QCOMPARE(month.Months().currentText(), QStringLiteral("Maerz"));

        month.texts.InterfaceLanguage = LanguageEnglish;
        month.ActivateAgain();
        QCOMPARE(month.texts.TextLanguage, LanguageEnglish);
        QCOMPARE(month.window.windowTitle(), QStringLiteral("Display month"));
        QCOMPARE(month.Months().currentText(), QStringLiteral("March"));
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

    void CaptionsAreGermanWithKeysOfTheirOwn() {
        MonthWindow month;
        CheckKeysAreUnique(month.window, 13);
        month.texts.InterfaceLanguage = LanguageGerman;
        month.window.SetLanguageDependentText();
        CheckKeysAreUnique(month.window, 13);
        const auto caption = [&month](const char* name) { return CaptionOf(month.window, name); };
        QCOMPARE(caption("cmdDisplayNextMonth0"), QStringLiteral("Folgender Monat zeigen"));
        QCOMPARE(caption("cmdDisplayNextMonth1"), QStringLiteral("Vorhergehender Monat zeigen"));
        QCOMPARE(caption("cmdShowHideISO"), QStringLiteral("ISO-Woche-Daten zeigen"));
        QCOMPARE(caption("chkWithYear"), QStringLiteral("mit letzter Ziffer des Jahres"));
        QCOMPARE(caption("lblYear"), QStringLiteral("Jahr"));
        QCOMPARE(month.Of<QGroupBox>("fraFirstDayOfWeek").title(), QStringLiteral("Erster Tag der Woche"));
        QCOMPARE(caption("cmdDisplay"), QStringLiteral("Monat zeigen"));
        QCOMPARE(caption("cmdClose"), QStringLiteral("Schliessen"));
        QCOMPARE(caption("optJulian"), QStringLiteral("Julianisch"));
        QCOMPARE(caption("optMonday"), QStringLiteral("Montag"));
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

QTEST_MAIN(calvoro::frmDisplayMonthIsoTest)
#include "frmDisplayMonthIsoTest.moc"
