#pragma once

// The edge of the computation: where a number that left 32 bits becomes a refusal. Reading an input,
// computing and stepping a date each run inside it; nothing below them catches anything.

#include "calendar/CheckedInt.h"

namespace calvoro {

/// Runs one step of the computation.
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
