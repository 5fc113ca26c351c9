#include "windows/CrLfText.h"

#include <QRandomGenerator>
#include <QTextBlock>

#include "tests/windows/WindowTesting.h"

namespace calvoro {

class CrLfTextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void CountsALineBreakAsTwoCharacters_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("length");
        QTest::newRow("empty") << QString() << 0;
        QTest::newRow("one line") << QStringLiteral("abc") << 3;
        QTest::newRow("two lines") << QStringLiteral("abc\r\ndef") << 8;
        QTest::newRow("line break at the end") << QStringLiteral("abc\r\n") << 5;
        QTest::newRow("line breaks alone") << QStringLiteral("\r\n\r\n") << 4;
        QTest::newRow("umlauts") << QStringLiteral("\u00E4\u00F6\r\n\u00FC") << 5;
        QTest::newRow("beyond the basic plane") << QStringLiteral("\U0001F600\r\n") << 4;
        QTest::newRow("hard blank") << QStringLiteral("a\u00A0b") << 3;
    }

    void CountsALineBreakAsTwoCharacters() {
        QFETCH(const QString, text);
        QFETCH(const int, length);
        QPlainTextEdit box;
        SetCrLfText(box, text.toStdString());
        QCOMPARE(CrLfLength(box), length);
        QCOMPARE(CrLfText(box), text.toStdString());
        QCOMPARE(ToQt(CrLfText(box)).size(), length);
    }

    void GivesEveryTextBack_data() {
        QTest::addColumn<QByteArray>("text");
        const auto row = [](const char* name, const QByteArray& text) { QTest::newRow(name) << text; };
        row("lone line feed", "a\nb\r\nc\n");
        row("lone carriage return", "a\rb\r\n\r");
        row("all kinds of them", "\n\r\r\n\n\r\n\r\n\r\r");
        row("line separator", "a\u2028b\u2028");
        row("paragraph separator", "a\u2029b\u2029\r\n\u2029");
        row("frames of the toolkit", "a\uFDD0b\uFDD1c");
        row("noncharacters", "\uFDD2\uFDEF\uFFFE\uFFFF\U0001FFFE\U0010FFFF");
        row("byte order marks", "\uFEFF\uFEFFa\uFEFF\r\n\uFEFF");
        row("objects", "a\uFFFCb\uFFFD");
        row("hard blanks and soft hyphens", "\u00A0\u00AD\u200B\u200E\u202E");
        row("private use", "\uE000\U000F0000");
        row("combining marks", "e\u0301\u0301");
        row("pairs", "\U0001F600\U0001F601");
        row("what no text is", "\xC3(\x80\xFF\xED\xA0\x80\xED\xB0\x8D\xF5\xC0\x80\xE2\x82");
        QByteArray control;
        for (int code = 0; code < 0x20; ++code) control += static_cast<char>(code);
        row("control characters", control + "\x7F\u0080\u0085");
        row("a long line",
            QByteArray(5000, 'x') + "\r\n" + QByteArray(1000, 'y') + "\r\n" + QByteArray(1001, 'z'));
        row("long lines of words",
            QByteArray("word ").repeated(2000) + "\r\n" + QByteArray("word ").repeated(300));
        row("long lines of pairs", "x" + QByteArray("\U0001F600").repeated(3000));
        row("long lines of marks", QByteArray("\u0301").repeated(3000));
        row("long lines of nothing",
            QByteArray(5000, '\0') + "\r\n" + QByteArray(5000, '\r') + QByteArray(5000, '\n'));
    }

    void GivesEveryTextBack() {
        QFETCH(const QByteArray, text);
        const std::string bytes = text.toStdString();
        QPlainTextEdit box;
        box.resize(300, 200);
        box.show();
        SetCrLfText(box, bytes);
        QCOMPARE(CrLfText(box), bytes);
        QCOMPARE(CrLfLength(box), ToQt(CrLfText(box)).size());
        box.selectAll();
        QCOMPARE(SelectedCrLfText(box), bytes);
        (void)box.grab();  // painting must not mind
        AppendCrLfText(box, bytes);
        QCOMPARE(CrLfText(box), bytes + bytes);
        QCOMPARE(CrLfLength(box), ToQt(CrLfText(box)).size());
        SetCrLfText(box, "short");
        QCOMPARE(CrLfText(box), std::string("short"));
        QCOMPARE(CrLfLength(box), 5);
    }

    void GivesRandomTextBack() {
        // Pieces that meet each other in every way.
        const QByteArrayList pieces = {"\r",
                                       "\n",
                                       "\r\n",
                                       "\u2029",
                                       "\u2028",
                                       "\uFEFF",
                                       "\uFDD0",
                                       "\uFFFF",
                                       QByteArray(1, '\0'),
                                       "\xFF",
                                       "\xC3",
                                       "a",
                                       "\U0001F600",
                                       "\u0301",
                                       " ",
                                       QByteArray(997, 'x'),
                                       QByteArray(3, 'y'),
                                       QByteArray(2100, 'z')};
        QRandomGenerator random(20261121);
        for (int round = 0; round < 300; ++round) {
            QByteArray text;
            for (int length = random.bounded(12); length > 0; --length)
                text += pieces[random.bounded(pieces.size())];
            const std::string bytes = text.toStdString();
            QPlainTextEdit box;
            SetCrLfText(box, bytes);
            QCOMPARE(CrLfText(box), bytes);
            QCOMPARE(CrLfLength(box), ToQt(bytes).size());
        }
    }

    void LaysOutNoLongLine() {
        QPlainTextEdit box;
        SetCrLfText(box, std::string(5000, 'x') + "\r\n" + std::string(1000, 'y'));
        AppendCrLfText(box, std::string(5000, 'y'));
        QCOMPARE(CrLfText(box), std::string(5000, 'x') + "\r\n" + std::string(6000, 'y'));
        for (QTextBlock block = box.document()->begin(); block.isValid(); block = block.next()) {
            QVERIFY(block.length() <= 1001);
        }
        QCOMPARE(box.document()->blockCount(), 11);
    }

    void BreaksALongLineBehindABlank() {
        QPlainTextEdit box;
        SetCrLfText(box, std::string(900, 'x') + " " + std::string(900, 'y'));
        QCOMPARE(box.document()->blockCount(), 2);
        QCOMPARE(box.document()->firstBlock().text(), QString(900, u'x') + u' ');
    }

    void UndoingGivesTheTextBack() {
        QPlainTextEdit box;
        const std::string text = std::string(5000, 'x') + "\r\nend";
        SetCrLfText(box, text);
        QTextCursor part(box.document());
        part.setPosition(500);
        part.setPosition(3500, QTextCursor::KeepAnchor);
        part.removeSelectedText();
        QCOMPARE(CrLfText(box), std::string(2003, 'x') + "\r\nend");
        QCOMPARE(CrLfLength(box), 2008);
        box.undo();
        QCOMPARE(CrLfText(box), text);
        QCOMPARE(CrLfLength(box), 5005);
        box.redo();
        QCOMPARE(CrLfText(box), std::string(2003, 'x') + "\r\nend");
    }

    void RemovingALineFromItsBeginningKeepsTheBreakBeforeIt() {
        QPlainTextEdit box;
        SetCrLfText(box, "a\r\n" + std::string(5000, 'x'));
        QTextCursor part(box.document());
        part.setPosition(2);
        part.setPosition(2600, QTextCursor::KeepAnchor);
        part.removeSelectedText();
        QVERIFY(QString::fromStdString(CrLfText(box)).startsWith(QStringLiteral("a\r\nxxx")));
    }

    void AppendsAsRewritingTheWholeWould_data() {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("piece");
        QTest::newRow("to nothing") << QString() << QStringLiteral("abc");
        QTest::newRow("a line break") << QStringLiteral("abc") << QStringLiteral("\r\n");
        QTest::newRow("lines") << QStringLiteral("abc\r\n") << QStringLiteral("d\r\n\r\ne");
        QTest::newRow("nothing") << QStringLiteral("abc") << QString();
    }

    void AppendsAsRewritingTheWholeWould() {
        QFETCH(const QString, before);
        QFETCH(const QString, piece);
        QPlainTextEdit box;
        SetCrLfText(box, before.toStdString());
        AppendCrLfText(box, piece.toStdString());
        QCOMPARE(CrLfText(box), (before + piece).toStdString());
    }

    void AppendingLeavesCaretAndSelectionWhereTheyAre() {
        QPlainTextEdit box;
        SetCrLfText(box, "abc");
        box.moveCursor(QTextCursor::End);
        AppendCrLfText(box, "def");
        QCOMPARE(box.textCursor().position(), 3);

        box.moveCursor(QTextCursor::Start);
        box.moveCursor(QTextCursor::End, QTextCursor::KeepAnchor);
        AppendCrLfText(box, "\r\nghi");
        QCOMPARE(SelectedCrLfText(box), std::string("abcdef"));
    }

    void GivesTheSelectionWithCrLf() {
        QPlainTextEdit box;
        SetCrLfText(box, "abc\r\ndef");
        QCOMPARE(SelectedCrLfText(box), std::string());
        box.selectAll();
        QCOMPARE(SelectedCrLfText(box), std::string("abc\r\ndef"));
    }

    void CutsToTheFirstCharacters_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("length");
        QTest::addColumn<QString>("left");
        const QString lines = QStringLiteral("abc\r\ndef\r\nghi");
        QTest::newRow("in the last line") << lines << 12 << QStringLiteral("abc\r\ndef\r\ngh");
        QTest::newRow("in the first line") << lines << 2 << QStringLiteral("ab");
        QTest::newRow("before a line break") << lines << 8 << QStringLiteral("abc\r\ndef");
        QTest::newRow("inside a line break") << lines << 9 << QStringLiteral("abc\r\ndef");
        QTest::newRow("behind a line break") << lines << 10 << QStringLiteral("abc\r\ndef\r\n");
        QTest::newRow("everything") << lines << 0 << QString();
        QTest::newRow("nothing") << lines << 13 << lines;
        const QString faces = QStringLiteral("a\U0001F600\U0001F600");
        QTest::newRow("inside a pair") << faces << 4 << QStringLiteral("a\U0001F600");
        QTest::newRow("between pairs") << faces << 3 << QStringLiteral("a\U0001F600");
        QTest::newRow("inside the first pair") << faces << 2 << QStringLiteral("a");
        const QString line(2500, u'x');
        const QString two = line + QStringLiteral("\r\n") + line;
        QTest::newRow("inside a long line") << two << 1700 << QString(1700, u'x');
        QTest::newRow("at a soft break") << two << 2000 << QString(2000, u'x');
        QTest::newRow("behind a long line") << two << 2502 << line + QStringLiteral("\r\n");
        QTest::newRow("inside the second long line") << two << 3600 << two.left(3600);
    }

    void CutsToTheFirstCharacters() {
        QFETCH(const QString, text);
        QFETCH(const int, length);
        QFETCH(const QString, left);
        QPlainTextEdit box;
        SetCrLfText(box, text.toStdString());
        CutCrLfText(box, length);
        QCOMPARE(CrLfText(box), left.toStdString());
    }

    void PutsTheCaretBeforeACharacter_data() {
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("position");  // in the document, where a line break is one
        QTest::newRow("beginning") << 0 << 0;
        QTest::newRow("end of a line") << 3 << 3;
        QTest::newRow("inside a line break") << 4 << 3;
        QTest::newRow("beginning of a line") << 5 << 4;
        QTest::newRow("end") << 8 << 7;
        QTest::newRow("beyond the end") << 100 << 7;
    }

    void PutsTheCaretBeforeACharacter() {
        QFETCH(const int, offset);
        QFETCH(const int, position);
        QPlainTextEdit box;
        SetCrLfText(box, "abc\r\ndef");
        box.selectAll();
        SetCaret(box, offset);
        QCOMPARE(box.textCursor().position(), position);
        QVERIFY(!box.textCursor().hasSelection());
    }
};

}  // namespace calvoro

QTEST_MAIN(calvoro::CrLfTextTest)
#include "CrLfTextTest.moc"
