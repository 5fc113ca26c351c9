#include "windows/CrLfTextBox.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QResizeEvent>
#include <QTextBlockFormat>
#include <QTextCharFormat>

#include "windows/CrLfText.h"
#include "windows/DocumentText.h"
#include "windows/QtText.h"

namespace calvoro {
namespace {

// However lines are separated in it, and with the ends that every line here has.
QString WithCrLf(QString text) {
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    for (const QChar separator :
         {QChar(u'\r'), QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator)}) {
        text.replace(separator, u'\n');
    }
    return text.replace(u'\n', QLatin1String("\r\n"));
}

}  // namespace

CrLfTextBox::CrLfTextBox(QWidget* parent) : QPlainTextEdit(parent) {
    setTabChangesFocus(true);
}

void CrLfTextBox::keyPressEvent(QKeyEvent* event) {
    const bool breaksLine = event->matches(QKeySequence::InsertParagraphSeparator) ||
                            event->matches(QKeySequence::InsertLineSeparator);
    if (breaksLine && !isReadOnly()) {
        // The toolkit would give the new break the kind of the one before the caret, or half a break.
        textCursor().insertBlock(QTextBlockFormat(), QTextCharFormat());
        ensureCursorVisible();
        event->accept();
        return;
    }
    StandBesideWhatIsDeleted(*event);
    QPlainTextEdit::keyPressEvent(event);
}

// A caret at a soft break goes to the side from which the key deletes, which else would delete the break,
// that is nothing.
void CrLfTextBox::StandBesideWhatIsDeleted(const QKeyEvent& key) {
    QTextCursor caret = textCursor();
    if (isReadOnly() || caret.hasSelection()) return;
    const bool forwards = key.key() == Qt::Key_Delete || key.matches(QKeySequence::DeleteEndOfLine) ||
                          key.matches(QKeySequence::Delete);
    if (key.key() == Qt::Key_Backspace && caret.atBlockStart() && IsSoftBreak(caret.block())) {
        caret.movePosition(QTextCursor::PreviousCharacter);
    } else if (forwards && caret.atBlockEnd() && IsSoftBreak(caret.block().next())) {
        caret.movePosition(QTextCursor::NextCharacter);
    } else {
        return;
    }
    setTextCursor(caret);
}

QMimeData* CrLfTextBox::createMimeDataFromSelection() const {
    QString text = ToQt(SelectedCrLfText(*this));
#ifndef Q_OS_WIN
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
#endif
    auto* const selection = new QMimeData;
    selection->setText(text);
    return selection;
}

void CrLfTextBox::insertFromMimeData(const QMimeData* source) {
    QTextCursor caret = textCursor();
    InsertInDocument(caret, FromQt(WithCrLf(source->text())));
    setTextCursor(caret);
    ensureCursorVisible();
}

void CrLfTextBox::resizeEvent(QResizeEvent* event) {
    const bool wasSeen = QRect(QPoint(), event->oldSize()).intersects(cursorRect());
    QPlainTextEdit::resizeEvent(event);
    if (wasSeen) ensureCursorVisible();
}

}  // namespace calvoro
