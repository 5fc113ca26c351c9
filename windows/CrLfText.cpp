#include "windows/CrLfText.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>

#include "windows/DocumentText.h"

namespace calvoro {
namespace {

// The document's position of a CR LF offset: an offset inside a line break or a pair of code units goes
// to its beginning, one beyond the end to the end.
int DocumentPosition(QTextDocument& document, int offset) {
    // Every line break before a block adds one to the block's offset, but a soft one takes its own away.
    // Searched from the end, where the offsets asked for lie.
    int softBreaks = SoftBreakCount(document);
    QTextBlock block = document.lastBlock();
    const auto blockOffset = [&] { return block.position() + block.blockNumber() - 2 * softBreaks; };
    while (blockOffset() > offset) {
        if (IsSoftBreak(block)) --softBreaks;
        block = block.previous();
    }
    const int inBlock = std::min(offset - blockOffset(), block.length() - 1);
    const int position = block.position() + inBlock;
    const bool halvesPair = inBlock > 0 && document.characterAt(position - 1).isHighSurrogate() &&
                            document.characterAt(position).isLowSurrogate();
    return halvesPair ? position - 1 : position;
}

}  // namespace

int CrLfLength(const QPlainTextEdit& box) {
    QTextDocument& document = *box.document();
    // The document counts one character more than it shows.
    return document.characterCount() - 1 + document.blockCount() - 1 - 2 * SoftBreakCount(document);
}

std::string CrLfText(const QPlainTextEdit& box) {
    return TextOfDocument(*box.document(), box.document()->toRawText(), 0);
}

std::string SelectedCrLfText(const QPlainTextEdit& box) {
    const QTextCursor caret = box.textCursor();
    return TextOfDocument(*box.document(), caret.selectedText(), caret.selectionStart());
}

void SetCrLfText(QPlainTextEdit& box, std::string_view text) {
    QTextDocument& document = *box.document();
    const bool couldUndo = document.isUndoRedoEnabled();
    document.setUndoRedoEnabled(false);
    // Replaced, not emptied and filled: who follows the text hears of one change.
    QTextCursor cursor(&document);
    cursor.select(QTextCursor::Document);
    InsertInDocument(cursor, text);
    document.setUndoRedoEnabled(couldUndo);
    SetCaret(box, 0);
}

void AppendCrLfText(QPlainTextEdit& box, std::string_view text) {
    const QTextCursor caret = box.textCursor();
    const int anchorBefore = caret.anchor();
    const int positionBefore = caret.position();

    QTextCursor end(box.document());
    end.movePosition(QTextCursor::End);
    InsertInDocument(end, text);

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
