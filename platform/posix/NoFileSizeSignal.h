#pragma once

#include <csignal>

namespace calvoro {

/// While one lives, writing beyond the limit on the size of files is an error and not the program's end.
class NoFileSizeSignal {
public:
    NoFileSizeSignal() {
        struct sigaction ignore {};
        ignore.sa_handler = SIG_IGN;
        ::sigaction(SIGXFSZ, &ignore, &previous_);
    }
    ~NoFileSizeSignal() { ::sigaction(SIGXFSZ, &previous_, nullptr); }
    NoFileSizeSignal(const NoFileSizeSignal&) = delete;
    NoFileSizeSignal& operator=(const NoFileSizeSignal&) = delete;

private:
    struct sigaction previous_ {};
};

}  // namespace calvoro
