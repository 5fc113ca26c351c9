#include <QCloseEvent>
#include <QTimer>
#include <QWindow>
#include <algorithm>

#include "tests/windows/LargeWindow.h"

namespace calvoro {

class frmLargeDisplayButtonsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TheCopyButtonFitsWhatIsSelected_data() {
        QTest::addColumn<QString>("caption");
        QTest::addColumn<bool>("selected");
        QTest::addColumn<QString>("newCaption");
        QTest::addColumn<int>("german");
        QTest::addColumn<int>("other");
        const QString copy = QStringLiteral("Copy to clipboard");
        const QString copySelected = QStringLiteral("Copy selected text to clipboard");
        const QString pause = QStringLiteral("Pause");
        const QString goOn = QStringLiteral("Continue");
        QTest::newRow("Pause") << pause << false << pause << 4000 << 2000;
        QTest::newRow("Pause, selected") << pause << true << pause << 4000 << 2000;
        QTest::newRow("Continue") << goOn << false << goOn << 3000 << 2000;
        QTest::newRow("Continue, selected") << goOn << true << goOn << 3000 << 2000;
        QTest::newRow("nothing selected") << copy << false << copy << 3500 << 2500;
        QTest::newRow("selected") << copy << true << copySelected << 3500 << 3500;
        QTest::newRow("no more selected") << copySelected << false << copy << 3500 << 2500;
    }

    void TheCopyButtonFitsWhatIsSelected() {
        QFETCH(const QString, caption);
        QFETCH(const bool, selected);
        QFETCH(const QString, newCaption);
        QFETCH(const int, german);
        QFETCH(const int, other);
        for (const LanguageNumber language : {LanguageEnglish, LanguageGerman}) {
            LargeWindow large;
            large.window.Output("some text", 0, false);
            large.texts.TextLanguage = language;
            large.Copy().setText(caption);
            if (selected) large.Select(0, 4);
            large.window.SetCopyToClipboardButton();
            QCOMPARE(large.CopyCaption(), newCaption);
            const int described = TwipsToPixels(language == LanguageGerman ? german : other);
            QCOMPARE(large.Copy().width(), std::max(described, large.Copy().sizeHint().width()));
        }
    }

    void DeliberatelyCaptionsStayEnglish() {
        LargeWindow large;
        large.texts.InterfaceLanguage = LanguageGerman;
        large.texts.TextLanguage = LanguageGerman;
        large.Show();
        QCOMPARE(large.CopyCaption(), QStringLiteral("Copy to clipboard"));
        QCOMPARE(large.CloseCaption(), QStringLiteral("Close"));
        QCOMPARE(large.Box().accessibleName(), QStringLiteral("Ausgabefenster"));
    }

    void ActivationSetsTheCopyButtonsWidth_data() {
        QTest::addColumn<int>("language");
        QTest::addColumn<int>("twips");
        QTest::newRow("English") << int{LanguageEnglish} << 2000;
        QTest::newRow("German") << int{LanguageGerman} << 4000;
    }

    void ActivationSetsTheCopyButtonsWidth() {
        QFETCH(const int, language);
        QFETCH(const int, twips);
        LargeWindow large;
        large.texts.TextLanguage = static_cast<LanguageNumber>(language);
        QVERIFY(!large.window.Activated());
        large.Show();
        QVERIFY(large.window.Activated());
        QCOMPARE(large.Copy().width(), std::max(TwipsToPixels(twips), large.Copy().sizeHint().width()));
        QCOMPARE(large.window.focusWidget(), &large.Close());
    }

    void ActivationBringsBackTheNormalSize() {
        LargeWindow large;
        large.Show();
        large.window.showMaximized();
        large.mainWindow.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&large.mainWindow));
        large.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&large.window));
        QVERIFY(!large.window.isMaximized());

        large.window.showMinimized();
        large.window.Form_Activate();
        QVERIFY(!large.window.isMinimized());
    }

    void CopiesTheWholeText() {
        LargeWindow large;
        large.Show();
        large.window.Output("first\r\nsecond", 1, false);
        ClickOn(large.Copy());
        const std::vector<std::string> calls = {"Clear", "SetText first\r\nsecond\r\n"};
        QVERIFY(large.fake.clipboard.calls == calls);
        QCOMPARE(large.window.focusWidget(), &large.Close());
    }

    void CopiesTheSelectionAndEndsIt() {
        LargeWindow large;
        large.Show();
        large.window.Output("first\r\nsecond", 0, false);
        large.Select(2, 8);
        QCOMPARE(large.CopyCaption(), QStringLiteral("Copy selected text to clipboard"));
        ClickOn(large.Copy());
        QCOMPARE(large.fake.clipboard.text, std::string("rst\r\nse"));
        QVERIFY(!large.Box().textCursor().hasSelection());
        QCOMPARE(large.Box().textCursor().position(), 2);
        QCOMPARE(large.CopyCaption(), QStringLiteral("Copy to clipboard"));
    }

    void TheCaptionFollowsTheSelectionWithoutMovingTheFocus() {
        LargeWindow large;
        large.Show();
        large.window.Output("some text", 0, false);
        large.Box().setFocus();
        QTest::keyClick(&large.Box(), Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(large.CopyCaption(), QStringLiteral("Copy selected text to clipboard"));
        QTest::keyClick(&large.Box(), Qt::Key_Right);
        QCOMPARE(large.CopyCaption(), QStringLiteral("Copy to clipboard"));
        QCOMPARE(large.window.focusWidget(), &large.Box());
    }

    void EnterCopiesASelection() {
        LargeWindow large;
        large.Show();
        large.window.Output("some text", 0, false);
        large.Box().setFocus();
        QTest::keyClick(&large.Box(), Qt::Key_Return);
        QVERIFY(large.fake.clipboard.calls.empty());

        large.Select(0, 4);
        QTest::keyClick(&large.Box(), Qt::Key_Enter);
        QCOMPARE(large.fake.clipboard.text, std::string("some"));
        QCOMPARE(large.Text(), std::string("some text"));
    }

    void PauseWaitsForContinue() {
        LargeWindow large;
        large.Show();
        large.window.OfferPauseAndStop();
        QCOMPARE(large.CopyCaption(), QStringLiteral("Pause"));
        QCOMPARE(large.CloseCaption(), QStringLiteral("Stop"));
        QStringList captions;
        QTimer::singleShot(50, &large.window, [&] {
            captions << large.CopyCaption() << large.CloseCaption();
            ClickOn(large.Copy());
            captions << large.CopyCaption();
        });
        ClickOn(large.Copy());  // returns when the pause is over
        const QStringList expected = {QStringLiteral("Continue"), QStringLiteral("Stop"),
                                      QStringLiteral("Pause")};
        QCOMPARE(captions, expected);
        QCOMPARE(large.CopyCaption(), QStringLiteral("Pause"));
        QVERIFY(large.fake.clipboard.calls.empty());
        QVERIFY(!large.window.Stopped());
    }

    void OutputGoesOnDuringAPause() {
        LargeWindow large;
        large.Show();
        large.window.OfferPauseAndStop();
        QTimer::singleShot(20, &large.window, [&large] { large.window.Output("written", 0, false); });
        QTimer::singleShot(50, &large.window, [&large] { ClickOn(large.Copy()); });
        ClickOn(large.Copy());
        QCOMPARE(large.Text(), std::string("written"));
    }

    void HidingTheWindowEndsAPause() {
        LargeWindow large;
        large.Show();
        large.window.OfferPauseAndStop();
        QTimer::singleShot(50, &large.window, [&large] { large.window.hide(); });
        ClickOn(large.Copy());
        QVERIFY(!large.window.isVisible());
        QCOMPARE(large.CopyCaption(), QStringLiteral("Continue"));
    }

    void StopAndThenCloseEndAPause() {
        LargeWindow large;
        large.Show();
        large.window.OfferPauseAndStop();
        bool visibleAfterStop = false;
        QTimer::singleShot(50, &large.window, [&] {
            ClickOn(large.Close());
            visibleAfterStop = large.window.isVisible();
            ClickOn(large.Close());
        });
        ClickOn(large.Copy());
        QVERIFY(visibleAfterStop);
        QVERIFY(!large.window.isVisible());
    }

    void StopTurnsIntoClose() {
        LargeWindow large;
        large.Show();
        QVERIFY(large.window.Stopped());
        large.window.OfferPauseAndStop();
        large.Copy().setEnabled(false);
        QVERIFY(!large.window.Stopped());
        ClickOn(large.Close());
        QVERIFY(large.window.Stopped());
        QCOMPARE(large.CloseCaption(), QStringLiteral("Close"));
        QVERIFY(large.Copy().isEnabled());
        QVERIFY(large.window.isVisible());
        ClickOn(large.Close());
        QVERIFY(!large.window.isVisible());
    }

    void ClosingHidesInTheNormalState_data() {
        QTest::addColumn<QString>("way");
        for (const char* way : {"button", "frame", "Esc"}) QTest::newRow(way) << QString::fromLatin1(way);
    }

    void ClosingHidesInTheNormalState() {
        QFETCH(const QString, way);
        LargeWindow large;
        large.Show();
        large.window.Output("kept", 0, false);
        large.window.showMaximized();
        if (way == QStringLiteral("button")) ClickOn(large.Close());
        if (way == QStringLiteral("frame")) large.window.close();
        if (way == QStringLiteral("Esc")) QTest::keyClick(&large.Box(), Qt::Key_Escape);
        QVERIFY(!large.window.isVisible());
        QVERIFY(!large.window.isMaximized());
        QCOMPARE(large.Text(), std::string("kept"));
        QVERIFY(!large.window.testAttribute(Qt::WA_QuitOnClose));
    }

    void ACloseFromTheFrameStopsALongOutputFirst() {
        LargeWindow large;
        large.Show();
        large.window.OfferPauseAndStop();
        CloseFromTheFrame(large.window);
        QVERIFY(large.window.isVisible());
        QVERIFY(large.window.Stopped());
        CloseFromTheFrame(large.window);
        QVERIFY(!large.window.isVisible());
    }

    void TheEndOfTheProgramIsNotHeldUp() {
        LargeWindow large;
        large.Show();
        large.window.OfferPauseAndStop();
        QVERIFY(large.window.close());
        QVERIFY(!large.window.isVisible());
    }

    void IsUsableByKeyboardAndScreenReader() {
        LargeWindow large;
        large.Show();
        CheckKeysAreUnique(large.window, 2);
        CheckAccessibleNames(large.window);
        const QStringList order = {QStringLiteral("txbOutput"), QStringLiteral("cmdCopyToClipboard"),
                                   QStringLiteral("cmdClose")};
        QCOMPARE(TabOrderFrom(large.Box()), order);
        large.window.OfferPauseAndStop();
        CheckKeysAreUnique(large.window, 2);
        QTest::keyClick(&large.Close(), Qt::Key_Return);
        QVERIFY(large.window.Stopped());
    }

private:
    // A close as the window system sends it.
    static void CloseFromTheFrame(QWidget& window) {
        QCloseEvent event;
        QCoreApplication::sendEvent(window.windowHandle(), &event);
    }
};

}  // namespace calvoro

QTEST_MAIN(calvoro::frmLargeDisplayButtonsTest)
#include "frmLargeDisplayButtonsTest.moc"
