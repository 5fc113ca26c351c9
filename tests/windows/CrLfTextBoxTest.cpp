// What the keyboard and the clipboard do in a box whose long lines are broken by the document alone.

#include "windows/CrLfTextBox.h"

#include <QClipboard>
#include <QScrollBar>
#include <QTextBlock>

#include "tests/windows/WindowTesting.h"
#include "windows/CrLfText.h"

namespace calvoro {

class CrLfTextBoxTest : public QObject {
    Q_OBJECT

private:
    // The soft break lies between b and c.
    static std::string Broken() { return std::string(999, 'a') + "bc" + std::string(500, 'd'); }
    static constexpr int kBeforeBreak = 1000;
    static constexpr int kBehindBreak = 1001;

    static void Fill(CrLfTextBox& box, const std::string& text) {
        SetCrLfText(box, text);
        box.resize(400, 300);
        box.show();
    }

    static void PutCaret(CrLfTextBox& box, int position) {
        QTextCursor caret(box.document());
        caret.setPosition(position);
        box.setTextCursor(caret);
    }

private Q_SLOTS:
    void KeysDoNotMeetTheSoftBreak_data() {
        QTest::addColumn<int>("position");
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<QByteArray>("middle");
        QTest::newRow("Backspace behind it") << kBehindBreak << Qt::Key_Backspace << QByteArray("ac");
        QTest::newRow("Backspace before it") << kBeforeBreak << Qt::Key_Backspace << QByteArray("ac");
        QTest::newRow("Delete before it") << kBeforeBreak << Qt::Key_Delete << QByteArray("abd");
        QTest::newRow("Delete behind it") << kBehindBreak << Qt::Key_Delete << QByteArray("abd");
        QTest::newRow("Enter before it") << kBeforeBreak << Qt::Key_Return << QByteArray("ab\r\nc");
        QTest::newRow("Enter behind it") << kBehindBreak << Qt::Key_Return << QByteArray("ab\r\nc");
        QTest::newRow("a letter before it") << kBeforeBreak << Qt::Key_X << QByteArray("abxc");
        QTest::newRow("a letter behind it") << kBehindBreak << Qt::Key_X << QByteArray("abxc");
    }

    void KeysDoNotMeetTheSoftBreak() {
        QFETCH(const int, position);
        QFETCH(const Qt::Key, key);
        QFETCH(const QByteArray, middle);
        CrLfTextBox box(nullptr);
        Fill(box, Broken());
        QCOMPARE(box.document()->blockCount(), 2);
        PutCaret(box, position);
        QTest::keyClick(&box, key);
        const bool takesC = middle == "abd";
        const std::string expected =
            std::string(998, 'a') + middle.toStdString() + std::string(takesC ? 499 : 500, 'd');
        QCOMPARE(CrLfText(box), expected);
        QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(CrLfText(box), Broken());
    }

    void RealLineBreaksAreDeletedAsEver() {
        CrLfTextBox box(nullptr);
        Fill(box, "ab\r\ncd");
        PutCaret(box, 3);
        QTest::keyClick(&box, Qt::Key_Backspace);
        QCOMPARE(CrLfText(box), std::string("abcd"));
    }

    void TheClipboardGetsTheTextAndNotItsBreaks() {
        CrLfTextBox box(nullptr);
        Fill(box, "one\r\n" + Broken() + "\r\n\xEF\xBB\xBFlast");
        box.selectAll();
        QTest::keyClick(&box, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text().toStdString(),
                 "one\n" + Broken() + "\n\xEF\xBB\xBFlast");
    }

    void WhatIsPastedHasTheLineEndsOfTheBox() {
        CrLfTextBox box(nullptr);
        Fill(box, "<>");
        PutCaret(box, 1);
        QGuiApplication::clipboard()->setText(QStringLiteral("1\n2\r\n3\r4\u2028") +
                                              QStringLiteral("5\u2029") + QStringLiteral("6"));
        box.paste();
        QCOMPARE(CrLfText(box), std::string("<1\r\n2\r\n3\r\n4\r\n5\r\n6>"));
        QCOMPARE(box.textCursor().position(), 12);
        box.undo();
        QCOMPARE(CrLfText(box), std::string("<>"));
    }

    void ACaretThatIsSeenStaysSeen() {
        CrLfTextBox box(nullptr);
        std::string lines;
        for (int line = 0; line < 100; ++line) lines += "line\r\n";
        Fill(box, lines);
        box.moveCursor(QTextCursor::End);
        box.resize(400, 100);
        QVERIFY(box.viewport()->rect().contains(box.cursorRect()));
        // One that the user has scrolled away from is left alone.
        box.verticalScrollBar()->setValue(0);
        box.resize(400, 80);
        QCOMPARE(box.verticalScrollBar()->value(), 0);
    }

    void ALongLineThatIsPastedIsBroken() {
        CrLfTextBox box(nullptr);
        Fill(box, "");
        QGuiApplication::clipboard()->setText(QString(100'000, u'x'));
        box.paste();
        QCOMPARE(CrLfText(box), std::string(100'000, 'x'));
        QCOMPARE(box.document()->blockCount(), 100);
    }
};

}  // namespace calvoro

QTEST_MAIN(calvoro::CrLfTextBoxTest)
#include "CrLfTextBoxTest.moc"
