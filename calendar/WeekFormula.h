#pragma once

// Division by 7 as a product. The compiler, which cannot know how small the numbers are, would take several
// steps more, and the week conversions consist of little else.

#include <cstdint>

namespace calvoro::formula {

/// The remainder of a division by 7.
/// number  below 2^58
constexpr std::uint32_t RemainderBy7(std::uint64_t number) {
    // 2^64 / 7, rounded up. The product wraps at 2^64, which leaves the fraction of number / 7: its upper
    // three bits are floor(8 r / 7), which is r for every remainder r.
    return static_cast<std::uint32_t>(number * 0x2492'4924'9249'2493 >> 61);
}

/// The whole weeks in a number of days.
/// days  below 13,107
constexpr std::uint32_t WholeWeeks(std::uint32_t days) {
    return days * 9363 >> 16;  // 9363 is 2^16 / 7, rounded up by 5 / 7
}

}  // namespace calvoro::formula
