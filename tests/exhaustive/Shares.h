#pragma once

// A long run of day numbers, shared out among all processors.

#include <cstdint>
#include <functional>

namespace calvoro::exhaustive {

/// Day numbers from first to last, both included. Wide enough to hold the number after the last.
struct Days {
    std::int64_t first = 0;
    std::int64_t last = -1;

    constexpr std::int64_t Count() const { return last - first + 1; }
};

/// Calls `check` for consecutive pieces of `days`, from as many threads as there are processors, and returns
/// when all are done. Pieces are handed out one by one, so that a thread that falls behind delays nobody.
void ShareOut(Days days, const std::function<void(Days piece)>& check);

/// Writes one fault to stderr, the first twenty of a run in full. Safe to call from every thread.
void ReportFault(const char* what, std::int64_t jdn);

/// Faults reported so far.
std::int64_t FaultCount();

}  // namespace calvoro::exhaustive
