#include "windows/CrLfText.h"

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

    void ReadsLineFeedsAsLineBreaks() {
        QPlainTextEdit box;
        SetCrLfText(box, "a\nb\r\nc");
        QCOMPARE(CrLfText(box), std::string("a\r\nb\r\nc"));
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
