#include "app/EndingSignals.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

namespace calvoro {

namespace {

constexpr std::array kEndingSignals = {SIGTERM, SIGINT, SIGHUP};

// A signal handler gets no argument of ours, so the end of the socket pair that it writes to must be found
// by name. Written once, before the handler is installed.
int signalEnd = -1;

void HandOver(int /*signal*/) {
    const int error = errno;
    const char byte = 1;
    // A full socket means that a signal is on its way already.
    [[maybe_unused]] const ssize_t written = ::write(signalEnd, &byte, sizeof byte);
    errno = error;
}

}  // namespace

EndingSignals::EndingSignals(std::function<void()> end, QObject* parent) : QObject(parent) {
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()) != 0) return;
    for (const int descriptor : ends) {
        ::fcntl(descriptor, F_SETFD, FD_CLOEXEC);
        ::fcntl(descriptor, F_SETFL, O_NONBLOCK);
    }
    signalEnd = ends[0];

    auto* const notifier = new QSocketNotifier(ends[1], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [notifier, end = std::move(end)] {
        notifier->setEnabled(false);
        end();
    });

    for (const int signal : kEndingSignals) {
        struct sigaction old {};
        if (::sigaction(signal, nullptr, &old) == 0 && old.sa_handler == SIG_IGN) continue;
        struct sigaction action {};
        action.sa_handler = HandOver;
        action.sa_flags = SA_RESTART;
        ::sigaction(signal, &action, nullptr);
    }
}

}  // namespace calvoro
