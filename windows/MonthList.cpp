#include "windows/MonthList.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QWheelEvent>

namespace calvoro {

void MonthList::keyPressEvent(QKeyEvent* event) {
    const bool withoutMeaningHere = (event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) != 0;
    switch (event->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Home:
        case Qt::Key_End:
            if (!withoutMeaningHere) {
                showPopup();
                return;
            }
            break;
        default:
            if (!withoutMeaningHere && !event->text().isEmpty() && event->text().at(0).isLetterOrNumber()) {
                showPopup();
                QCoreApplication::sendEvent(view(), event);  // goes to the entry that begins with it
                return;
            }
    }
    QComboBox::keyPressEvent(event);
}

void MonthList::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

}  // namespace calvoro
