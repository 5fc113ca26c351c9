#pragma once

// The memory that the process has in use while events go by, and whether it grows.

#include <cstdint>
#include <vector>

namespace calvoro::monkey {

class MemoryInUse {
public:
    /// every  so many events it is looked at; 0 is never
    explicit MemoryInUse(std::uint64_t every) : every_(every) {}

    /// After so many events.
    void After(std::uint64_t events);

    /// A lie for the test of the monkey: memory that nobody gives back, much in so short a time.
    void Waste();

    /// Prints what was seen at each look: bytes in use, and bytes resident, which hold what the allocator
    /// keeps between them. Then how fast those in use grew over the second half, which leaves out what
    /// fills up once.
    /// returns  whether that is slow enough
    bool Tell() const;

    /// More than that is memory that is lost: a single small object with each event.
    static constexpr double kMostBytesAnEvent = 16;

private:
    struct Look {
        std::uint64_t events;
        std::uint64_t bytes;
        std::uint64_t resident;
    };

    double BytesAnEvent() const;

    std::uint64_t every_;
    std::vector<Look> looks_;
    std::vector<std::vector<char>> wasted_;
};

}  // namespace calvoro::monkey
