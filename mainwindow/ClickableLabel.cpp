#include "mainwindow/ClickableLabel.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

#include "windows/Contrast.h"

namespace calvoro {
namespace {

constexpr int kFocusMargin = 2;  // pixels between the text and the focus frame

class AccessibleClickableLabel : public QAccessibleWidget {
public:
    explicit AccessibleClickableLabel(ClickableLabel* label)
        : QAccessibleWidget(label, label->AccessibleRole()) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? Label()->text() : QAccessibleWidget::text(kind);
    }

    QStringList actionNames() const override {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& action) override {
        if (action == pressAction()) {
            Q_EMIT Label()->Pressed();
        } else {
            QAccessibleWidget::doAction(action);
        }
    }

private:
    ClickableLabel* Label() const { return static_cast<ClickableLabel*>(widget()); }
};

QAccessibleInterface* MakeAccessible(const QString& className, QObject* object) {
    if (className != QLatin1String(ClickableLabel::staticMetaObject.className())) return nullptr;
    auto* label = qobject_cast<ClickableLabel*>(object);
    return label == nullptr ? nullptr : new AccessibleClickableLabel(label);
}

}  // namespace

ClickableLabel::ClickableLabel(QWidget* parent) : QLabel(parent) {
    QAccessible::installFactory(MakeAccessible);  // the same factory is installed once only
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::TabFocus);
    setMargin(kFocusMargin);
    setContextMenuPolicy(Qt::PreventContextMenu);
}

void ClickableLabel::ShowAsLink() {
    role_ = QAccessible::Link;
    FollowPalette();
    setCursor(Qt::PointingHandCursor);
    QFont underlined = font();
    underlined.setUnderline(true);
    setFont(underlined);
}

// A theme that says nothing of links leaves them the dark blue of a light one. The underline remains.
void ClickableLabel::FollowPalette() {
    const QColor link = palette().color(QPalette::Link);
    const bool isRead = Contrast(link, palette().color(QPalette::Window)) >= kLeastContrast;
    const QPalette::ColorRole role = isRead ? QPalette::Link : QPalette::WindowText;
    if (role != foregroundRole()) setForegroundRole(role);
}

void ClickableLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    const bool colours = event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange;
    if (colours && role_ == QAccessible::Link) FollowPalette();
}

void ClickableLabel::ContinueCaption() {
    role_ = QAccessible::StaticText;
    setFocusPolicy(Qt::NoFocus);
    setMargin(0);
}

void ClickableLabel::mousePressEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() == Qt::RightButton) {
        Q_EMIT PressedBackward();
    } else if (event->button() == Qt::LeftButton || event->button() == Qt::MiddleButton) {
        Q_EMIT Pressed();
    }
}

void ClickableLabel::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Space:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (event->modifiers().testFlag(Qt::ShiftModifier)) {
                Q_EMIT PressedBackward();
            } else {
                Q_EMIT Pressed();
            }
            return;
        case Qt::Key_Left: Q_EMIT PressedBackward(); return;
        case Qt::Key_Right: Q_EMIT Pressed(); return;
        default: QLabel::keyPressEvent(event);
    }
}

void ClickableLabel::focusInEvent(QFocusEvent* event) {
    QLabel::focusInEvent(event);
    update();
}

void ClickableLabel::focusOutEvent(QFocusEvent* event) {
    QLabel::focusOutEvent(event);
    update();
}

void ClickableLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (!hasFocus()) return;
    QStylePainter painter(this);
    QStyleOptionFocusRect frame;
    frame.initFrom(this);
    frame.backgroundColor = palette().color(backgroundRole());
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, frame);
}

}  // namespace calvoro
