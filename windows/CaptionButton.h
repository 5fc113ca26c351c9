#pragma once

#include <QKeyEvent>
#include <QPushButton>

namespace calvoro {

/// A push button whose caption has air around it in every style, and which Enter presses when it has the
/// focus: once, however long the key is held down.
class CaptionButton : public QPushButton {
public:
    explicit CaptionButton(QWidget* parent) : QPushButton(parent) { setAutoDefault(true); }

    QSize sizeHint() const override {
        return QPushButton::sizeHint() + QSize(2 * fontMetrics().averageCharWidth(), 0);
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (!isEnter || !event->isAutoRepeat()) QPushButton::keyPressEvent(event);
    }
};

}  // namespace calvoro
