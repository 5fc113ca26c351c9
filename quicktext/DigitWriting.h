#pragma once

// Digits written into a buffer, two at a time. Each function returns the place behind what it wrote.

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace calvoro {

namespace digits {
constexpr std::array<char, 200> MakePairs() {
    std::array<char, 200> pairs{};
    for (std::size_t number = 0; number < 100; ++number) {
        pairs[2 * number] = static_cast<char>('0' + number / 10);
        pairs[2 * number + 1] = static_cast<char>('0' + number % 10);
    }
    return pairs;
}
inline constexpr std::array<char, 200> kPairs = MakePairs();
}  // namespace digits

/// number  [0, 9]
inline char* WriteOneDigit(std::uint32_t number, char* to) {
    *to = static_cast<char>('0' + number);
    return to + 1;
}

/// number  [0, 99]
inline char* WriteTwoDigits(std::uint32_t number, char* to) {
    std::memcpy(to, &digits::kPairs[std::size_t{2} * number], 2);
    return to + 2;
}

/// number  [0, 999]
inline char* WriteThreeDigits(std::uint32_t number, char* to) {
    const std::uint32_t tens = number * 6554 >> 16;  // number / 10
    WriteTwoDigits(tens, to);
    return WriteOneDigit(number - 10 * tens, to + 2);
}

/// number  [0, 9999]
inline char* WriteFourDigits(std::uint32_t number, char* to) {
    const std::uint32_t hundreds = number * 5243 >> 19;  // number / 100
    WriteTwoDigits(hundreds, to);
    return WriteTwoDigits(number - 100 * hundreds, to + 2);
}

/// A number without zeros in front.
inline char* WriteNumber(std::uint32_t number, char* to) {
    if (number >= 10'000) {
        to = WriteNumber(number / 10'000, to);
        return WriteFourDigits(number % 10'000, to);
    }
    char four[4];
    WriteFourDigits(number, four);
    const std::size_t zeros = number >= 1000 ? 0 : number >= 100 ? 1 : number >= 10 ? 2 : 3;
    std::memcpy(to, four + zeros, 4 - zeros);
    return to + (4 - zeros);
}

/// A number whose digits are grouped by threes.
inline char* WriteGroupedNumber(std::uint32_t number, std::string_view separator, char* to) {
    if (number < 1000) return WriteNumber(number, to);
    to = WriteGroupedNumber(number / 1000, separator, to);
    for (const char character : separator) *to++ = character;
    const std::uint32_t group = number % 1000;
    return WriteThreeDigits(group, to);
}

}  // namespace calvoro
