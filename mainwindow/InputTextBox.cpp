#include "mainwindow/InputTextBox.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <algorithm>
#include <limits>

namespace calvoro {
namespace {

// At the ends of a text that was copied with the line it stood in.
bool IsLeftOver(QChar character) {
    switch (character.unicode()) {
        case u' ':
        case u'\t':
        case u'\n':
        case u'\r':
        case QChar::LineSeparator:
        case QChar::ParagraphSeparator: return true;
        default: return false;
    }
}

QString WithoutLeftOvers(const QString& text) {
    const auto begin = std::find_if_not(text.begin(), text.end(), IsLeftOver);
    const auto end = std::find_if_not(text.rbegin(), text.rend(), IsLeftOver).base();
    return begin < end ? QString(begin, end - begin) : QString();
}

}  // namespace

InputTextBox::InputTextBox(QWidget* parent) : LineBox(parent) {
    setMaxLength(std::numeric_limits<int>::max());  // the toolkit's own limit would cut a text that was saved
}

void InputTextBox::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Paste)) {
        const bool ofSelection =
            event->key() == Qt::Key_Insert && event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
        Paste(ofSelection ? QClipboard::Selection : QClipboard::Clipboard);
        event->accept();
    } else {
        LineBox::keyPressEvent(event);
    }
}

void InputTextBox::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton && QGuiApplication::clipboard()->supportsSelection()) {
        deselect();
        Paste(QClipboard::Selection);
    } else {
        LineBox::mouseReleaseEvent(event);
    }
}

void InputTextBox::OfferLists(const QString& fromClipboard, const QString& fromFile) {
    listFromClipboard_ = fromClipboard;
    listFromFile_ = fromFile;
}

bool InputTextBox::IsList(const QString& text) const {
    return !listFromClipboard_.isEmpty() && HasSeveralLines(text);
}

void InputTextBox::dropEvent(QDropEvent* event) {
    const std::optional<GivenList> given = GivenListOf(event->mimeData());
    if (given && (!given->path.isEmpty() || IsList(given->text))) {
        QDragLeaveEvent leave;  // takes the caret away that marks the place of the drop
        LineBox::dragLeaveEvent(&leave);
        // What is dragged stays where it is.
        event->setDropAction(Qt::CopyAction);
        event->accept();
        Q_EMIT ListGiven(*given);
        return;
    }
    const QString text = event->mimeData()->text();
    const QString trimmed = WithoutLeftOvers(text);
    if (trimmed.size() == text.size()) {
        LineBox::dropEvent(event);
        return;
    }
    QMimeData shorter;
    shorter.setText(trimmed);
    QDropEvent drop(event->position(), event->possibleActions(), &shorter, event->buttons(),
                    event->modifiers());
    drop.setDropAction(event->dropAction());
    LineBox::dropEvent(&drop);
    event->setDropAction(drop.dropAction());
    event->setAccepted(drop.isAccepted());
}

void InputTextBox::contextMenuEvent(QContextMenuEvent* event) {
    QMenu* menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QAction* action : menu->actions()) {
        // The toolkit gives its actions no names; the shortcut stands behind the words.
        if (action->text().section(QLatin1Char('\t'), 0, 0) != QLineEdit::tr("&Paste")) continue;
        disconnect(action, &QAction::triggered, this, nullptr);
        connect(action, &QAction::triggered, this, [this] { Paste(QClipboard::Clipboard); });
    }
    if (!listFromClipboard_.isEmpty()) {
        menu->addSeparator();
        connect(menu->addAction(listFromClipboard_), &QAction::triggered, this,
                &InputTextBox::ListFromClipboardWanted);
        connect(menu->addAction(listFromFile_), &QAction::triggered, this, &InputTextBox::ListFromFileWanted);
    }
    menu->popup(event->globalPos());
}

void InputTextBox::Paste(QClipboard::Mode mode) {
    const QString pasted = QGuiApplication::clipboard()->text(mode);
    if (IsList(pasted)) {
        Q_EMIT ListGiven({pasted, QString()});
        return;
    }
    const QString text = WithoutLeftOvers(pasted);
    if (!text.isEmpty() || hasSelectedText()) insert(text);
}

}  // namespace calvoro
