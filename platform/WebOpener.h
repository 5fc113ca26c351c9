#pragma once

#include <functional>
#include <string_view>

namespace calvoro {

/// The shell's "open" action on a web address.
class WebOpener {
public:
    virtual ~WebOpener() = default;

    /// Opens an address in the user's browser.
    /// parameters, directory, windowState  handed on to a shell that takes them
    /// failedLater  told an error number, from the event loop, when the start turns out to have failed after
    ///              this call has returned a success
    /// returns      33 or more on success; else an error number: 31 when nothing opens the address, 8 out of
    ///              memory, 2 not found. Never waits for the browser.
    virtual int Open(std::string_view address, std::string_view parameters, std::string_view directory,
                     int windowState, std::function<void(int)> failedLater) = 0;
};

}  // namespace calvoro
