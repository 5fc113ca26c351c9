#pragma once

// Tells a window when it becomes the one the user works in: when it is shown, and when it gets the focus
// from another window of the program. Coming back from another program, from a message box or from the list
// of a combo box is not an activation.

#include <QObject>
#include <QWidget>
#include <functional>

class QWindow;

namespace calvoro {

class WindowActivation : public QObject {
public:
    /// window     a top-level window; owns this object
    /// activated  called at every activation
    WindowActivation(QWidget& window, std::function<void()> activated);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void OnFocusWindow(const QWindow* focused);

    QWidget& window_;
    std::function<void()> activated_;
    bool hadFocusLast_ = false;     // among the program's windows
    bool programReturned_ = false;  // the next focus is that of the whole program
    bool shownJustNow_ = false;     // the focus that follows belongs to the showing
};

}  // namespace calvoro
