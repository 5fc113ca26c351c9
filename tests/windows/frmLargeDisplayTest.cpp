#include "windows/frmLargeDisplay.h"

#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTextLayout>

#include "tests/windows/LargeWindow.h"
#include "windows/Placement.h"

namespace calvoro {
namespace {

constexpr std::string_view kNotice = " ...\r\n\r\nBUFFER FULL  \r\n";

// Lines of eleven characters with their line breaks, and the rest of a length.
std::string TextOfLength(std::size_t length) {
    std::string text;
    while (text.size() + 11 <= length) text += "123456789\r\n";
    text.append(length - text.size(), 'x');
    return text;
}

}  // namespace

class frmLargeDisplayTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void OutputAppendsTextAndLineBreaks() {
        LargeWindow large;
        large.window.Output("first", 1, false);
        large.window.Output("second", 2, false);
        large.window.Output("third\r\nfourth", 0, false);
        QCOMPARE(large.Text(), std::string("first\r\nsecond\r\n\r\nthird\r\nfourth"));
    }

    void OutputScrollsWhenAsked() {
        LargeWindow large;
        large.Show();
        large.Close().setFocus();
        large.window.Output("first", 1, false);
        QCOMPARE(large.Box().textCursor().position(), 0);
        QCOMPARE(large.window.focusWidget(), &large.Close());
        large.window.Output("second", 0, true);
        QVERIFY(large.Box().textCursor().atEnd());
        QCOMPARE(large.window.focusWidget(), &large.Box());
    }

    void OutputUpToTheLimitIsAccepted() {
        LargeWindow large;
        large.window.Output(TextOfLength(61000), 0, false);
        large.window.Output(std::string(440, 'y'), 0, false);
        QCOMPARE(large.Text().size(), std::size_t{61440});
        // The text stands at the limit, not beyond: the next piece is still accepted.
        large.window.Output("z", 0, false);
        QCOMPARE(large.Text().size(), std::size_t{61441});
        QVERIFY(large.Text().ends_with("yyyz"));
    }

    void DeliberatelyTheLastPieceAcceptedMayPassTheLimit() {
        LargeWindow large;
        large.window.Output("x", 0, false);
        large.window.Output(TextOfLength(100000), 0, false);
        QCOMPARE(large.Text().size(), std::size_t{100001});
    }

    void BeyondTheLimitTheEndIsReplacedByTheNoticeOnce() {
        LargeWindow large;
        large.Show();
        large.Copy().setEnabled(false);
        const std::string text = TextOfLength(61441);
        large.window.Output(text, 0, false);
        large.window.Output("lost", 1, false);
        const std::string full = text.substr(0, 61441 - 512) + std::string(kNotice);
        QCOMPARE(large.Text(), full);
        QVERIFY(large.Copy().isEnabled());
        QVERIFY(large.Box().textCursor().atEnd());
        QCOMPARE(large.window.focusWidget(), &large.Box());

        large.window.Output("lost too", 1, true);
        QCOMPARE(large.Text(), full);
    }

    void TheNoticeIsFollowedByTheNote() {
        LargeWindow large;
        large.window.SetBufferFullNote("Stopped.");
        large.window.Output(TextOfLength(61441), 0, false);
        large.window.Output("lost", 0, false);
        QVERIFY(large.Text().ends_with("BUFFER FULL  Stopped.\r\n"));
    }

    void TheNoticeNeverHalvesALineBreak() {
        LargeWindow large;
        const std::string text = std::string(61441 - 512 - 1, 'x') + "\r\n" + std::string(511, 'y');
        large.window.Output(text, 0, false);
        large.window.Output("lost", 0, false);
        QCOMPARE(large.Text(), std::string(61441 - 512 - 1, 'x') + std::string(kNotice));
    }

    void ClearLetsOutputInAgain() {
        LargeWindow large;
        large.window.Output(TextOfLength(61441), 0, false);
        large.window.Output("lost", 0, false);
        large.window.Clear();
        QCOMPARE(large.Text(), std::string());
        large.window.Output("kept", 0, false);
        QCOMPARE(large.Text(), std::string("kept"));
        large.window.Output(TextOfLength(61440), 0, false);
        large.window.Output("lost", 0, false);
        QVERIFY(large.Text().ends_with(kNotice));
    }

    void AnEmptiedBoxLetsOutputInAgain() {
        LargeWindow large;
        large.window.Output(TextOfLength(61441), 0, false);
        large.window.Output("lost", 0, false);
        large.Box().clear();
        large.window.Output("kept", 0, false);
        QCOMPARE(large.Text(), std::string("kept"));
    }

    void AppendingTouchesNothingButTheEnd() {
        LargeWindow large;
        large.window.Output(TextOfLength(50000), 0, false);
        QSignalSpy changes(large.Box().document(), &QTextDocument::contentsChange);
        large.window.Output("12345678", 1, true);
        int added = 0;
        for (const QList<QVariant>& change : changes) {
            QCOMPARE(change[1].toInt(), 0);  // characters removed
            added += change[2].toInt();
        }
        QCOMPARE(added, 9);
        QCOMPARE(large.Text().size(), std::size_t{50010});
    }

    void ShowsTheBeginningAndTheEnd() {
        LargeWindow large;
        large.Show();
        large.window.Output("first", 1, false);
        large.window.Output("last", 0, false);
        large.window.ShowEnd();
        QVERIFY(large.Box().textCursor().atEnd());
        QCOMPARE(large.window.focusWidget(), &large.Box());
        large.Close().setFocus();
        large.window.ShowBeginning();
        QVERIFY(large.Box().textCursor().atStart());
        QCOMPARE(large.window.focusWidget(), &large.Box());
    }

    void DisplayArrayReplacesTheText() {
        LargeWindow large;
        large.window.Output("old", 0, false);
        large.window.DisplayArray({"a\\1", "a\\2", "b\\3", "c"}, 0, 2, "unused", true);
        QCOMPARE(large.Text(), std::string("a\\1\r\na\\2\r\n\r\nb\\3"));
        large.window.DisplayArray({std::string(61438, 'x'), "y"}, 0, 1, "", false);
        QCOMPARE(large.Text(), std::string(61438, 'x') + "\r\nBUFFER FULL");
    }

    void WidensForALongLineInTheMiddleOfTheScreen() {
        LargeWindow large;
        large.Show();
        const QRect screen = large.window.screen()->geometry();
        large.window.resize(420, 300);
        large.window.WidenDisplayIfNeeded(std::string(60, 'x'), 150, 0.9);
        QCOMPARE(large.window.width(), 600);
        QCOMPARE(large.window.x(), screen.left() + (screen.width() - 600) / 2);
        QCOMPARE(large.window.height(), 300);
    }

    void WidensNoFurtherThanItsShareOfTheScreen() {
        LargeWindow large;
        const int screen = large.window.screen()->geometry().width();
        large.window.resize(420, 300);
        large.window.WidenDisplayIfNeeded(std::string(5000, 'x'), 150, 0.75);
        QCOMPARE(large.window.width(), screen * 3 / 4);
    }

    void DoesNotWidenWhenThatIsNotNeeded_data() {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("length");
        QTest::addColumn<int>("most");  // the share of the screen, in pixels
        QTest::newRow("fits exactly") << 500 << 50 << 700;
        QTest::newRow("fits") << 500 << 10 << 700;
        QTest::newRow("no text") << 500 << 0 << 700;
        QTest::newRow("at its share of the screen") << 500 << 100 << 500;
        QTest::newRow("beyond its share of the screen") << 500 << 100 << 450;
    }

    void DoesNotWidenWhenThatIsNotNeeded() {
        QFETCH(const int, width);
        QFETCH(const int, length);
        QFETCH(const int, most);
        LargeWindow large;
        const double share = static_cast<double>(most) / large.window.screen()->geometry().width();
        large.window.resize(width, 300);
        large.window.move(7, 8);
        large.window.WidenDisplayIfNeeded(std::string(static_cast<std::size_t>(length), 'x'), 150, share);
        QCOMPARE(large.window.width(), width);
        QCOMPARE(large.window.pos(), QPoint(7, 8));
    }

    void DoesNotWidenAFullBuffer() {
        LargeWindow large;
        large.window.Output(TextOfLength(61441), 0, false);
        large.window.Output("", 0, false);
        large.window.WidenDisplayIfNeeded(std::string(60, 'x'), 150, 0.9);
        QCOMPARE(large.window.width(), 400);
    }

    void CountsCharactersOfTheLineNotBytes() {
        LargeWindow large;
        std::string line;
        for (int i = 0; i < 50; ++i) line += "\xC3\xA4";
        large.window.WidenDisplayIfNeeded(line, 150, 0.9);
        QCOMPARE(large.window.width(), 500);
    }

    void TheFrameCountsInWhatIsPlacedAndWidened() {
        LargeWindow large;
        const QRect screen = large.window.screen()->geometry();
        const QSize frame(8, 30);
        large.window.Place(QRect(20, 40, 450, 330), frame);
        QCOMPARE(large.window.size(), QSize(442, 300));
        QCOMPARE(large.window.pos(), QPoint(20, 40));
        large.window.WidenDisplayIfNeeded(std::string(60, 'x'), 150, 0.9);
        QCOMPARE(large.window.size(), QSize(592, 300));
        QCOMPARE(large.window.pos(), QPoint(screen.left() + (screen.width() - 600) / 2, 40));
    }

    void ACharactersWidthIsItsShareOfAWindowThatShowsTheLineWhole_data() {
        QTest::addColumn<int>("length");
        for (const int length : {1, 40, 60, 61, 75, 80}) QTest::addRow("%d", length) << length;
    }
    void ACharactersWidthIsItsShareOfAWindowThatShowsTheLineWhole() {
        QFETCH(const int, length);
        LargeWindow large;
        const std::string line(static_cast<std::size_t>(length), 'W');
        std::string text = line;
        for (int i = 0; i < 100; ++i) text += "\r\nx";
        large.window.Output(text, 0, false);
        large.window.WidenDisplayIfNeeded(line, large.window.CharacterWidth(line), 1.0);
        large.Show();
        QVERIFY(large.Box().verticalScrollBar()->isVisible());
        QCOMPARE(large.Box().document()->firstBlock().layout()->lineCount(), 1);
    }

    void NoTextHasNoCharactersWidth() {
        LargeWindow large;
        QCOMPARE(large.window.CharacterWidth(""), std::int16_t{0});
    }

    void SpringsBackToItsLeastSize() {
        LargeWindow large;
        large.Show();
        QCOMPARE(large.window.width(), TwipsToPixels(6000));
        large.window.resize(10, 10);
        QCOMPARE(large.window.size(), QSize(TwipsToPixels(6000), TwipsToPixels(3000)));
    }

    void ControlsFollowTheWindowsSize() {
        LargeWindow large;
        large.Show();
        for (const QSize size : {QSize(700, 500), QSize(400, 200)}) {
            large.window.resize(size);
            const int height = size.height() + TwipsToPixels(kTitleBarHeight);
            const int buttonHeight = large.Close().height();
            QCOMPARE(large.Box().width(), size.width() - TwipsToPixels(300));
            QCOMPARE(large.Box().height(), height - buttonHeight - TwipsToPixels(1000));
            QCOMPARE(large.Copy().y(), height - buttonHeight - TwipsToPixels(700));
            QCOMPARE(large.Close().y(), large.Copy().y());
            QCOMPARE(large.Close().x(), size.width() - large.Close().width() - TwipsToPixels(330));
            QCOMPARE(large.Copy().x(), TwipsToPixels(330));
            QVERIFY(large.window.rect().contains(large.Close().geometry()));
        }
    }

    void ALargeFontKeepsTheButtonsApart() {
        LargeWindow large;
        large.Show();
        QFont font = large.window.font();
        font.setPointSize(24);
        large.window.setFont(font);
        large.window.OfferPauseAndStop();
        large.window.resize(10, 10);
        QTRY_COMPARE(large.Close().height(), large.Close().sizeHint().height());
        QVERIFY(large.Copy().geometry().right() < large.Close().x());
        QVERIFY(large.window.rect().contains(large.Close().geometry()));
        QVERIFY(large.Box().geometry().bottom() < large.Copy().y());
        QVERIFY(large.Copy().width() >= large.Copy().sizeHint().width());
    }
};

}  // namespace calvoro

QTEST_MAIN(calvoro::frmLargeDisplayTest)
#include "frmLargeDisplayTest.moc"
