#pragma once

#include <cstddef>
#include <cstdint>

namespace calvoro {

/// What a piece of work on rows is: computing so many of them takes less than a millisecond.
inline constexpr std::uint32_t kRowsAtOnce = 256;
inline constexpr std::size_t kBytesAtOnce = std::size_t{64} * 1024;

/// Work that is done in pieces, so that one thread can look after its windows in between.
class SlicedJob {
public:
    virtual ~SlicedJob() = default;

    /// Does a piece that takes a few milliseconds at most.
    /// returns  true when nothing is left to be done
    virtual bool Step() = 0;

    /// How much is done.
    /// returns  [0, 1]
    virtual double Done() const = 0;

protected:
    SlicedJob() = default;
    SlicedJob(const SlicedJob&) = delete;
    SlicedJob& operator=(const SlicedJob&) = delete;
};

}  // namespace calvoro
