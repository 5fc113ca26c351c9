#pragma once

#include "platform/Clock.h"

namespace calvoro {

/// The local date of the system's clock, without Qt, for the command line and the window alike.
class SystemClock : public Clock {
public:
    LocalDate Today() const override;
};

}  // namespace calvoro
