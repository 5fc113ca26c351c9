#include "tests/exhaustive/Shares.h"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <thread>
#include <vector>

namespace calvoro::exhaustive {

namespace {

constexpr std::int64_t kDaysInPiece = 5'000'000;
constexpr std::int64_t kFaultsInFull = 20;

std::atomic<std::int64_t>& Faults() {
    static std::atomic<std::int64_t> faults{0};
    return faults;
}

}  // namespace

void ShareOut(Days days, const std::function<void(Days piece)>& check) {
    std::atomic<std::int64_t> next{days.first};
    const auto work = [&] {
        for (;;) {
            const std::int64_t first = next.fetch_add(kDaysInPiece);
            if (first > days.last) return;
            check({first, std::min(first + kDaysInPiece - 1, days.last)});
        }
    };
    std::vector<std::thread> threads;
    for (unsigned count = std::max(1U, std::thread::hardware_concurrency()); count > 0; --count) {
        threads.emplace_back(work);
    }
    for (std::thread& thread : threads) thread.join();
}

void ReportFault(const char* what, std::int64_t jdn) {
    if (Faults().fetch_add(1) < kFaultsInFull) {
        std::fprintf(stderr, "day %lld: %s\n", static_cast<long long>(jdn), what);
    }
}

std::int64_t FaultCount() {
    return Faults();
}

}  // namespace calvoro::exhaustive
