#pragma once

// Choices that come out the same in every run: those of an event depend on the seed and on the number of the
// event alone, so that an event chooses as before when others are left out.

#include <cstddef>
#include <cstdint>
#include <random>

namespace calvoro::monkey {

class Dice {
public:
    Dice(std::uint64_t seed, std::uint64_t event)
        : engine_(static_cast<std::uint32_t>(Mixed(seed * 1'000'003 + event) >> 16)) {}

    /// returns  [0, end)
    int Below(int end) { return static_cast<int>(engine_() % static_cast<std::uint32_t>(end)); }

    /// returns  [first, last]
    int Between(int first, int last) { return first + Below(last - first + 1); }

    bool OneIn(int times) { return Below(times) == 0; }

    template <typename Container>
    auto OneOf(const Container& choices) {
        return choices[static_cast<std::size_t>(Below(static_cast<int>(choices.size())))];
    }

private:
    // Neighbouring numbers shall have nothing in common.
    static std::uint64_t Mixed(std::uint64_t number) {
        number = (number ^ (number >> 30)) * 0xBF58'476D'1CE4'E5B9;
        number = (number ^ (number >> 27)) * 0x94D0'49BB'1331'11EB;
        return number ^ (number >> 31);
    }

    std::minstd_rand engine_;
};

}  // namespace calvoro::monkey
