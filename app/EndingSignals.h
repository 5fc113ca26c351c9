#pragma once

#include <QObject>
#include <functional>

namespace calvoro {

/// Turns the signals that ask a process to end (SIGTERM, SIGINT, SIGHUP) into a call from the event loop,
/// where windows may be read and files written. One at a time may exist; it is never undone. On Windows,
/// which sends none, it does nothing.
class EndingSignals : public QObject {
    Q_OBJECT

public:
    /// A signal that was ignored when the program started, as nohup does it, stays ignored.
    EndingSignals(std::function<void()> end, QObject* parent);
};

}  // namespace calvoro
