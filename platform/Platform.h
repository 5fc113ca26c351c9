#pragma once

// The outside world as the windows see it, handed to their constructors.

#include <string>

#include "platform/Clipboard.h"
#include "platform/Clock.h"
#include "platform/MessageBoxes.h"
#include "platform/SettingsPlace.h"
#include "platform/WebOpener.h"

namespace calvoro {

struct Platform {
    MessageBoxes& boxes;
    Clipboard& clipboard;
    const Clock& clock;
    WebOpener& web;
    SettingsPlace& place;
    std::string digitGrouping = ",";  // the system's grouping of digits; UTF-8
};

}  // namespace calvoro
