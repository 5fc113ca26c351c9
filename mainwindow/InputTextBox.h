#pragma once

// The line of an input box. What is pasted or dropped into it loses the line ends, tabs and blanks at its
// two ends: they could not be seen, and no reader takes them.

#include <QClipboard>

#include "windows/LineBox.h"

namespace calvoro {

class InputTextBox : public LineBox {
    Q_OBJECT

public:
    explicit InputTextBox(QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void Paste(QClipboard::Mode mode);
};

}  // namespace calvoro
