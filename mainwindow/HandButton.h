#pragma once

// Buttons that can tell who changes them. A choice by mouse, with Space or with the button's own key leads
// on to the next step; one made with the arrow keys or by an assistive tool leaves the focus where it is.

#include <QCheckBox>
#include <QEvent>
#include <QScopedValueRollback>
#include <utility>

namespace calvoro {

template <typename Button>
class HandButton : public Button {
public:
    using Button::Button;

    /// Whether the change that is being told now was made by mouse, with Space or with the button's key.
    bool UnderHand() const { return underHand_; }

protected:
    bool event(QEvent* event) override {
        const QScopedValueRollback<bool> hand(underHand_, IsHand(*event));
        return Button::event(event);
    }

private:
    bool IsHand(const QEvent& event) {
        switch (event.type()) {
            case QEvent::MouseButtonRelease:
            case QEvent::KeyRelease: return true;
            // The button's own key holds it down for a moment; its click comes with the timer.
            case QEvent::Shortcut: keyPressed_ = true; return false;
            case QEvent::Timer: return std::exchange(keyPressed_, false);
            default: return underHand_;  // within one of those
        }
    }

    bool underHand_ = false;
    bool keyPressed_ = false;
};

using HandCheckBox = HandButton<QCheckBox>;

}  // namespace calvoro
