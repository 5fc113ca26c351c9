// Where Tab goes in each window, and that one can see where it is.

#include <QComboBox>

#include "mainwindow/frmClearOneTextBox.h"
#include "tests/mainwindow/MainWindowFixture.h"
#include "tests/windows/list/ListJobs.h"
#include "windows/frmDisplayMonth.h"
#include "windows/frmHelp.h"
#include "windows/frmLargeDisplay.h"
#include "windows/frmList.h"

using namespace calvoro;

class KeyboardFocusTest : public QObject {
    Q_OBJECT

private:
    QPalette own_;

    static QStringList Names(const char* list) {
        return QString::fromLatin1(list).split(' ', Qt::SkipEmptyParts);
    }

    // The names of the controls that Tab (or Shift+Tab) visits until it comes round.
    static QStringList Round(Qt::Key key) {
        QStringList names;
        while (!names.contains(MainWindowFixture::Focused())) {
            names.push_back(MainWindowFixture::Focused());
            MainWindowFixture::Press(key);
        }
        return names;
    }

    static void CheckRound(const QStringList& order) {
        const QStringList seen = Round(Qt::Key_Tab);
        QVERIFY2(seen == order, qPrintable(seen.join(' ')));
        QStringList back = order;
        std::reverse(back.begin() + 1, back.end());
        QCOMPARE(Round(Qt::Key_Backtab), back);
    }

    static QPalette Dark() {
        QPalette palette(QColor(42, 46, 50));
        palette.setColor(QPalette::Base, QColor(27, 30, 32));
        palette.setColor(QPalette::Highlight, QColor(61, 174, 233));
        return palette;
    }

    static QPalette Light() {
        QPalette palette(QColor(239, 240, 241));
        palette.setColor(QPalette::Base, Qt::white);
        palette.setColor(QPalette::Highlight, QColor(48, 140, 198));
        return palette;
    }

    // With output enough for each of its buttons; they are switched on as the clock does it.
    static void StartWithOutput(MainWindowFixture& main) {
        Settings settings;
        for (int line = 0; line < 6; ++line) settings.output += "2024-02-29 CE = 2024-W09-4 ISO\r\n";
        main.StartWith(settings);
        for (const char* name : {"cmdClearOutputWindow", "cmdCopyToClipboard", "cmdEnlarge"}) {
            main.Button(name).setEnabled(true);
        }
    }

    static QImage Picture(QWidget& control) {
        QCoreApplication::processEvents();
        return control.grab().toImage();
    }

    // Every control of a window that the keyboard reaches looks different while it has the focus.
    static void CheckFocusIsSeen(QWidget& window, int expected) {
        QList<QWidget*> controls;
        for (QWidget* control : window.findChildren<QWidget*>()) {
            if (control->window() == &window && control->isVisible() && control->isEnabled() &&
                control->focusPolicy() != Qt::NoFocus && control->focusProxy() == nullptr) {
                controls.push_back(control);
            }
        }
        QStringList names;
        for (const QWidget* control : controls) names.push_back(control->objectName());
        QVERIFY2(controls.size() == expected, qPrintable(names.join(' ')));
        for (int i = 0; i < controls.size(); ++i) {
            QWidget& control = *controls[i];
            controls[(i + 1) % controls.size()]->setFocus(Qt::ShortcutFocusReason);
            const QImage without = Picture(control);
            control.setFocus(Qt::ShortcutFocusReason);
            QVERIFY2(control.hasFocus(), qPrintable(control.objectName()));
            const QImage with = Picture(control);
            QVERIFY2(with != without, qPrintable(control.objectName()));
        }
    }

private Q_SLOTS:
    void initTestCase() {
        own_ = QApplication::palette();
        QApplication::setCursorFlashTime(0);  // a caret that stands still
    }
    void cleanup() { QApplication::setPalette(own_); }

    void TabOrderOfTheMainWindow() {
        MainWindowFixture main;
        StartWithOutput(main);
        CheckRound(
            Names("txbFirstDate txbDateDiff txbSecondDate cmdToday0 cmdClearFirstDate cmdClearDateDiff "
                  "cmdToday1 cmdClearSecondDate cmdMoveSecondDateToFirst optFirstDateIsCE optDays "
                  "chkIncludeFirstDate chkIncludeWeekends cmdCompute optSecondDateIsCE "
                  "optDateFormatIsYMD optThousSepIsComma optSeparatorIsDash chkHyphen txbOutput "
                  "cmdClearOutputWindow "
                  "cmdCopyToClipboard cmdEnlarge chkVerbose chkSaveOutput cmdDisplayMonth cmdHelp cmdReset "
                  "cmdQuit lblOnlineDocumentation lblVantorelSystems lblTodaysDate lblWeekFromToday "
                  "optLanguageIsEnglish"));
    }

    void TabOrderOfTheHelpWindow() {
        MainWindowFixture main;
        main.Start();
        main.Press(Qt::Key_F1);
        auto* help = OpenedWindow<frmHelp>();
        QVERIFY(QTest::qWaitForWindowActive(help));
        QCOMPARE(main.Focused(), "txbMsg");
        CheckRound(Names("txbMsg cmdClose"));
    }

    void TabOrderOfTheListWindow() {
        MainWindowFixture main;
        main.Start();
        main.Press(Qt::Key_L, Qt::ControlModifier);
        auto* list = OpenedWindow<frmList>();
        QVERIFY(QTest::qWaitForWindowActive(list));
        QCOMPARE(main.Focused(), "tblList");
        CheckRound(Names("tblList chkWithGiven cmdClose optLinesAreFirst cmdPaste cmdOpen"));
        list->Show({"2024-02-29\n", {}}, ListSide::FirstDates);
        WaitForJobs(*list);
        CheckRound(
            Names("tblList chkRefusalsOnly chkByDay cmdNextRefusal chkWithGiven cmdCopySelected cmdCopyAll "
                  "cmdSaveAs cmdClose optLinesAreFirst cmdPaste cmdOpen"));
    }

    void TabOrderOfTheClearDialog() {
        MainWindowFixture main;
        main.Start();
        main.Fill("2024-02-29", "7", "2024-03-01");
        bool asked = false;
        WhileModal([&](QWidget& dialog) {
            asked = true;
            // The options are one stop; the arrow keys go through them.
            CheckRound(Names("optClearDateDiff cmdContinue"));
            for (const char* next : {"optClearSecondDate", "optCancel"}) {
                MainWindowFixture::Press(Qt::Key_Down);
                QCOMPARE(MainWindowFixture::Focused(), next);
                QVERIFY(dialog.findChild<QAbstractButton*>(next)->isChecked());
            }
            CheckRound(Names("optCancel cmdContinue"));
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        main.Click("cmdCompute");
        QVERIFY(asked);
        QCOMPARE(main.Boxes(), (QStringList{"2024-02-29", "7", "2024-03-01"}));
    }

    // Not only from the first key on: the keys that work in a window depend on it.
    void TheFocusIsSeenWhenAWindowOpens() {
        MainWindowFixture main;
        StartWithOutput(main);
        main.Fill("2024-02-29", "7", "2024-03-01");
        QStringList seen;
        const auto look = [&seen](QWidget& window) {
            QWidget& control = *QApplication::focusWidget();
            const QImage with = Picture(control);
            control.clearFocus();
            if (Picture(control) != with) seen.push_back(control.objectName());
            window.close();
        };
        WhileModal(look);
        main.Click("cmdCompute");
        QCOMPARE(seen, QStringList{"optClearDateDiff"});

        main.Activate();
        main.Click("cmdDisplayMonth");
        auto* month = OpenedWindow<frmDisplayMonth>();
        QVERIFY(QTest::qWaitForWindowActive(month));
        look(*month);
        main.Activate();
        main.Click("cmdHelp");
        auto* help = OpenedWindow<frmHelp>();
        QVERIFY(QTest::qWaitForWindowActive(help));
        look(*help);
        main.Activate();
        main.Click("cmdEnlarge");
        auto* enlarged = OpenedWindow<frmLargeDisplay>();
        QVERIFY(QTest::qWaitForWindowActive(enlarged));
        look(*enlarged);
        QCOMPARE(seen, QStringList({"optClearDateDiff", "cmdClose", "txbMsg", "txbOutput"}));
    }

    void TheFocusIsSeen_data() {
        QTest::addColumn<QPalette>("palette");
        QTest::newRow("light") << Light();
        QTest::newRow("dark") << Dark();
    }
    void TheFocusIsSeen() {
        QFETCH(const QPalette, palette);
        QApplication::setPalette(palette);
        MainWindowFixture main;
        StartWithOutput(main);
        CheckFocusIsSeen(*main.window, 54);

        main.Press(Qt::Key_F1);
        auto* help = OpenedWindow<frmHelp>();
        QVERIFY(QTest::qWaitForWindowActive(help));
        CheckFocusIsSeen(*help, 2);

        main.Activate();
        main.Click("cmdDisplayMonth");
        auto* month = OpenedWindow<frmDisplayMonth>();
        QVERIFY(QTest::qWaitForWindowActive(month));
        CheckFocusIsSeen(*month, 12);

        main.Activate();
        main.Click("cmdEnlarge");
        auto* enlarged = OpenedWindow<frmLargeDisplay>();
        QVERIFY(QTest::qWaitForWindowActive(enlarged));
        CheckFocusIsSeen(*enlarged, 3);

        main.Activate();
        main.Press(Qt::Key_L, Qt::ControlModifier);
        auto* list = OpenedWindow<frmList>();
        QVERIFY(QTest::qWaitForWindowActive(list));
        list->Show({"2024-02-29\n", {}}, ListSide::FirstDates);
        WaitForJobs(*list);
        CheckFocusIsSeen(*list, 13);

        main.Activate();
        main.Fill("2024-02-29", "7", "2024-03-01");
        bool asked = false;
        WhileModal([&](QWidget& dialog) {
            asked = true;
            CheckFocusIsSeen(dialog, 5);
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        main.Click("cmdCompute");
        QVERIFY(asked);
    }
};

QTEST_MAIN(KeyboardFocusTest)
#include "KeyboardFocusTest.moc"
