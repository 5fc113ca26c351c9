#include "windows/frmHelp.h"

#include <QScreen>
#include <QScrollBar>
#include <QTest>

#include "tests/windows/WindowTesting.h"
#include "windows/Placement.h"
#include "windows/Twips.h"

namespace calvoro {
namespace {

const WebAddresses kAddresses = {"https://m.example/",    "https://m.example/en",
                                 "https://m.example/de",  "https://m.example/calendars",
                                 "https://e.example/iso", "https://m.example/leapweek"};

struct HelpWindow {
    Texts texts;
    QWidget mainWindow;
    frmHelp window{texts, kAddresses, mainWindow};

    HelpWindow() {
        mainWindow.setGeometry(20, 30, 760, 700);
        mainWindow.show();
    }

    void Show() {
        window.ShowHelp();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    QPlainTextEdit& Message() { return Control<QPlainTextEdit>(window, "txbMsg"); }
    QPushButton& Close() { return Control<QPushButton>(window, "cmdClose"); }
    int OuterHeight() const { return window.height() + TwipsToPixels(kTitleBarHeight); }
};

}  // namespace

class frmHelpTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ShowsTheTextOfTheInterfacesLanguage_data() {
        QTest::addColumn<int>("language");
        QTest::addColumn<int>("textLanguage");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("close");
        const auto row = [](const char* name, LanguageNumber language, LanguageNumber text, const char* title,
                            const char* close) {
            QTest::newRow(name) << int{language} << int{text} << QString::fromLatin1(title)
                                << QString::fromLatin1(close);
        };
        row("English", LanguageEnglish, LanguageEnglish, "Calvoro Help", "Close");
        row("German", LanguageGerman, LanguageGerman, "Calvoro Hilfe", "Schliessen");
        row("Spanish has none", LanguageSpanish, LanguageEnglish, "Calvoro Help", "Close");
    }

    void ShowsTheTextOfTheInterfacesLanguage() {
        QFETCH(const int, language);
        QFETCH(const int, textLanguage);
        QFETCH(const QString, title);
        QFETCH(const QString, close);
        HelpWindow help;
        help.texts.InterfaceLanguage = static_cast<LanguageNumber>(language);
        help.Show();
        QCOMPARE(TextOf(help.window, "txbMsg"),
                 FillHelpText(kAddresses)[static_cast<std::size_t>(textLanguage)]);
        QCOMPARE(help.window.windowTitle(), title);
        QCOMPARE(Caption(help.Close()), close);
        CheckKeysAreUnique(help.window, 1);
        CheckAccessibleNames(help.window);
    }

    void EveryActivationFollowsTheLanguage() {
        HelpWindow help;
        help.Show();
        help.texts.InterfaceLanguage = LanguageGerman;
        help.mainWindow.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&help.mainWindow));
        help.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&help.window));
        QCOMPARE(help.window.windowTitle(), QStringLiteral("Calvoro Hilfe"));
        QCOMPARE(TextOf(help.window, "txbMsg"), FillHelpText(kAddresses)[LanguageGerman]);
    }

    void AnActivationLeavesTheTextWhereItWasScrolled() {
        HelpWindow help;
        help.Show();
        help.window.resize(300, 300);
        help.Message().verticalScrollBar()->setValue(5);
        const int scrolled = help.Message().verticalScrollBar()->value();
        QVERIFY(scrolled > 0);
        help.mainWindow.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&help.mainWindow));
        help.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&help.window));
        QCOMPARE(help.Message().verticalScrollBar()->value(), scrolled);
    }

    void StandsInsideTheMainWindowsLowerRightCornerTheFirstTime() {
        HelpWindow help;
        help.Show();
        const QRect around = help.mainWindow.frameGeometry();
        const QRect frame = help.window.frameGeometry();
        QCOMPARE(around.right() - frame.right(), TwipsToPixels(425));
        QCOMPARE(around.bottom() - frame.bottom(), TwipsToPixels(125));

        help.window.move(3, 4);
        help.window.close();
        help.Show();
        QCOMPARE(help.window.pos(), QPoint(3, 4));
    }

    void StaysOnTheScreen() {
        HelpWindow help;
        help.mainWindow.setGeometry(-300, -300, 320, 320);
        help.Show();
        QVERIFY(help.window.screen()->availableGeometry().contains(help.window.frameGeometry()));
    }

    void SpringsBackToItsLeastSize() {
        HelpWindow help;
        help.Show();
        help.window.resize(10, 10);
        QVERIFY(PixelsToTwips(help.window.width()) >= 4000);
        QVERIFY(PixelsToTwips(help.window.height()) >= 4000);
        QCOMPARE(help.window.size(), QSize(267, 267));
    }

    void TheTextFillsTheWindow() {
        HelpWindow help;
        help.Show();
        // As activated.
        QCOMPARE(help.Message().geometry(),
                 QRect(TwipsToPixels(200), TwipsToPixels(100), help.window.width() - TwipsToPixels(450),
                       help.OuterHeight() - TwipsToPixels(1000)));
        for (const QSize size : {QSize(700, 500), QSize(300, 280)}) {
            help.window.resize(size);
            QCOMPARE(help.Message().width(), help.window.width() - TwipsToPixels(450));
            QCOMPARE(help.Message().height(), help.OuterHeight() - TwipsToPixels(1100));
            const int below = help.Message().y() + help.Message().height();
            QCOMPARE(help.Close().y() - below, TwipsToPixels(100));
            QVERIFY(help.window.rect().contains(help.Close().geometry()));
        }
    }

    void ALargeFontLeavesTheButtonInTheWindow() {
        HelpWindow help;
        QFont font = help.window.font();
        font.setPointSize(30);
        help.window.setFont(font);
        help.Show();
        QVERIFY(help.Close().height() >= help.Close().sizeHint().height());
        QVERIFY(help.window.rect().contains(help.Close().geometry()));
        help.window.resize(10, 10);
        QVERIFY(help.window.rect().contains(help.Close().geometry()));
    }

    void ClosingGivesTheFocusBack_data() {
        QTest::addColumn<QString>("way");
        for (const char* way : {"button", "frame", "Esc", "Enter"})
            QTest::newRow(way) << QString::fromLatin1(way);
    }

    void ClosingGivesTheFocusBack() {
        QFETCH(const QString, way);
        HelpWindow help;
        help.Show();
        if (way == QStringLiteral("button")) ClickOn(help.Close());
        if (way == QStringLiteral("frame")) help.window.close();
        if (way == QStringLiteral("Esc")) QTest::keyClick(&help.Message(), Qt::Key_Escape);
        if (way == QStringLiteral("Enter")) QTest::keyClick(&help.Close(), Qt::Key_Return);
        QVERIFY(!help.window.isVisible());
        QVERIFY(QTest::qWaitForWindowActive(&help.mainWindow));
    }

    void ComesBackWhenItWasMinimised() {
        HelpWindow help;
        help.Show();
        help.window.showMinimized();
        help.Show();
        QVERIFY(!help.window.isMinimized());
        QVERIFY(!help.window.testAttribute(Qt::WA_QuitOnClose));
    }

    void TheTextCanBeReadAndCopiedButNotChanged() {
        HelpWindow help;
        help.Show();
        const std::string text = TextOf(help.window, "txbMsg");
        QTest::keyClicks(&help.Message(), QStringLiteral("x"));
        QCOMPARE(TextOf(help.window, "txbMsg"), text);
        help.Message().selectAll();
        QCOMPARE(SelectedCrLfText(help.Message()), text);
    }
};

}  // namespace calvoro

QTEST_MAIN(calvoro::frmHelpTest)
#include "frmHelpTest.moc"
