#include "mainwindow/OutputTextBox.h"

#include <QKeyEvent>
#include <QMimeData>

namespace calvoro {

OutputTextBox::OutputTextBox(QWidget* parent) : QPlainTextEdit(parent) {
    setTabChangesFocus(true);
}

void OutputTextBox::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::InsertLineSeparator)) {
        textCursor().insertBlock();
        ensureCursorVisible();
        event->accept();
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

void OutputTextBox::insertFromMimeData(const QMimeData* source) {
    textCursor().insertText(source->text().replace(QChar::LineSeparator, QChar::ParagraphSeparator));
    ensureCursorVisible();
}

}  // namespace calvoro
