#pragma once

// The line of an input box. What is pasted or dropped into it loses the line ends, tabs and blanks at its
// two ends: they could not be seen, and no reader takes them. What is more than one date is handed on as a
// list, and the box keeps its text.

#include <QClipboard>

#include "windows/LineBox.h"
#include "windows/list/GivenList.h"

namespace calvoro {

class InputTextBox : public LineBox {
    Q_OBJECT

public:
    explicit InputTextBox(QWidget* parent);

    /// Makes this the box of a date, which texts of more than one line are not put into, and whose menu
    /// offers lists. fromClipboard, fromFile  the captions in the menu
    void OfferLists(const QString& fromClipboard, const QString& fromFile);

Q_SIGNALS:
    /// A text of more than one line or, also in the box of a number, a file was pasted or dropped.
    void ListGiven(const GivenList& given);

    /// Chosen from the menu.
    void ListFromClipboardWanted();
    void ListFromFileWanted();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void Paste(QClipboard::Mode mode);
    bool IsList(const QString& text) const;

    QString listFromClipboard_;  // both empty in the box of a number
    QString listFromFile_;
};

}  // namespace calvoro
