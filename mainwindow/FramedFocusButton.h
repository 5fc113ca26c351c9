#pragma once

// A button that shows by a frame of its own that it has the focus: styles may draw the default button of a
// dialog alike with and without it.

#include <QPushButton>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace calvoro {

class FramedFocusButton : public QPushButton {
public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent* event) override {
        QPushButton::paintEvent(event);
        if (!hasFocus()) return;
        constexpr int kInside = 4;  // pixels between the button's edge and the frame
        QStylePainter painter(this);
        QStyleOptionFocusRect frame;
        frame.initFrom(this);
        frame.rect.adjust(kInside, kInside, -kInside, -kInside);
        frame.backgroundColor = palette().color(QPalette::Button);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, frame);
    }
};

}  // namespace calvoro
