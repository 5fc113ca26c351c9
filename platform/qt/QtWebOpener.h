#pragma once

#include "platform/WebOpener.h"

namespace calvoro {

/// The desktop's own way to open an address.
class QtWebOpener : public WebOpener {
public:
    /// The shell of Windows is given all of it, and its number is the answer. Other desktops take neither
    /// parameters nor a directory nor a window state; they are not used there. An opener of theirs that fails
    /// within its first half minute has not found a browser; what ends later is the browser itself.
    /// returns  33 or more; elsewhere 31 when nothing on the system opens the address, or the shell's number
    int Open(std::string_view address, std::string_view parameters, std::string_view directory,
             int windowState, std::function<void(int)> failedLater) override;
};

}  // namespace calvoro
