#pragma once

#include <QLineEdit>

namespace calvoro {

/// A line of text that a screen reader reads out when it gets the focus. The toolkit selects the text on the
/// way in, and tells of the selection and the caret before it tells of the focus; a reader that hears of the
/// caret first takes the box for the one it has read already, and is silent.
class LineBox : public QLineEdit {
    Q_OBJECT

public:
    explicit LineBox(QWidget* parent) : QLineEdit(parent) {}

protected:
    void focusInEvent(QFocusEvent* event) override;
};

}  // namespace calvoro
