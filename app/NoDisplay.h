#pragma once

#include <QtGlobal>

namespace calvoro {

/// While one of these lives, a display that is missing or cannot be used ends the program with one sentence
/// on the standard error output and exit code 1, where Qt would list its plugins and abort. It is wanted
/// around the making of the QApplication only.
class NoDisplayGuard {
public:
    NoDisplayGuard();
    ~NoDisplayGuard();
    NoDisplayGuard(const NoDisplayGuard&) = delete;
    NoDisplayGuard& operator=(const NoDisplayGuard&) = delete;

private:
    QtMessageHandler previous_;
};

}  // namespace calvoro
