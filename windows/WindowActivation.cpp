#include "windows/WindowActivation.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWindow>
#include <utility>

namespace calvoro {

WindowActivation::WindowActivation(QWidget& window, std::function<void()> activated)
    : QObject(&window), window_(window), activated_(std::move(activated)) {
    window.installEventFilter(this);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive) programReturned_ = true;
    });
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &WindowActivation::OnFocusWindow);
}

bool WindowActivation::eventFilter(QObject* watched, QEvent* event) {
    // A spontaneous one is the window system's: the window was restored, not shown.
    if (watched == &window_ && event->type() == QEvent::Show && !event->spontaneous()) {
        shownJustNow_ = true;
        activated_();
    }
    return QObject::eventFilter(watched, event);
}

void WindowActivation::OnFocusWindow(const QWindow* focused) {
    if (focused == nullptr) return;
    const Qt::WindowType type = focused->type();
    const bool passing = focused->modality() != Qt::NonModal || type == Qt::Popup || type == Qt::ToolTip;
    const bool returned = std::exchange(programReturned_, false);
    if (passing) return;

    const bool hadFocus = std::exchange(hadFocusLast_, focused == window_.windowHandle());
    if (!hadFocusLast_) return;
    const bool shown = std::exchange(shownJustNow_, false);
    if (!hadFocus && !returned && !shown) activated_();
}

}  // namespace calvoro
