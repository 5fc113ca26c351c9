#pragma once

// Signals that interrupt reading and writing, as a debugger or a resized terminal sends them.

#include <pthread.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <thread>

namespace calvoro {

/// Sends signal after signal to the thread that makes it, as long as it lives. System calls that wait are
/// not resumed by themselves.
class Interruptions {
public:
    Interruptions() : target_(pthread_self()) {
        handled_ = 0;
        struct sigaction action {};
        action.sa_handler = [](int /*signal*/) { ++handled_; };
        sigaction(SIGUSR1, &action, &before_);
        sender_ = std::thread([this] {
            while (!ended_) {
                pthread_kill(target_, SIGUSR1);
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
            }
        });
    }
    Interruptions(const Interruptions&) = delete;
    Interruptions& operator=(const Interruptions&) = delete;
    ~Interruptions() {
        ended_ = true;
        sender_.join();
        sigaction(SIGUSR1, &before_, nullptr);
    }

    /// Returns when so many signals have arrived; for any thread but the interrupted one.
    static void Await(int signals) {
        while (handled_ < signals) std::this_thread::yield();
    }

private:
    inline static std::atomic<int> handled_ = 0;
    static_assert(std::atomic<int>::is_always_lock_free, "counted by a signal handler");

    pthread_t target_;
    struct sigaction before_ {};
    std::atomic<bool> ended_ = false;
    std::thread sender_;
};

}  // namespace calvoro
