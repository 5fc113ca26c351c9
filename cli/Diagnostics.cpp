#include "cli/Diagnostics.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string>

namespace calvoro {
namespace {

constexpr std::string_view kWipeLine = "\r\x1B[K";

void WriteAll(int descriptor, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = write(descriptor, text.data(), text.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
}

}  // namespace

void Diagnostics::PrintLine(std::string_view line) {
    Wipe();
    WriteAll(descriptor_, std::string(line) + "\n");
}

void Diagnostics::Print(std::string_view message) {
    PrintLine("calvoro-cli: " + std::string(message));
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
    struct stat status {};
    if (isatty(messages) == 0 || isatty(results) != 0) return 0;
    if (fstat(input, &status) != 0 || !S_ISREG(status.st_mode)) return 0;
    return static_cast<std::uint64_t>(status.st_size);
}

}  // namespace calvoro
