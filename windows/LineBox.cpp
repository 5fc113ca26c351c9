#include "windows/LineBox.h"

#include <QAccessible>

namespace calvoro {

void LineBox::focusInEvent(QFocusEvent* event) {
    const QAccessible::UpdateHandler usual = QAccessible::installUpdateHandler([](QAccessibleEvent*) {});
    QLineEdit::focusInEvent(event);
    QAccessible::installUpdateHandler(usual);
}

}  // namespace calvoro
