#include "cli/Diagnostics.h"

#include <algorithm>
#include <string>

#include "platform/Streams.h"
#include "platform/WriteAll.h"

namespace calvoro {
namespace {

constexpr std::string_view kWipeLine = "\r\x1B[K";

}  // namespace

void Diagnostics::Print(std::string_view message) {
    Wipe();
    WriteAll(descriptor_, "calvoro-cli: " + std::string(message) + "\n");
}

void Diagnostics::BeginProgress(std::uint64_t total, std::chrono::milliseconds interval) {
    total_ = total;
    interval_ = interval;
    nextDrawing_ = std::chrono::steady_clock::now() + interval;
}

void Diagnostics::ShowProgress(std::uint64_t done) {
    if (total_ == 0) return;
    const auto now = std::chrono::steady_clock::now();
    if (now < nextDrawing_) return;
    nextDrawing_ = now + interval_;
    // A file that grows while it is read has more bytes than were announced.
    const double share = static_cast<double>(std::min(done, total_)) / static_cast<double>(total_);
    WriteAll(descriptor_, std::string(kWipeLine) + std::to_string(static_cast<int>(100 * share)) + " % read");
    isDrawn_ = true;
}

void Diagnostics::EndProgress() {
    Wipe();
    total_ = 0;
}

void Diagnostics::Wipe() {
    if (!isDrawn_) return;
    WriteAll(descriptor_, kWipeLine);
    isDrawn_ = false;
}

std::uint64_t SizeForProgress(int input, int results, int messages) {
    return IsTerminal(messages) && !IsTerminal(results) ? SizeOfFile(input) : 0;
}

}  // namespace calvoro
