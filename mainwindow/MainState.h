#pragma once

// What the parts of the main window share beside what its controls hold.

#include "compute/ComputeState.h"
#include "text/Texts.h"

namespace calvoro {

struct MainState {
    explicit MainState(const Texts& loaded) : texts(loaded) {}

    Texts texts;
    ComputeState compute;

    // False until the end of start-up: until then the focus stays, and today is not shown.
    bool FormReady = false;
};

}  // namespace calvoro
