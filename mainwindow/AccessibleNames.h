#pragma once

#include "mainwindow/MainControls.h"
#include "text/Texts.h"

namespace calvoro {

/// Names what a screen reader could not tell from the captions: the boxes, the buttons and arrows that
/// stand beside them, the groups of options. Everything else is named by its caption.
void SetAccessibleNames(const MainControls& controls, const Texts& texts);

}  // namespace calvoro
