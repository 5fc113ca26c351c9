#include "mainwindow/SpinArrows.h"

#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "windows/AccessibleRole.h"

namespace calvoro {

SpinArrows::SpinArrows(QWidget* parent)
    : QWidget(parent), up_(MakeArrow(Qt::UpArrow, 1)), down_(MakeArrow(Qt::DownArrow, -1)) {
    SetAccessibleRole(*this, QAccessible::Grouping);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(up_);
    column->addWidget(down_);
    // As high as the box beside it, whatever the font.
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
}

QToolButton* SpinArrows::MakeArrow(Qt::ArrowType type, int value) {
    auto* arrow = new QToolButton(this);
    arrow->setObjectName(value > 0 ? QStringLiteral("up") : QStringLiteral("down"));
    arrow->setArrowType(type);
    arrow->setAutoRepeat(true);
    // With the keyboard the date box itself takes Up and Down.
    arrow->setFocusPolicy(Qt::NoFocus);
    arrow->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
    connect(arrow, &QToolButton::clicked, this, [this, value] { Q_EMIT Stepped(value); });
    return arrow;
}

void SpinArrows::SetAccessibleNames(const QString& both, const QString& up, const QString& down) {
    setAccessibleName(both);
    up_->setAccessibleName(up);
    down_->setAccessibleName(down);
}

void SpinArrows::Release() {
    up_->setDown(false);
    down_->setDown(false);
}

void SpinArrows::wheelEvent(QWheelEvent* event) {
    const int turned = event->angleDelta().y();
    if (turned != 0) Q_EMIT Stepped(turned > 0 ? 1 : -1);
    event->accept();
}

}  // namespace calvoro
