#pragma once

#include <QWidget>

#include "mainwindow/MainControls.h"

namespace calvoro {

/// Puts every control in its place and in the tab order, which is the order of reading. The output box
/// takes the room that a larger window has.
void ArrangeControls(QWidget* window, const MainControls& controls);

}  // namespace calvoro
