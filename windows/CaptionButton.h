#pragma once

#include <QPushButton>

namespace calvoro {

/// A push button whose caption has air around it in every style, and which Enter presses when it has the
/// focus.
class CaptionButton : public QPushButton {
public:
    explicit CaptionButton(QWidget* parent) : QPushButton(parent) { setAutoDefault(true); }

    QSize sizeHint() const override {
        return QPushButton::sizeHint() + QSize(2 * fontMetrics().averageCharWidth(), 0);
    }
    QSize minimumSizeHint() const override { return sizeHint(); }
};

}  // namespace calvoro
