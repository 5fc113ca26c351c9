// Every window on small and on scaled screens, in both languages, in the system's font and in a large one.
// The screen is the one that the environment of the test program gives.

#include "tests/mainwindow/MainWindowFixture.h"
#include "tests/windows/Reachable.h"
#include "tests/windows/list/ListJobs.h"
#include "windows/Placement.h"
#include "windows/ScrollingPage.h"
#include "windows/frmDisplayMonth.h"
#include "windows/frmHelp.h"
#include "windows/frmLargeDisplay.h"
#include "windows/frmList.h"

using namespace calvoro;

class ScreensTest : public QObject {
    Q_OBJECT

private:
    QFont systemFont_;

    template <typename Window>
    static QWidget& Open() {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (qobject_cast<Window*>(window) != nullptr && window->isVisible()) return *window;
        }
        qFatal("the window is not open");
    }

    static Settings In(LanguageNumber language) {
        Settings settings;
        settings.interfaceLanguage = language;
        settings.firstDate = "-5799999-09-29";
        settings.secondDate = "2024-02-29";
        settings.monthWeekStart = WeekStart::Monday;
        settings.output = std::string("2000-01-01 CE to 2024-02-29 CE = 8,825 days\r\n").append(4000, 'x');
        return settings;
    }

    void Rows() {
        QTest::addColumn<int>("language");
        QTest::addColumn<double>("points");
        for (const double points : {systemFont_.pointSizeF(), 18.0}) {
            QTest::addRow("English %g pt", points) << int{LanguageEnglish} << points;
            QTest::addRow("German %g pt", points) << int{LanguageGerman} << points;
        }
    }

    static void UseFont(double points) {
        QFont font = QApplication::font();
        font.setPointSizeF(points);
        QApplication::setFont(font);
    }

    void StartAsTheRowSays(MainWindowFixture& main) {
        QFETCH(const int, language);
        QFETCH(const double, points);
        UseFont(points);
        // A Thursday, the longest name of a day in German.
        main.fake.clock.today = {2026, 11, 19};
        main.StartWith(In(static_cast<LanguageNumber>(language)));
        QCoreApplication::processEvents();
    }

private Q_SLOTS:
    void initTestCase() {
        systemFont_ = QApplication::font();
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        qInfo("%d x %d at %g", screen.width(), screen.height(),
              QGuiApplication::primaryScreen()->devicePixelRatio());
    }
    void cleanup() { QApplication::setFont(systemFont_); }

    void MainWindow_data() { Rows(); }
    void MainWindow() {
        MainWindowFixture main;
        StartAsTheRowSays(main);
        int checked = 0;
        CheckReachable(*main.window, checked);
        if (QTest::currentTestFailed()) return;
        QVERIFY(checked > 70);
        // As small as it goes.
        main.window->resize(1, 1);
        QCoreApplication::processEvents();
        CheckReachable(*main.window, checked);
    }

    void TheControlWithTheFocusIsInSight_data() { Rows(); }
    void TheControlWithTheFocusIsInSight() {
        MainWindowFixture main;
        StartAsTheRowSays(main);
        QStringList seen;
        while (!seen.contains(main.Focused())) {
            seen.push_back(main.Focused());
            const QWidget& control = *QApplication::focusWidget();
            const QRect shown = control.visibleRegion().boundingRect();
            QVERIFY2(shown.left() == 0 && shown.top() == 0, qPrintable(seen.last()));
            // What is larger than the window shows its beginning.
            const QSize room = main.Get<ScrollingPage>(u"scrollingPage"_s).viewport()->size() - QSize(24, 24);
            const QSize least = control.size().boundedTo(room);
            QVERIFY2(shown.width() >= least.width() && shown.height() >= least.height(),
                     qPrintable(seen.last()));
            main.Press(Qt::Key_Tab);
            QCoreApplication::processEvents();
        }
        QVERIFY(seen.size() > 25);
    }

    void TheColumnsOfTheBoxesAreAlike_data() { Rows(); }
    void TheColumnsOfTheBoxesAreAlike() {
        MainWindowFixture main;
        StartAsTheRowSays(main);
        const auto width = [&main](const char* box, const char* arrows) {
            const int beside = arrows == nullptr ? 0 : main.Get<QWidget>(arrows).width();
            return main.Get<QWidget>(box).width() + beside;
        };
        // Where alike columns would have to be scrolled, each has what it needs.
        const ScrollingPage& area = main.Get<ScrollingPage>(u"scrollingPage"_s);
        if (area.Page().sizeHint().width() > RoomOnScreen(*main.window).width()) {
            QCOMPARE(area.Page().width(),
                     qMax(area.Page().minimumSizeHint().width(), area.viewport()->width()));
            return;
        }
        const int first = width("txbFirstDate", "VScroll0");
        QVERIFY(qAbs(width("txbDateDiff", nullptr) - first) <= 1);
        QVERIFY(qAbs(width("txbSecondDate", "VScroll1") - first) <= 1);
    }

    void MonthWindow_data() { Rows(); }
    void MonthWindow() {
        MainWindowFixture main;
        StartAsTheRowSays(main);
        main.Button(u"cmdDisplayMonth"_s).click();
        QWidget& month = Open<frmDisplayMonth>();
        QCoreApplication::processEvents();
        int checked = 0;
        CheckReachable(month, checked);
        if (QTest::currentTestFailed()) return;
        month.findChild<QAbstractButton*>(u"cmdShowHideISO"_s)->click();
        QVERIFY(month.findChild<QWidget*>(u"txbISODates"_s)->isVisible());
        QCoreApplication::processEvents();
        CheckReachable(month, checked);
        QVERIFY(checked > 30);
    }

    void HelpWindow_data() { Rows(); }
    void HelpWindow() {
        MainWindowFixture main;
        StartAsTheRowSays(main);
        main.Button(u"cmdHelp"_s).click();
        QCoreApplication::processEvents();
        int checked = 0;
        CheckReachable(Open<frmHelp>(), checked);
        QVERIFY(checked > 2);
    }

    void EnlargedWindow_data() { Rows(); }
    void EnlargedWindow() {
        MainWindowFixture main;
        StartAsTheRowSays(main);
        QTRY_VERIFY(main.Button(u"cmdEnlarge"_s).isEnabled());
        main.Button(u"cmdEnlarge"_s).click();
        QWidget& large = Open<frmLargeDisplay>();
        QCoreApplication::processEvents();
        int checked = 0;
        CheckReachable(large, checked);
        large.findChild<QPlainTextEdit*>(u"txbOutput"_s)->selectAll();
        QCoreApplication::processEvents();
        CheckReachable(large, checked);
        QVERIFY(checked > 3);
    }

    void ListWindow_data() { Rows(); }
    void ListWindow() {
        MainWindowFixture main;
        StartAsTheRowSays(main);
        main.Press(Qt::Key_L, Qt::ControlModifier);
        auto& list = static_cast<frmList&>(Open<frmList>());
        QCoreApplication::processEvents();
        int checked = 0;
        CheckReachable(list, checked);
        if (QTest::currentTestFailed()) return;
        list.Show({u"2024-02-29\tx\n"_s, QString()}, ListSide::FirstDates);
        WaitForJobs(list);
        list.findChild<QWidget*>(u"cmdStop"_s)->show();
        list.findChild<QWidget*>(u"prgJob"_s)->show();
        list.findChild<QWidget*>(u"cmdEarlier"_s)->show();
        list.findChild<QWidget*>(u"cmdLater"_s)->show();
        QCoreApplication::processEvents();
        CheckReachable(list, checked);
        QVERIFY(checked > 40);
        list.resize(1, 1);
        QCoreApplication::processEvents();
        CheckReachable(list, checked);
    }

    void ClearOneDialog_data() { Rows(); }
    void ClearOneDialog() {
        MainWindowFixture main;
        StartAsTheRowSays(main);
        main.Fill(u"2024-02-29"_s, u"1"_s, u"2024-03-01"_s);
        int checked = 0;
        int scrolledSideways = -1;
        int roomForSentence = -1;
        int roomBeside = -1;
        bool wrapped = true;
        WhileModal([&](QWidget& dialog) {
            QCoreApplication::processEvents();
            CheckReachable(dialog, checked);
            const auto* page = dialog.findChild<ScrollingPage*>();
            auto* sentence = dialog.findChild<QLabel*>(u"lblMessage"_s);
            scrolledSideways = page->horizontalScrollBar()->maximum();
            roomForSentence = page->viewport()->height() - sentence->height();
            wrapped = sentence->wordWrap();
            sentence->setWordWrap(false);
            roomBeside = RoomOnScreen(dialog).width() - sentence->sizeHint().width();
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        main.Button(u"cmdCompute"_s).click();
        QVERIFY(checked >= 5);
        // A sentence is read by its lines, not by scrolling each of them.
        QCOMPARE(scrolledSideways, 0);
        QVERIFY(roomForSentence >= 0);
        // Where the screen has room for its own lines, these are left as they are.
        constexpr int kMargins = 40;  // pixels, more than are around it
        QVERIFY(wrapped == (roomBeside < 0) || (roomBeside >= 0 && roomBeside < kMargins));
    }
};

QTEST_MAIN(ScreensTest)
#include "ScreensTest.moc"
