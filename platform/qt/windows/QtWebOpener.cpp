#include "platform/qt/QtWebOpener.h"

#include "platform/windows/Shell.h"

namespace calvoro {

int QtWebOpener::Open(std::string_view address, std::string_view parameters, std::string_view directory,
                      int windowState, std::function<void(int)> /*failedLater*/) {
    return ShellOpen(address, parameters, directory, windowState);
}

}  // namespace calvoro
