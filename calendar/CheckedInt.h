#pragma once

// Signed 32-bit arithmetic that refuses to wrap. Counting and adding days are defined in 32 bits step by
// step, so every step is tested, also where a wider type would hold the final value. The conversions
// compute in 64 bits and narrow once, with NarrowToInt32.

#include <compare>
#include <cstdint>
#include <exception>

namespace calvoro {

/// A year, month count or day number left the range of signed 32-bit numbers. The only exception of ours;
/// it is caught at the edge of a computation (StaysIn32Bits), nowhere below.
class ArithmeticOverflow : public std::exception {
public:
    /// One sentence in English.
    const char* what() const noexcept override { return "a result leaves the range of 32-bit numbers"; }
};

/// The value in 32 bits.
/// throws  ArithmeticOverflow when it does not fit
constexpr std::int32_t NarrowToInt32(std::int64_t value) {
    if (value != static_cast<std::int32_t>(value)) throw ArithmeticOverflow();
    return static_cast<std::int32_t>(value);
}

/// The value in 16 bits, for the counts and fields that are that narrow.
/// throws  ArithmeticOverflow when it does not fit
constexpr std::int16_t NarrowToInt16(std::int64_t value) {
    if (value != static_cast<std::int16_t>(value)) throw ArithmeticOverflow();
    return static_cast<std::int16_t>(value);
}

/// A signed 32-bit number whose +, - and * throw ArithmeticOverflow instead of wrapping.
class CheckedInt {
public:
    constexpr CheckedInt() = default;
    /// The number itself.
    constexpr CheckedInt(std::int32_t value)
        : value_(value) {}  // NOLINT: implicit, so that formulas read plainly

    /// The number as the language has it.
    constexpr std::int32_t Value() const { return value_; }

    constexpr CheckedInt& operator+=(CheckedInt other) { return *this = *this + other; }
    constexpr CheckedInt& operator-=(CheckedInt other) { return *this = *this - other; }

    friend constexpr CheckedInt operator+(CheckedInt a, CheckedInt b) {
        return NarrowToInt32(std::int64_t{a.value_} + b.value_);
    }
    friend constexpr CheckedInt operator-(CheckedInt a, CheckedInt b) {
        return NarrowToInt32(std::int64_t{a.value_} - b.value_);
    }
    friend constexpr CheckedInt operator*(CheckedInt a, CheckedInt b) {
        return NarrowToInt32(std::int64_t{a.value_} * b.value_);
    }
    friend constexpr CheckedInt operator-(CheckedInt a) { return CheckedInt(0) - a; }
    friend constexpr bool operator==(CheckedInt a, CheckedInt b) = default;
    friend constexpr std::strong_ordering operator<=>(CheckedInt a, CheckedInt b) {
        return a.value_ <=> b.value_;
    }

private:
    std::int32_t value_ = 0;
};

}  // namespace calvoro
