#include "windows/CrLfText.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>

#include "windows/QtText.h"

namespace calvoro {
namespace {

std::string WithCrLf(QString raw) {
    raw.replace(QChar::ParagraphSeparator, QStringLiteral("\r\n"));
    return raw.toStdString();
}

// The document's position of a CR LF offset: an offset inside a line break or a pair of code units goes
// to its beginning, one beyond the end to the end.
int DocumentPosition(const QTextDocument& document, int offset) {
    // Every line break before a block adds one to the block's offset. Searched from the end, where the
    // offsets asked for lie.
    QTextBlock block = document.lastBlock();
    while (block.position() + block.blockNumber() > offset) block = block.previous();
    const int inBlock = std::min(offset - block.position() - block.blockNumber(), block.length() - 1);
    const int position = block.position() + inBlock;
    const bool halvesPair = inBlock > 0 && document.characterAt(position - 1).isHighSurrogate() &&
                            document.characterAt(position).isLowSurrogate();
    return halvesPair ? position - 1 : position;
}

}  // namespace

int CrLfLength(const QPlainTextEdit& box) {
    const QTextDocument& document = *box.document();
    // The document counts one character more than it shows.
    return document.characterCount() - 1 + document.blockCount() - 1;
}

std::string CrLfText(const QPlainTextEdit& box) {
    return WithCrLf(box.document()->toRawText());
}

std::string SelectedCrLfText(const QPlainTextEdit& box) {
    return WithCrLf(box.textCursor().selectedText());
}

void SetCrLfText(QPlainTextEdit& box, std::string_view text) {
    box.setPlainText(ToQt(text));
}

void AppendCrLfText(QPlainTextEdit& box, std::string_view text) {
    const QTextCursor caret = box.textCursor();
    const int anchorBefore = caret.anchor();
    const int positionBefore = caret.position();

    QTextCursor end(box.document());
    end.movePosition(QTextCursor::End);
    end.insertText(ToQt(text));

    // A caret that stood at the end has moved on with the text.
    if (box.textCursor().position() != positionBefore || box.textCursor().anchor() != anchorBefore) {
        QTextCursor kept(box.document());
        kept.setPosition(anchorBefore);
        kept.setPosition(positionBefore, QTextCursor::KeepAnchor);
        box.setTextCursor(kept);
    }
}

void CutCrLfText(QPlainTextEdit& box, int length) {
    QTextCursor tail(box.document());
    tail.setPosition(DocumentPosition(*box.document(), length));
    tail.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    tail.removeSelectedText();
}

void SetCaret(QPlainTextEdit& box, int offset) {
    QTextCursor caret(box.document());
    caret.setPosition(DocumentPosition(*box.document(), offset));
    box.setTextCursor(caret);
}

}  // namespace calvoro
