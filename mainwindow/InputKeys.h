#pragma once

// The keyboard in the three input boxes: which keys may be typed, Enter, and Up and Down in a date box.
// Keys that type nothing are the toolkit's own affair.

#include <QObject>

#include "mainwindow/MainControls.h"
#include "mainwindow/WindowOptions.h"

class QInputMethodEvent;
class QKeyEvent;

namespace calvoro {

/// Length of a box's text from which typing is refused.
inline constexpr int kMaxInputLength = 18;

class InputKeys : public QObject {
    Q_OBJECT

public:
    /// window  owns this object
    InputKeys(QWidget* window, const MainControls& controls, const WindowOptions& options);

Q_SIGNALS:
    void EnterPressed();

    /// Up (1) or Down (-1) was pressed in a date box.
    void StepPressed(InputBox box, int value);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool HandleKey(InputBox box, const QKeyEvent& event);
    bool HandleInputMethod(InputBox box, const QInputMethodEvent& event);
    bool MayBeTyped(InputBox box, int key, int typedBefore = 0) const;
    bool MayBeTyped(InputBox box, const QString& text) const;

    const MainControls& controls_;
    const WindowOptions& options_;
};

}  // namespace calvoro
