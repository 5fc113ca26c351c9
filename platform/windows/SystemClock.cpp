#include "platform/SystemClock.h"

#include <windows.h>

namespace calvoro {

LocalDate SystemClock::Today() const {
    SYSTEMTIME now{};
    ::GetLocalTime(&now);
    return {now.wYear, now.wMonth, now.wDay};
}

}  // namespace calvoro
