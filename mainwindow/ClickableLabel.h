#pragma once

// A label that is pressed like a button, with the mouse or, when it has the focus, with the keyboard. A
// screen reader meets it as a button or a link.

#include <QAccessible>
#include <QLabel>

namespace calvoro {

class ClickableLabel : public QLabel {
    Q_OBJECT

public:
    explicit ClickableLabel(QWidget* parent);

    /// Underlined, with the pointing hand, in the palette's link colour, or in that of other text where the
    /// palette's links can hardly be read.
    void ShowAsLink();

    /// The second half of the caption of the control in front of it, which the keyboard reaches already.
    void ContinueCaption();

    QAccessible::Role AccessibleRole() const { return role_; }

Q_SIGNALS:
    /// Left or middle mouse button; Space, Enter or Right on the keyboard.
    void Pressed();

    /// Right mouse button; Left, or Shift with Space or Enter, on the keyboard.
    void PressedBackward();

protected:
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void FollowPalette();

    QAccessible::Role role_ = QAccessible::Button;
};

}  // namespace calvoro
