#pragma once

// The quiet line at the bottom of the window that says how the box with the focus is read, before anything
// is computed.

#include <QObject>

#include "mainwindow/MainControls.h"
#include "mainwindow/MainState.h"
#include "mainwindow/WindowOptions.h"

namespace calvoro {

class ReadingLine : public QObject {
    Q_OBJECT

public:
    /// Follows the focus, the texts of the boxes and every option by itself; window owns this object.
    ReadingLine(QWidget* window, const MainControls& controls, const WindowOptions& options,
                const MainState& state);

    /// Composes the line anew, and the description that each box has for assistive tools.
    void Refresh();

private:
    void FollowOptions();

    QWidget& window_;
    const MainControls& controls_;
    const WindowOptions& options_;
    const MainState& state_;
};

}  // namespace calvoro
