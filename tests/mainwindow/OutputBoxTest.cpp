// The output box: its three buttons and their thresholds, copying, enlarging, appending.

#include <QClipboard>
#include <QScrollBar>

#include "tests/mainwindow/MainWindowFixture.h"
#include "windows/Placement.h"
#include "windows/frmLargeDisplay.h"
#include "windows/frmPopUp.h"

using namespace calvoro;

class OutputBoxTest : public QObject {
    Q_OBJECT

private:
    static QPlainTextEdit& Box(const MainWindowFixture& main) {
        return main.Get<QPlainTextEdit>(u"txbOutput"_s);
    }
    // A tick of the clock, which here need not keep to its second.
    static void WaitForTick(const MainWindowFixture& main) {
        auto& clock = main.Get<QTimer>(u"Clock"_s);
        clock.setInterval(1);
        QSignalSpy ticks(&clock, &QTimer::timeout);
        if (!ticks.wait(3000)) qFatal("the clock does not tick");
    }
    static QString ExpectedButtons(bool clear, bool copy, bool enlarge) {
        return u"clear %1, copy %2, enlarge %3"_s.arg(clear).arg(copy).arg(enlarge);
    }
    static QString Buttons(const MainWindowFixture& main) {
        return ExpectedButtons(main.Button(u"cmdClearOutputWindow"_s).isEnabled(),
                               main.Button(u"cmdCopyToClipboard"_s).isEnabled(),
                               main.Button(u"cmdEnlarge"_s).isEnabled());
    }
    // Copies as the user does; the note is pressed away.
    static QRect Copy(MainWindowFixture& main) {
        QRect note;
        WhileModal([&note](QWidget& popUp) {
            note = popUp.geometry();
            auto* message = popUp.findChild<QLabel*>(u"lblMessage"_s);
            if (message->text() != "Copied") qFatal("another message");
            QTest::mouseClick(message, Qt::LeftButton);
        });
        main.Click(u"cmdCopyToClipboard"_s);
        main.Activate();
        return note;
    }

private Q_SLOTS:
    void TheClockEnablesEachButtonFromItsLengthOn_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("buttons");
        const QString none = ExpectedButtons(false, false, false);
        const QString clear = ExpectedButtons(true, false, false);
        const QString copy = ExpectedButtons(true, true, false);
        const QString all = ExpectedButtons(true, true, true);
        QTest::newRow("empty") << "" << none;
        QTest::newRow("1 character") << "x" << clear;
        QTest::newRow("10 characters") << QString(10, u'x') << clear;
        QTest::newRow("11 characters") << QString(11, u'x') << copy;
        QTest::newRow("140 characters") << QString(140, u'x') << copy;
        QTest::newRow("141 characters") << QString(141, u'x') << all;
        QTest::newRow("a line break is 2: 10") << QString(8, u'x') + "\n" << clear;
        QTest::newRow("a line break is 2: 11") << QString(9, u'x') + "\n" << copy;
        QTest::newRow("a line break alone") << "\n" << clear;
        QTest::newRow("70 line breaks") << QString(70, u'\n') << copy;
        QTest::newRow("70 line breaks and 1") << QString(70, u'\n') + "x" << all;
        QTest::newRow("blanks") << QString(11, u' ') << copy;
    }
    void TheClockEnablesEachButtonFromItsLengthOn() {
        QFETCH(QString, text);
        QFETCH(QString, buttons);
        MainWindowFixture main;
        main.Start();
        QCOMPARE(Buttons(main), ExpectedButtons(false, false, false));
        Box(main).setPlainText(text);
        WaitForTick(main);
        QCOMPARE(Buttons(main), buttons);
        Box(main).clear();
        WaitForTick(main);
        QCOMPARE(Buttons(main), ExpectedButtons(false, false, false));
    }

    void TheClockTicksOnceASecond() {
        MainWindowFixture main;
        main.Start();
        QCOMPARE(main.Get<QTimer>(u"Clock"_s).interval(), 1000);
        QVERIFY(main.Get<QTimer>(u"Clock"_s).isActive());
    }

    void ResultsAreSeenByTheClock() {
        MainWindowFixture main;
        main.Start();
        main.Fill(u"2024-03-15"_s, u"10"_s, QString());
        main.Click(u"cmdCompute"_s);
        QCOMPARE(Buttons(main), ExpectedButtons(false, false, false));
        // Within the clock's own second.
        QTRY_COMPARE_WITH_TIMEOUT(Buttons(main), ExpectedButtons(true, true, false), 1500);
    }

    void ClearEmptiesTheOutput() {
        MainWindowFixture main;
        main.Start();
        Box(main).setPlainText(u"some output"_s);
        main.Fill(u"2024-03-15"_s, QString(), QString());
        WaitForTick(main);
        main.Click(u"cmdClearOutputWindow"_s);
        QCOMPARE(main.Output(), QString());
        QCOMPARE(main.Focused(), u"txbDateDiff"_s);
        QCOMPARE(main.Text(u"txbFirstDate"_s), u"2024-03-15"_s);
    }

    void CopiesTheWholeOutputWithCrLf() {
        MainWindowFixture main;
        main.Start();
        Box(main).setPlainText(u"first line\nsecond line\n"_s);
        WaitForTick(main);
        Copy(main);
        const std::vector<std::string> calls = {"Clear", "SetText first line\r\nsecond line\r\n"};
        QCOMPARE(main.fake.clipboard.calls, calls);
        QCOMPARE(Box(main).textCursor().position(), 0);
    }

    void CopiesOnlyTheSelectionWhichIsGoneAfterwards() {
        MainWindowFixture main;
        main.Start();
        Box(main).setPlainText(u"first line\nsecond line\n"_s);
        QTextCursor selection = Box(main).textCursor();
        selection.setPosition(6);
        selection.setPosition(17, QTextCursor::KeepAnchor);
        Box(main).setTextCursor(selection);
        WaitForTick(main);
        Copy(main);
        QCOMPARE(main.fake.clipboard.text, std::string("line\r\nsecond"));
        QVERIFY(!Box(main).textCursor().hasSelection());
        QCOMPARE(Box(main).textCursor().position(), 0);
    }

    void TheCopiedNoteComesUpAtItsPlaceForItsTime() {
        MainWindowFixture main;
        main.Start();
        main.window->move(30, 20);
        Box(main).setPlainText(u"eleven long"_s);
        WaitForTick(main);
        const QRect note = Copy(main);
        // 5000 and 6500 twips from the window's corner, kept on the screen.
        const QPoint wanted = main.window->pos() + QPoint(333, 433);
        QCOMPARE(note.topLeft(), wanted);

        QElapsedTimer shown;
        shown.start();
        main.Click(u"cmdCopyToClipboard"_s);
        QVERIFY(shown.elapsed() >= 1990);
        QVERIFY(shown.elapsed() < 4000);
    }

    void EnlargesTheOutput() {
        MainWindowFixture main;
        main.Start();
        Box(main).setPlainText(u"  "_s + QString(141, u'x') + u"\nend "_s);
        WaitForTick(main);
        main.Click(u"cmdEnlarge"_s);
        frmLargeDisplay* large = OpenedWindow<frmLargeDisplay>();
        QVERIFY(large != nullptr);
        QVERIFY(large->isVisible());
        const QString trimmed = QString(141, u'x') + u"\nend"_s;
        QCOMPARE(large->findChild<QPlainTextEdit*>(u"txbOutput"_s)->toPlainText(), trimmed);
        QCOMPARE(main.Output(), trimmed);
        QCOMPARE(large->windowTitle(), u"Output window"_s);
        // The end is shown.
        QVERIFY(large->findChild<QPlainTextEdit*>(u"txbOutput"_s)->textCursor().atEnd());

        // A second time there is a new text, not a longer one.
        Box(main).setPlainText(QString(150, u'y'));
        main.Activate();
        main.Click(u"cmdEnlarge"_s);
        QCOMPARE(OpenedWindow<frmLargeDisplay>(), large);
        QCOMPARE(large->findChild<QPlainTextEdit*>(u"txbOutput"_s)->toPlainText(), QString(150, u'y'));
    }

    void TheEnlargedWindowStandsInsideTheMainWindow() {
        MainWindowFixture main;
        main.Start();
        Box(main).setPlainText(QString(50, u'x') + "\n" + QString(100, u'\n'));
        WaitForTick(main);
        main.Click(u"cmdEnlarge"_s);
        const QRect outer = main.window->frameGeometry();
        const QRect inner = OpenedWindow<frmLargeDisplay>()->frameGeometry();
        // 100 twips inside three edges, 380 below the upper one; the test's screen is narrower than the
        // window.
        QCOMPARE(inner.size(), outer.size() - QSize(12, 31));
        QCOMPARE(inner.topLeft(), KeptOnScreen(outer.topLeft() + QPoint(6, 25), inner.size(),
                                               main.window->screen()->availableGeometry()));
        QCOMPARE(inner.top(), outer.top() + 25);
    }

    void TheLongestLineByItsCharactersFitsTheEnlargedWindow() {
        MainWindowFixture main;
        main.Start();
        main.window->resize(main.window->minimumSizeHint());
        const QString longest(70, u'W');
        // Longer in bytes, not in characters.
        Box(main).setPlainText(QString(60, u'\u00e4') + "\n" + longest + "\n" + QString(100, u'\n'));
        WaitForTick(main);
        main.Click(u"cmdEnlarge"_s);
        const auto* box = OpenedWindow<frmLargeDisplay>()->findChild<QPlainTextEdit*>(u"txbOutput"_s);
        const int share = OpenedWindow<frmLargeDisplay>()->screen()->geometry().width() * 9 / 10;
        QVERIFY(box->viewport()->width() >= box->fontMetrics().horizontalAdvance(longest) + 8 ||
                OpenedWindow<frmLargeDisplay>()->frameGeometry().width() >= share - 1);
    }

    void AMinimisedEnlargedWindowComesBack() {
        MainWindowFixture main;
        main.Start();
        Box(main).setPlainText(QString(150, u'x'));
        WaitForTick(main);
        main.Click(u"cmdEnlarge"_s);
        OpenedWindow<frmLargeDisplay>()->showMinimized();
        main.Click(u"cmdEnlarge"_s);
        QVERIFY(!OpenedWindow<frmLargeDisplay>()->isMinimized());
        QVERIFY(OpenedWindow<frmLargeDisplay>()->isVisible());
    }

    void EnlargingBlanksEmptiesThemAndSaysSo_data() {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("prompt");
        QTest::addColumn<QString>("title");
        QTest::newRow("English") << "optLanguageIsEnglish"
                                 << "The output window is empty."
                                 << "Output window";
        QTest::newRow("German") << "optLanguageIsGerman"
                                << "Das Ausgabefenster is leer."
                                << "Ausgabefenster";
    }
    void EnlargingBlanksEmptiesThemAndSaysSo() {
        QFETCH(QString, language);
        QFETCH(QString, prompt);
        QFETCH(QString, title);
        MainWindowFixture main;
        main.Start();
        main.Click(language);
        Box(main).setPlainText(QString(141, u' '));
        WaitForTick(main);
        main.Click(u"cmdEnlarge"_s);
        QCOMPARE(main.Output(), QString());
        QCOMPARE(main.Shown().size(), 1U);
        const ShownMessage expected{prompt.toStdString(), title.toStdString(), MessageIcon::Exclamation};
        QCOMPARE(main.Shown().front(), expected);
        QCOMPARE(main.Focused(), u"txbFirstDate"_s);
        QVERIFY(OpenedWindow<frmLargeDisplay>() == nullptr);
    }

    void OnlyBlanksAreTrimmed() {
        MainWindowFixture main;
        main.Start();
        const QString text = u"\n"_s + QString(141, u'x') + u"\t\n"_s;
        Box(main).setPlainText(text);
        WaitForTick(main);
        main.Click(u"cmdEnlarge"_s);
        QCOMPARE(main.Output(), text);
    }

    void ResultsFollowEachOtherAndTheEndIsSeen() {
        MainWindowFixture main;
        main.Start();
        main.Click(u"chkVerbose"_s);
        QString expected;
        for (int days = 1; days <= 60; ++days) {
            main.Fill(u"2024-01-01"_s, QString::number(days), QString());
            main.Click(u"cmdCompute"_s);
        }
        QCOMPARE(main.Output().count(u'\n'), 60);
        QVERIFY(main.Output().startsWith(u"2024-01-01 CE plus 1 day = 2024-01-02 CE\n"_s));
        QVERIFY(main.Output().endsWith(u"2024-01-01 CE plus 60 days = 2024-03-01 CE\n"_s));
        // One character before the end: before the last line break.
        QCOMPARE(Box(main).textCursor().position(), main.Output().size() - 1);
        QVERIFY(Box(main).verticalScrollBar()->value() > 0);
        QVERIFY(Box(main).viewport()->rect().contains(Box(main).cursorRect()));
    }

    void TheOutputIsATextBoxLikeAnyOther() {
        MainWindowFixture main;
        main.Start();
        main.Focus(u"txbOutput"_s);
        main.Type(u"note"_s);
        main.Press(Qt::Key_Return);
        main.Press(Qt::Key_Return, Qt::ShiftModifier);
        main.Type(u"more"_s);
        QCOMPARE(main.Output(), u"note\n\nmore"_s);
        QCOMPARE(Box(main).document()->blockCount(), 3);
        main.Press(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(main.Output() != u"note\n\nmore"_s);
        main.Press(Qt::Key_Tab);
        QVERIFY(main.Focused() != u"txbOutput"_s);
    }

    void ASoftLineBreakThatIsPastedBecomesALineBreak() {
        MainWindowFixture main;
        main.Start();
        QGuiApplication::clipboard()->setText(u"one\u2028two"_s);
        Box(main).paste();
        QCOMPARE(Box(main).document()->blockCount(), 2);
    }

    void AppendingToALongOutputKeepsItWhole() {
        MainWindowFixture main;
        main.Start();
        QString longOutput;
        for (int line = 0; line < 20000; ++line) longOutput += QString(48, u'x') + u"\n"_s;
        Box(main).setPlainText(longOutput);
        main.Click(u"chkVerbose"_s);
        main.Fill(u"2024-01-01"_s, u"1"_s, QString());
        main.Click(u"cmdCompute"_s);
        QCOMPARE(main.Output(), longOutput + u"2024-01-01 CE plus 1 day = 2024-01-02 CE\n"_s);
    }
};

QTEST_MAIN(OutputBoxTest)
#include "OutputBoxTest.moc"
