#include "windows/LineBox.h"

#include "windows/AccessibleSilence.h"

namespace calvoro {

void LineBox::focusInEvent(QFocusEvent* event) {
    const AccessibleSilence silence;
    QLineEdit::focusInEvent(event);
}

}  // namespace calvoro
