#pragma once

#include "calendar/Today.h"

namespace calvoro {

class Clock {
public:
    virtual ~Clock() = default;

    /// Today's local calendar date.
    virtual LocalDate Today() const = 0;
};

}  // namespace calvoro
