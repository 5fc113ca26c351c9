#include "tests/monkey/MemoryInUse.h"

#include <malloc.h>
#include <unistd.h>

#include <cstddef>
#include <cstdio>
#include <fstream>

// Of the sanitizers, which have an allocator of their own.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes() __attribute__((weak));

namespace calvoro::monkey {
namespace {

// What has been asked for and not been given back.
std::uint64_t BytesInUse() {
    if (__sanitizer_get_current_allocated_bytes != nullptr) return __sanitizer_get_current_allocated_bytes();
    const struct mallinfo2 info = ::mallinfo2();
    return info.uordblks + info.hblkhd;
}

std::uint64_t BytesResident() {
    ::malloc_trim(0);  // what is given back already counts no more
    std::ifstream file("/proc/self/statm");
    std::uint64_t size = 0;
    std::uint64_t resident = 0;
    file >> size >> resident;
    return resident * static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE));
}

}  // namespace

void MemoryInUse::After(std::uint64_t events) {
    if (every_ != 0 && events % every_ == 0) looks_.push_back({events, BytesInUse(), BytesResident()});
}

void MemoryInUse::Waste() {
    constexpr std::size_t kWaste = 200'000;  // bytes
    wasted_.emplace_back(kWaste, 'x');
}

// The slope of the straight line that lies nearest to the looks of the second half.
double MemoryInUse::BytesAnEvent() const {
    const std::size_t begin = looks_.size() / 2;
    const auto count = static_cast<double>(looks_.size() - begin);
    double meanEvents = 0;
    double meanBytes = 0;
    for (std::size_t i = begin; i < looks_.size(); ++i) {
        meanEvents += static_cast<double>(looks_[i].events) / count;
        meanBytes += static_cast<double>(looks_[i].bytes) / count;
    }
    double products = 0;
    double squares = 0;
    for (std::size_t i = begin; i < looks_.size(); ++i) {
        const double events = static_cast<double>(looks_[i].events) - meanEvents;
        products += events * (static_cast<double>(looks_[i].bytes) - meanBytes);
        squares += events * events;
    }
    return squares > 0 ? products / squares : 0;
}

bool MemoryInUse::Tell() const {
    for (const Look& look : looks_) {
        std::printf("%llu events: %.1f MB in use, %.1f MB resident\n",
                    static_cast<unsigned long long>(look.events), static_cast<double>(look.bytes) / 1e6,
                    static_cast<double>(look.resident) / 1e6);
    }
    constexpr std::size_t kFewest = 6;
    if (looks_.size() < kFewest) {
        std::printf("memory: too few looks to tell\n");
        return false;
    }
    const double growth = BytesAnEvent();
    std::printf("memory: %+.1f bytes an event over the second half; at most %.0f are allowed\n", growth,
                kMostBytesAnEvent);
    return growth <= kMostBytesAnEvent;
}

}  // namespace calvoro::monkey
