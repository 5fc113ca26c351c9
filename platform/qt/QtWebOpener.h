#pragma once

#include "platform/WebOpener.h"

namespace calvoro {

/// The desktop's own way to open an address.
class QtWebOpener : public WebOpener {
public:
    /// Desktops that Qt knows take neither parameters nor a directory nor a window state; they are not used.
    /// An opener that fails within its first half minute has not found a browser; what ends later is the
    /// browser itself.
    /// returns  33, or 31 when nothing on the system opens the address
    int Open(std::string_view address, std::string_view parameters, std::string_view directory,
             int windowState, std::function<void(int)> failedLater) override;
};

}  // namespace calvoro
