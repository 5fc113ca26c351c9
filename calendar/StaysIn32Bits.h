#pragma once

// The edge of a computation: where arithmetic that left 32 bits becomes an answer. Reading a date, counting,
// finding and stepping run inside it; nothing below them catches anything.

#include "calendar/CheckedInt.h"

namespace calvoro {

/// Runs one step of a computation.
/// returns  false when it left the range of 32-bit numbers; what it had set until then stays
template <typename Step>
bool StaysIn32Bits(const Step& step) {
    try {
        step();
    } catch (const ArithmeticOverflow&) {
        return false;
    }
    return true;
}

}  // namespace calvoro
