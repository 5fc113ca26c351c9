#pragma once

// What the command line says beside its results, on the standard error stream: one line a message, and on a
// terminal how far a long input has been read.

#include <chrono>
#include <cstdint>
#include <string_view>

namespace calvoro {

class Diagnostics {
public:
    /// descriptor  where messages go
    explicit Diagnostics(int descriptor) : descriptor_(descriptor) {}

    Diagnostics(const Diagnostics&) = delete;
    Diagnostics& operator=(const Diagnostics&) = delete;
    ~Diagnostics() { EndProgress(); }

    /// Prints "calvoro-cli: ..." on a line of its own; failures are ignored, as there is nobody left to tell.
    void Print(std::string_view message);

    /// Lets ShowProgress draw from now on.
    /// total     bytes of the whole input, above 0
    /// interval  least time between two drawings, and before the first
    void BeginProgress(std::uint64_t total, std::chrono::milliseconds interval);

    /// Draws the share that has been read, when it is time to. Nothing before BeginProgress.
    void ShowProgress(std::uint64_t done);

    /// Wipes the drawing away and stops drawing.
    void EndProgress();

private:
    void Wipe();

    int descriptor_;
    bool isDrawn_ = false;
    std::uint64_t total_ = 0;
    std::chrono::milliseconds interval_{};
    std::chrono::steady_clock::time_point nextDrawing_;
};

/// Size of the file behind a descriptor when its progress is worth showing: it is a regular file that is not
/// empty, messages go to a terminal and results do not; else 0.
std::uint64_t SizeForProgress(int input, int results, int messages);

}  // namespace calvoro
