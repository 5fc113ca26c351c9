#pragma once

#include <QComboBox>

namespace calvoro {

/// The drop-down list of months. A key that would choose another entry opens the closed list instead, so that
/// the choice comes with Enter or a click: what is drawn then takes the focus away.
class MonthList : public QComboBox {
    Q_OBJECT

public:
    explicit MonthList(QWidget* parent) : QComboBox(parent) {}

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};

}  // namespace calvoro
